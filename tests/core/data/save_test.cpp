// Saving: a bad name or a folder that cannot be written is refused before
// either file is touched, and a disk that lets the editor down part way
// leaves both old files exactly as they were, with no half-written copy.
#include "data/save.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include <sys/resource.h>

#include "data/file_steps.h"
#include "support/file_text.h"
#include "support/scratch_folder.h"

namespace fs = std::filesystem;

namespace {

const FilePair OldPair(SampleBytes("players.dat"), SampleBytes("teams.dat"));

void MakeReadOnly(const fs::path& path)
{
    fs::permissions(path, fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
                    fs::perm_options::remove);
}

// Where this process writes the new `file` before moving it into place.
fs::path Writing(const fs::path& file)
{
    return TemporaryName(file.string(), "saving");
}

// The kernel's own "disk full": every write into the file fails with ENOSPC.
void FullDiskFor(const fs::path& file)
{
    fs::create_symlink("/dev/full", Writing(file));
}

// Every file in `dir` with its bytes; a link (a full disk) only if `links`.
// The .prev pair, the old files kept while a save moves, may be left behind.
std::map<fs::path, std::string> Files(const fs::path& dir, bool links)
{
    std::map<fs::path, std::string> files;
    if (!fs::exists(dir))
        return files;
    for (const auto& entry : fs::directory_iterator(dir)) {
        if (entry.path().extension() == ".prev")
            continue;
        if (links || !entry.is_symlink())
            files[entry.path().filename()] = entry.is_symlink() ? "a link" : Bytes(entry.path());
    }
    return files;
}

class Save : public testing::Test {
protected:
    // A copy of the sample game in a folder of its own, loaded into `game`.
    fs::path LoadCopy(Game& game)
    {
        const fs::path dir = scratch_.Sample("game" + std::to_string(++copies_));
        LoadFolder(game, dir.string());
        return dir;
    }

    ScratchFolder scratch_;
    int copies_ = 0;
};

// The first save that works keeps the old pair as .bak, and the first ever in
// the folder as .orig; a save that failed does not count, later ones do not touch them.
TEST_F(Save, KeepsTheOldPairAtTheFirstSaveThatWorks)
{
    auto game = NewGame();
    const fs::path dir = LoadCopy(*game);
    game->Players[2].surname = "O\"Brien";  // a quote inside a name is stored as it is
    FullDiskFor(dir / "teams.dat");
    ASSERT_FALSE(SaveGame(*game).ok());
    fs::remove(Writing(dir / "teams.dat"));
    ASSERT_TRUE(SaveGame(*game).ok());  // the disk has room again
    const FilePair first = PairIn(dir);
    game->Teams[2].wealth = 12;
    ASSERT_TRUE(SaveGame(*game).ok());
    EXPECT_TRUE(PairIn(dir) == WrittenPair(*game));
    EXPECT_TRUE(PairIn(dir, ".bak") == OldPair);
    EXPECT_TRUE(PairIn(dir, ".orig") == OldPair);
    EXPECT_TRUE(PairIn(dir, ".prev") == first);  // the pair before the last save

    // Another game directory is a fresh start.
    const fs::path other = LoadCopy(*game);
    ASSERT_TRUE(SaveGame(*game).ok());
    EXPECT_TRUE(PairIn(other, ".bak") == OldPair);
}

struct Refusal {
    const char* what;
    void (*spoil)(Game&, const fs::path& dir);
    std::string file;                // the file the result names
    std::vector<std::string> words;  // what the reason says
    rlim_t sizeLimit = 0;            // a file size limit cuts the writes off part way, as a quota does
};

TEST_F(Save, RefusesOrFailsWithoutChangingAnyFile)
{
    const std::vector<Refusal> refusals{
        {"read-only players.dat", [](Game&, const fs::path& dir) { MakeReadOnly(dir / "players.dat"); },
         "players.dat", {"the file is read-only"}},
        {"read-only teams.dat", [](Game&, const fs::path& dir) { MakeReadOnly(dir / "teams.dat"); }, "teams.dat",
         {"the file is read-only"}},
        {"read-only folder", [](Game&, const fs::path& dir) { MakeReadOnly(dir); }, "players.dat", {"is read-only"}},
        {"vanished folder", [](Game&, const fs::path& dir) { fs::remove_all(dir); }, "players.dat",
         {"does not exist"}},
        {"comma in a surname", [](Game& g, const fs::path&) { g.Players[2].surname = "Smith, J"; }, "players.dat",
         {"player 2", "surname"}},
        {"surname beginning with a blank", [](Game& g, const fs::path&) { g.Players[1].surname = " Smith"; },
         "players.dat", {"player 1", "surname"}},
        {"team name beginning with a quote", [](Game& g, const fs::path&) { g.Teams[2].teamName = " \"Rovers"; },
         "teams.dat", {"team 2", "team name"}},
        {"bad names in both files: players come first",
         [](Game& g, const fs::path&) { g.Teams[1].teamName = g.Players[3].surname = "A,B"; }, "players.dat",
         {"player 3", "surname"}},
        // Players are written first, so a disk that fills on teams.dat is the
        // case that matters: a new players.dat beside the old teams.dat would no
        // longer match its squads. (Backups kept: straight to the writing.)
        {"disk full on players.dat",
         [](Game& g, const fs::path& dir) { g.BackupsKept = true; FullDiskFor(dir / "players.dat"); }, "players.dat",
         {std::generic_category().message(ENOSPC)}},
        {"disk full on teams.dat",
         [](Game& g, const fs::path& dir) { g.BackupsKept = true; FullDiskFor(dir / "teams.dat"); }, "teams.dat",
         {std::generic_category().message(ENOSPC)}},
        {"write of players.dat cut short", [](Game& g, const fs::path&) { g.BackupsKept = true; }, "players.dat",
         {std::generic_category().message(EFBIG)}, OldPair.second.size() + 1000},
        // A move that fails once the pair is under way puts the old pair back.
        {".bak that cannot be replaced",
         [](Game&, const fs::path& dir) {
             fs::create_directories(dir / "players.dat.bak" / "in");
             ASSERT_TRUE(ReplaceFile((dir / "teams.dat.bak").string(), "earlier").ok());
         },
         "players.dat.bak",
         {"Is a directory", "were put back as they were"}},
    };
    ASSERT_LT(OldPair.second.size() + 1000, OldPair.first.size());
    const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);  // a write over the limit fails instead
    for (const Refusal& refusal : refusals) {
        SCOPED_TRACE(refusal.what);
        auto game = NewGame();
        const fs::path dir = LoadCopy(*game);
        game->Players[1].initials = "Changed";
        game->Teams[1].support = 1;
        refusal.spoil(*game, dir);
        const auto before = Files(dir, false);

        rlimit noLimit{};
        ::getrlimit(RLIMIT_FSIZE, &noLimit);
        rlimit limit{refusal.sizeLimit ? refusal.sizeLimit : noLimit.rlim_cur, noLimit.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        const FileResult result = SaveGame(*game);
        ::setrlimit(RLIMIT_FSIZE, &noLimit);
        EXPECT_EQ(result.path, (dir / refusal.file).string());
        for (const std::string& word : refusal.words)
            EXPECT_NE(result.reason.find(word), std::string::npos) << result.reason;

        // Nothing changed, and no half-written copy is left behind.
        EXPECT_TRUE(Files(dir, true) == before);
    }
    std::signal(SIGXFSZ, oldHandler);
}

}  // namespace
