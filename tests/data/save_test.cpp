#include "data/save.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <string>

#include "data/players_file.h"
#include "data/teams_file.h"
#include "file_text.h"

namespace fs = std::filesystem;

namespace {

std::string Bytes(const fs::path& path)
{
    return ReadWholeFile(path.string()).value_or("<missing>");
}

// Each test saves into its own copy of a small game.
class Save : public testing::Test {
protected:
    void SetUp() override
    {
        dir_ = MakeGameCopy();
        SetGameDirectory(*game_, dir_.string());
        ASSERT_TRUE(ReadPlayersFile(*game_));
        ASSERT_TRUE(ReadTeamsFile(*game_));
        players_ = Bytes(Players());
        teams_ = Bytes(Teams());
    }

    void TearDown() override
    {
        for (const fs::path& dir : made_) {
            std::error_code ignored;
            fs::permissions(dir, fs::perms::owner_all, ignored);
            fs::remove_all(dir, ignored);
        }
    }

    fs::path MakeGameCopy()
    {
        const auto* test = testing::UnitTest::GetInstance()->current_test_info();
        const fs::path dir = fs::temp_directory_path() /
                             ("kolta-" + std::string(test->name()) + "-" + std::to_string(std::random_device{}()));
        fs::create_directories(dir);
        fs::copy(KOLTA_FIXTURES "/small_game", dir);
        made_.push_back(dir);
        return dir;
    }

    fs::path Players() const { return dir_ / "players.dat"; }
    fs::path Teams() const { return dir_ / "teams.dat"; }

    void ExpectFilesUntouched() const
    {
        EXPECT_EQ(Bytes(Players()), players_);
        EXPECT_EQ(Bytes(Teams()), teams_);
        for (const auto& entry : fs::directory_iterator(dir_)) {
            const std::string name = entry.path().filename().string();
            EXPECT_TRUE(name == "players.dat" || name == "teams.dat") << "left behind: " << name;
        }
    }

    std::unique_ptr<Game> game_ = NewGame();
    fs::path dir_;
    std::string players_;
    std::string teams_;
    std::vector<fs::path> made_;
};

TEST_F(Save, AnUnchangedGameComesBackByteForByte)
{
    ASSERT_TRUE(SaveGame(*game_).ok());
    EXPECT_EQ(Bytes(Players()), players_);
    EXPECT_EQ(Bytes(Teams()), teams_);
}

TEST_F(Save, KeepsTheOldFilesOnlyAtTheFirstSaveIntoADirectory)
{
    game_->Players[1].surname = "First";
    ASSERT_TRUE(SaveGame(*game_).ok());
    EXPECT_EQ(Bytes(Players()), WritePlayers(*game_));
    game_->Players[1].surname = "Second";
    game_->Teams[2].wealth = 12;
    ASSERT_TRUE(SaveGame(*game_).ok());

    EXPECT_EQ(Bytes(Players()), WritePlayers(*game_));
    EXPECT_EQ(Bytes(Teams()), WriteTeams(*game_));
    EXPECT_EQ(Bytes(dir_.string() + "/players.dat.bak"), players_);
    EXPECT_EQ(Bytes(dir_.string() + "/teams.dat.bak"), teams_);

    // Another game directory is a fresh start.
    const fs::path other = MakeGameCopy();
    const std::string otherPlayers = Bytes(other / "players.dat");
    SetGameDirectory(*game_, other.string());
    ASSERT_TRUE(SaveGame(*game_).ok());
    EXPECT_EQ(Bytes(other / "players.dat.bak"), otherPlayers);
}

TEST_F(Save, AReadOnlyFileStopsTheSaveBeforeEitherFileIsTouched)
{
    for (const bool teamsReadOnly : {false, true}) {
        const fs::path locked = teamsReadOnly ? Teams() : Players();
        fs::permissions(locked, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
        game_->Players[1].surname = "Changed";
        game_->Teams[1].teamName = "Changed";

        const FileResult result = SaveGame(*game_);
        EXPECT_FALSE(result.ok());
        EXPECT_EQ(result.path, locked.string());
        EXPECT_EQ(result.reason, "the file is read-only");
        ExpectFilesUntouched();
        fs::permissions(locked, fs::perms::owner_write, fs::perm_options::add);
    }
}

#if !defined(_WIN32)
TEST_F(Save, AReadOnlyFolderStopsTheSave)
{
    fs::permissions(dir_, fs::perms::owner_read | fs::perms::owner_exec);
    game_->Players[1].surname = "Changed";
    const FileResult result = SaveGame(*game_);
    fs::permissions(dir_, fs::perms::owner_all);
    EXPECT_EQ(result.path, Players().string());
    EXPECT_NE(result.reason.find("is read-only"), std::string::npos) << result.reason;
    ExpectFilesUntouched();
}
#endif

TEST_F(Save, AVanishedFolderIsReportedAndNotMadeAgain)
{
    fs::remove_all(dir_);
    const FileResult result = SaveGame(*game_);
    EXPECT_EQ(result.path, Players().string());
    EXPECT_NE(result.reason.find("does not exist"), std::string::npos) << result.reason;
    EXPECT_FALSE(fs::exists(dir_));
}

// A write that fails on the way, after the checks: the temporary file cannot
// be made because a folder stands in its place.
TEST_F(Save, AFailedWriteLeavesBothFilesWhole)
{
    fs::create_directory(dir_ / "players.dat.saving");
    game_->Players[1].surname = "Changed";
    game_->Teams[1].teamName = "Changed";
    const FileResult players = SaveGame(*game_);
    EXPECT_EQ(players.path, Players().string());
    EXPECT_FALSE(players.reason.empty());
    EXPECT_EQ(Bytes(Players()), players_);
    EXPECT_EQ(Bytes(Teams()), teams_);

    fs::remove_all(dir_ / "players.dat.saving");
    fs::create_directory(dir_ / "teams.dat.saving");
    const FileResult teams = SaveGame(*game_);
    EXPECT_EQ(teams.path, Teams().string());
    EXPECT_EQ(Bytes(Players()), players_);
    EXPECT_EQ(Bytes(Teams()), teams_);
}

TEST_F(Save, ANameTheFilesCannotHoldStopsTheSaveAndIsNamed)
{
    struct Case {
        void (*spoil)(Game&);
        bool inTeams;
        const char* record;
        const char* field;
    };
    const Case cases[] = {
        {[](Game& g) { g.Players[2].surname = "Smith, J"; }, false, "player 2", "surname"},
        {[](Game& g) { g.Players[3].initials = "A\r\nB"; }, false, "player 3", "initials"},
        {[](Game& g) { g.Teams[2].teamName = " \"Rovers"; }, true, "team 2", "team name"},
        {[](Game& g) { g.Players[1].surname = " Smith"; }, false, "player 1", "surname"},
        {[](Game& g) { g.Teams[1].abbreviation = "A,B"; }, true, "team 1", "abbreviation"},
    };
    for (const Case& c : cases) {
        auto game = NewGame();
        SetGameDirectory(*game, dir_.string());
        ReadPlayersFile(*game);
        ReadTeamsFile(*game);
        c.spoil(*game);
        const FileResult result = SaveGame(*game);
        EXPECT_EQ(result.path, c.inTeams ? Teams().string() : Players().string());
        EXPECT_NE(result.reason.find(c.record), std::string::npos) << result.reason;
        EXPECT_NE(result.reason.find(c.field), std::string::npos) << result.reason;
        ExpectFilesUntouched();
    }
    // A double quote further inside a name reads back as it was written.
    game_->Players[2].surname = "O\"Brien";
    ASSERT_TRUE(SaveGame(*game_).ok());
    auto reread = NewGame();
    SetGameDirectory(*reread, dir_.string());
    ReadPlayersFile(*reread);
    EXPECT_EQ(reread->Players[2].surname, "O\"Brien");
}

TEST_F(Save, ReadersSayWhetherTheFileCouldBeOpened)
{
    auto game = NewGame();
    SetGameDirectory(*game, (dir_ / "missing").string());
    game->Players[1].surname = "Kept";
    EXPECT_FALSE(ReadPlayersFile(*game));
    EXPECT_FALSE(ReadTeamsFile(*game));
    EXPECT_EQ(game->Players[1].surname, "Kept");
    EXPECT_EQ(game->PlayerCount, 0);
    fs::create_directories(dir_ / "missing" / "players.dat");
    EXPECT_FALSE(ReadPlayersFile(*game));

    EXPECT_EQ(game_->PlayerCount, 3);
    EXPECT_EQ(game_->TeamCount, 4);
    EXPECT_EQ(game_->Players[2].surname, "Fr\xE9lington");
}

}  // namespace
