#include "data/save.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "data/players_file.h"
#include "data/teams_file.h"
#include "file_text.h"

namespace fs = std::filesystem;

namespace {

std::string Bytes(const fs::path& path)
{
    return ReadWholeFile(path.string()).value_or("<missing>");
}

const std::string OldPlayers = Bytes(KOLTA_FIXTURES "/small_game/players.dat");
const std::string OldTeams = Bytes(KOLTA_FIXTURES "/small_game/teams.dat");

void MakeReadOnly(const fs::path& path)
{
    fs::permissions(path, fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
                    fs::perm_options::remove);
}

class Save : public testing::Test {
protected:
    void TearDown() override
    {
        for (const fs::path& dir : made_) {
            std::error_code ignored;
            fs::permissions(dir, fs::perms::owner_all, ignored);
            fs::remove_all(dir, ignored);
        }
    }

    // A copy of a small game in a folder of its own, loaded into `game`.
    fs::path LoadCopy(Game& game)
    {
        const fs::path dir = fs::temp_directory_path() /
                             ("kolta-" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()) +
                              "-" + std::to_string(std::random_device{}()));
        fs::create_directories(dir);
        fs::copy(KOLTA_FIXTURES "/small_game", dir);
        made_.push_back(dir);
        SetGameDirectory(game, dir.string());
        EXPECT_TRUE(ReadPlayersFile(game));
        EXPECT_TRUE(ReadTeamsFile(game));
        return dir;
    }

    std::vector<fs::path> made_;
};

TEST_F(Save, WritesAnUnchangedGameByteForByteAndKeepsTheOldFilesOnlyAtTheFirstSave)
{
    auto game = NewGame();
    const fs::path dir = LoadCopy(*game);
    ASSERT_TRUE(SaveGame(*game).ok());
    EXPECT_EQ(Bytes(dir / "players.dat"), OldPlayers);
    EXPECT_EQ(Bytes(dir / "teams.dat"), OldTeams);
    game->Players[1].surname = "First";
    ASSERT_TRUE(SaveGame(*game).ok());
    game->Players[2].surname = "O\"Brien";  // a quote inside a name is stored as it is
    game->Teams[2].wealth = 12;
    ASSERT_TRUE(SaveGame(*game).ok());
    EXPECT_EQ(Bytes(dir / "players.dat"), WritePlayers(*game));
    EXPECT_EQ(Bytes(dir / "teams.dat"), WriteTeams(*game));
    EXPECT_EQ(Bytes(dir / "players.dat.bak"), OldPlayers);
    EXPECT_EQ(Bytes(dir / "teams.dat.bak"), OldTeams);

    // Another game directory is a fresh start.
    const fs::path other = LoadCopy(*game);
    ASSERT_TRUE(SaveGame(*game).ok());
    EXPECT_EQ(Bytes(other / "players.dat.bak"), OldPlayers);
}

struct Refusal {
    const char* what;
    void (*spoil)(Game&, const fs::path& dir);
    const char* file;                // the file the result names
    std::vector<std::string> words;  // what the reason says
};

TEST_F(Save, RefusesBeforeEitherFileIsTouched)
{
    const Refusal refusals[] = {
        {"read-only players.dat", [](Game&, const fs::path& dir) { MakeReadOnly(dir / "players.dat"); },
         "players.dat", {"the file is read-only"}},
        {"read-only teams.dat", [](Game&, const fs::path& dir) { MakeReadOnly(dir / "teams.dat"); }, "teams.dat",
         {"the file is read-only"}},
#if !defined(_WIN32)
        {"read-only folder", [](Game&, const fs::path& dir) { MakeReadOnly(dir); }, "players.dat", {"is read-only"}},
#endif
        {"vanished folder", [](Game&, const fs::path& dir) { fs::remove_all(dir); }, "players.dat",
         {"does not exist"}},
        {"comma in a surname", [](Game& g, const fs::path&) { g.Players[2].surname = "Smith, J"; }, "players.dat",
         {"player 2", "surname"}},
        {"line break in initials", [](Game& g, const fs::path&) { g.Players[3].initials = "A\r\nB"; },
         "players.dat", {"player 3", "initials"}},
        {"surname beginning with a blank", [](Game& g, const fs::path&) { g.Players[1].surname = " Smith"; },
         "players.dat", {"player 1", "surname"}},
        {"team name beginning with a quote", [](Game& g, const fs::path&) { g.Teams[2].teamName = " \"Rovers"; },
         "teams.dat", {"team 2", "team name"}},
        {"comma in an abbreviation", [](Game& g, const fs::path&) { g.Teams[1].abbreviation = "A,B"; }, "teams.dat",
         {"team 1", "abbreviation"}},
        {"bad names in both files: players come first",
         [](Game& g, const fs::path&) { g.Teams[1].teamName = g.Players[3].surname = "A,B"; }, "players.dat",
         {"player 3", "surname"}},
    };
    for (const Refusal& refusal : refusals) {
        SCOPED_TRACE(refusal.what);
        auto game = NewGame();
        const fs::path dir = LoadCopy(*game);
        game->Players[1].initials = "Changed";
        game->Teams[1].support = 1;
        refusal.spoil(*game, dir);
        const FileResult result = SaveGame(*game);
        EXPECT_EQ(result.path, (dir / refusal.file).string());
        for (const std::string& word : refusal.words)
            EXPECT_NE(result.reason.find(word), std::string::npos) << result.reason;

        if (!fs::exists(dir))
            continue;  // a vanished folder is not made again
        EXPECT_EQ(Bytes(dir / "players.dat"), OldPlayers);
        EXPECT_EQ(Bytes(dir / "teams.dat"), OldTeams);
        for (const auto& entry : fs::directory_iterator(dir)) {
            const std::string name = entry.path().filename().string();
            EXPECT_TRUE(name == "players.dat" || name == "teams.dat") << "left behind: " << name;
        }
    }
}

TEST_F(Save, ReadersSayWhetherTheFileCouldBeOpened)
{
    auto game = NewGame();
    const fs::path dir = LoadCopy(*game);
    EXPECT_EQ(game->PlayerCount, 3);
    EXPECT_EQ(game->TeamCount, 4);
    EXPECT_EQ(game->Players[2].surname, "Fr\xE9lington");

    // A missing players.dat leaves the players as they were; a missing
    // teams.dat reads as an empty one.
    SetGameDirectory(*game, (dir / "missing").string());
    EXPECT_FALSE(ReadPlayersFile(*game));
    EXPECT_FALSE(ReadTeamsFile(*game));
    EXPECT_EQ(game->Players[2].surname, "Fr\xE9lington");
    EXPECT_EQ(game->PlayerCount, 3);
    EXPECT_EQ(game->TeamCount, 2);
    fs::create_directories(dir / "missing" / "players.dat");
    EXPECT_FALSE(ReadPlayersFile(*game));
}

}  // namespace
