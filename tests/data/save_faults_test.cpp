// Saving when the disk lets the editor down part way: whatever fails, the
// files on disk stay exactly as they were, the result says which file and
// why, and no half-written copy is left behind. (A read-only file or folder
// and a vanished folder are refused before anything is written: save_test.)
#include "data/save.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>
#include <filesystem>
#include <set>
#include <string>
#include <system_error>

#include <sys/resource.h>
#include <unistd.h>

#include "data/file_io.h"
#include "data/players_file.h"
#include "data/teams_file.h"
#include "file_text.h"

namespace fs = std::filesystem;

namespace {

class SaveFaults : public ::testing::Test {
protected:
    void SetUp() override
    {
        folder_ = fs::temp_directory_path() /
                  ("kolta-save-faults-" + std::to_string(::getpid()) + "-" +
                   ::testing::UnitTest::GetInstance()->current_test_info()->name());
        fs::remove_all(folder_);
        fs::create_directories(folder_);
        for (const char* name : {"players.dat", "teams.dat"})
            fs::copy_file(fs::path(KOLTA_SAMPLE) / name, folder_ / name);
        oldPlayers_ = *ReadWholeFile(PlayersPath());
        oldTeams_ = *ReadWholeFile(TeamsPath());

        SetGameDirectory(*game_, folder_.string());
        ASSERT_TRUE(ReadPlayersFile(*game_));
        ASSERT_TRUE(ReadTeamsFile(*game_));
        // An edit to each file, so that a save that got through would show.
        game_->Players[1].surname = "Edited";
        game_->Teams[1].teamName = "Edited XI";
    }

    void TearDown() override
    {
        std::error_code ignored;
        fs::remove_all(folder_, ignored);
    }

    std::string PlayersPath() const { return (folder_ / "players.dat").string(); }
    std::string TeamsPath() const { return (folder_ / "teams.dat").string(); }

    // The kernel's own "disk full": every write into the file fails with ENOSPC.
    void FullDiskFor(const std::string& path) { fs::create_symlink("/dev/full", path + ".saving"); }

    void ExpectOldFilesKept() const
    {
        // Compared whole; a diff of two game files would drown the report.
        EXPECT_TRUE(ReadWholeFile(PlayersPath()) == oldPlayers_) << "players.dat changed";
        EXPECT_TRUE(ReadWholeFile(TeamsPath()) == oldTeams_) << "teams.dat changed";
    }

    // Only the two files and whatever was there before: no half-written copy.
    void ExpectNoLeftovers(const std::set<std::string>& others = {}) const
    {
        std::set<std::string> expected{"players.dat", "teams.dat"};
        expected.insert(others.begin(), others.end());
        for (const auto& entry : fs::directory_iterator(folder_))
            EXPECT_TRUE(expected.contains(entry.path().filename().string())) << entry.path();
    }

    fs::path folder_;
    std::string oldPlayers_;
    std::string oldTeams_;
    std::unique_ptr<Game> game_ = NewGame();
};

// Players are written first, so a disk that fills on teams.dat is the case
// that matters: a new players.dat beside the old teams.dat would no longer
// match its squads.
TEST_F(SaveFaults, DiskFullOnEitherFileKeepsBoth)
{
    game_->BackupsKept = true;  // straight to the writing
    for (const std::string& full : {PlayersPath(), TeamsPath()}) {
        SCOPED_TRACE(full);
        FullDiskFor(full);
        const FileResult result = SaveGame(*game_);
        EXPECT_FALSE(result.ok());
        EXPECT_EQ(result.path, full);
        EXPECT_EQ(result.reason, std::generic_category().message(ENOSPC));
        ExpectOldFilesKept();
        ExpectNoLeftovers();
    }
}

TEST_F(SaveFaults, SaveWorksOnceTheDiskHasRoomAgain)
{
    FullDiskFor(TeamsPath());
    ASSERT_FALSE(SaveGame(*game_).ok());
    fs::remove(TeamsPath() + ".saving");

    ASSERT_TRUE(SaveGame(*game_).ok());
    EXPECT_TRUE(ReadWholeFile(PlayersPath()) == WritePlayers(*game_));
    EXPECT_TRUE(ReadWholeFile(TeamsPath()) == WriteTeams(*game_));
    // The copies kept before the first save are of the files as they were loaded.
    EXPECT_TRUE(ReadWholeFile(PlayersPath() + ".bak") == oldPlayers_);
    EXPECT_TRUE(ReadWholeFile(TeamsPath() + ".bak") == oldTeams_);
}

// A file size limit cuts the write off part way, as a quota does: the first
// bytes reach the disk and the rest are refused.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        ::getrlimit(RLIMIT_FSIZE, &old_);
        oldHandler_ = std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit = old_;
        limit.rlim_cur = bytes;
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit()
    {
        ::setrlimit(RLIMIT_FSIZE, &old_);
        std::signal(SIGXFSZ, oldHandler_);
    }

private:
    rlimit old_{};
    void (*oldHandler_)(int) = nullptr;
};

TEST_F(SaveFaults, WriteCutShortKeepsBothFiles)
{
    game_->BackupsKept = true;
    {
        ASSERT_LT(oldTeams_.size() + 1000, oldPlayers_.size());
        const FileSizeLimit limit(oldTeams_.size() + 1000);
        const FileResult result = SaveGame(*game_);
        EXPECT_FALSE(result.ok());
        EXPECT_EQ(result.path, PlayersPath());
        EXPECT_EQ(result.reason, std::generic_category().message(EFBIG));
    }
    ExpectOldFilesKept();
    ExpectNoLeftovers();
}

// The copy of the old files comes first; one cut short stops the save and
// does not replace a good copy kept by an earlier session.
TEST_F(SaveFaults, BackupCutShortStopsTheSaveAndKeepsTheEarlierCopy)
{
    const std::string earlierCopy = "the copy from an earlier session";
    {
        std::FILE* file = std::fopen((PlayersPath() + ".bak").c_str(), "wb");
        std::fputs(earlierCopy.c_str(), file);
        std::fclose(file);
    }
    {
        const FileSizeLimit limit(1000);
        const FileResult result = SaveGame(*game_);
        EXPECT_FALSE(result.ok());
        EXPECT_EQ(result.path, PlayersPath() + ".bak");
        EXPECT_FALSE(result.reason.empty());
    }
    ExpectOldFilesKept();
    EXPECT_EQ(ReadWholeFile(PlayersPath() + ".bak"), earlierCopy);
    ExpectNoLeftovers({"players.dat.bak"});
}

}  // namespace
