#include "data/load_report.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#if !defined(_WIN32)
#include <sys/stat.h>
#include <unistd.h>
#endif

#include "data/file_io.h"
#include "data/players_file.h"
#include "data/teams_file.h"
#include "support/file_text.h"
#include "support/scratch_folder.h"

namespace fs = std::filesystem;

namespace {

Lines Player(const std::string& number)
{
    return Cat(Lines{number, "#", "A#", "Name#"}, Lines(17, "1"));
}

Lines Team(const std::string& lineTen = "0")
{
    return Cat(Lines{"0", "Side#", "SID#", "2", "50", "40", "30", "1", "0", lineTen}, Lines(20, "0"));
}

Lines Teams(int count)
{
    Lines lines;
    for (int i = 0; i < count; ++i)
        lines = Cat(std::move(lines), Team());
    return lines;
}

const Lines PlayersEnd(21, "");
const Lines TeamsEnd(20, "");

struct Dropped {
    std::string what;
    std::string file;  // "players.dat" or "teams.dat"
    std::string bytes;
    std::string text;  // what the report says; empty when nothing was dropped
};

TEST(LoadReport, SaysWhatASaveWouldNotWriteBack)
{
    const std::vector<Dropped> cases{
        {"a file as the writer leaves it", "players.dat", Join(Player("1"), Player("2"), PlayersEnd), ""},
        {"numbers that are no number, below 0 or past 2000", "players.dat",
         Join(Player("1"), Player("x"), Player("-1"), Player("2001"), Player("2"), PlayersEnd),
         "players.dat: 3 records without a usable player number (record 2, 3 and 4), 1 of them numbered past 2000"},
        {"1, 2, 5, 3: player 5 is above the count the writer stops at", "players.dat",
         Join(Player("1"), Player("2"), Player("5"), Player("3"), PlayersEnd),
         "players.dat: player 5, numbered above the last player read"},
        {"records after a repeated number", "players.dat", Join(Player("1"), Player("1"), Player("2"), PlayersEnd),
         "players.dat: 21 lines after the record that ends the file"},
        {"500 teams fill the table and the rest are counted", "teams.dat", Join(Teams(503), TeamsEnd),
         "teams.dat: 3 teams after the 500th"},
        {"exactly 500 teams lose nothing", "teams.dat", Join(Teams(500), TeamsEnd), ""},
        {"a team whose line 10 is empty ends the file", "teams.dat", Join(Team(""), Team(), TeamsEnd),
         "teams.dat: 30 lines after the record that ends the file"},
    };
    for (const Dropped& c : cases) {
        auto game = NewGame();
        const LoadReport report = c.file == "players.dat" ? ReadPlayers(*game, c.bytes) : ReadTeams(*game, c.bytes);
        EXPECT_EQ(report.DroppedText(), c.text) << c.what;
        EXPECT_EQ(report.DroppedAny(), !c.text.empty()) << c.what;
        EXPECT_TRUE(report.Read()) << c.what;
    }
}

TEST(LoadReport, LongListsAreCut)
{
    Lines lines;
    for (int i = 0; i < 12; ++i)
        lines = Cat(std::move(lines), Player("?"));
    auto game = NewGame();
    EXPECT_EQ(ReadPlayers(*game, Join(lines, PlayersEnd)).DroppedText(),
              "players.dat: 12 records without a usable player number (record 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, ...)");
}

#if !defined(_WIN32)
// Pipes, devices and permission bits are Unix things.
class ReadFile : public testing::Test {
protected:
    ScratchFolder scratch_;
    const fs::path dir_ = scratch_.Path();
};

// Nothing here may block or read without end: a pipe nobody writes to, a
// device that never ends, a file past the limit.
TEST_F(ReadFile, RefusesWhatIsNoGameFileAndSaysWhy)
{
    ASSERT_TRUE(ReplaceFile((dir_ / "plain").string(), "12\r\n").ok());
    ASSERT_TRUE(ReplaceFile((dir_ / "large").string(), "").ok());
    fs::resize_file(dir_ / "large", MaxFileSize + 1);
    ASSERT_TRUE(ReplaceFile((dir_ / "largest").string(), "").ok());
    fs::resize_file(dir_ / "largest", MaxFileSize);
    ASSERT_EQ(::mkfifo((dir_ / "pipe").c_str(), 0600), 0);
    fs::create_symlink(dir_ / "plain", dir_ / "link");
    fs::create_symlink("/dev/zero", dir_ / "zeros");
    ASSERT_TRUE(ReplaceFile((dir_ / "locked").string(), "x").ok());
    fs::permissions(dir_ / "locked", fs::perms::none);

    const struct {
        std::string name;
        std::string reason;
    } cases[] = {
        {"plain", ""},
        {"link", ""},
        {"largest", ""},
        {"missing", "No such file or directory"},
        {"large", "the file is larger than 16 MB, more than any game makes"},
        {"pipe", "it is not a regular file"},
        {"zeros", "it is not a regular file"},
        {".", "it is a folder, not a file"},
    };
    for (const auto& c : cases) {
        const FileBytes read = ReadFileBytes((dir_ / c.name).string());
        EXPECT_EQ(read.reason, c.reason) << c.name;
        EXPECT_EQ(read.ok(), c.reason.empty()) << c.name;
    }
    EXPECT_EQ(ReadFileBytes((dir_ / "link").string()).bytes, "12\r\n");
    if (::geteuid() != 0) {
        EXPECT_EQ(ReadFileBytes((dir_ / "locked").string()).reason, "Permission denied");
    }

    auto game = NewGame();
    SetGameDirectory(*game, (dir_ / "pipe").string());
    game->PlayersPath = (dir_ / "pipe").string();
    const LoadReport report = ReadPlayersFile(*game);
    EXPECT_EQ(report.failure, "it is not a regular file");
    EXPECT_FALSE(report.Read());
}

#endif

}  // namespace
