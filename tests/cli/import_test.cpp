#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cli_folder.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

// The lines of a CSV file, without their line ends.
std::vector<std::string> CsvLines(const std::string& text)
{
    std::vector<std::string> lines;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = text.find("\r\n", start);
        lines.push_back(text.substr(start, end - start));
        start = end + 2;
    }
    return lines;
}

std::string CsvText(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines)
        text += line + "\r\n";
    return text;
}

// "players.csv:4" for each fault the import lists.
std::vector<std::string> FaultPlaces(const ToolRun& run)
{
    std::vector<std::string> places;
    std::istringstream in(run.err);
    for (std::string line; std::getline(in, line);) {
        if (line.starts_with("players.csv") || line.starts_with("teams.csv"))
            places.push_back(line.substr(0, line.find(": ")));
    }
    return places;
}

// A game of three players, two in team 1, and the CSV files exported from it.
class Import : public CliTest {
protected:
    void SetUp() override
    {
        const Lines players =
            Cat(PlayerRecordLines(1, "Arlow", 1), PlayerRecordLines(2, "Brenick", 1), PlayerRecordLines(3, "Corvane"));
        const Lines teams = Cat(TeamRecordLines("Ashby", 1, {1, 2}), TeamRecordLines("Bexley", 2));
        game_ = GameFolder(PlayersBytes(players), TeamsBytes(teams));
        csv_ = NewFolder("csv");
        ASSERT_EQ(RunTool({"export", game_.string(), csv_.string()}).code, 0);
        players_ = CsvLines(FileBytes(csv_ / "players.csv"));
        teams_ = CsvLines(FileBytes(csv_ / "teams.csv"));
        playersDat_ = FileBytes(game_ / "players.dat");
        teamsDat_ = FileBytes(game_ / "teams.dat");
    }

    ToolRun ImportEdited(const std::vector<std::string>& players, const std::vector<std::string>& teams,
                         const std::string& option = "--")
    {
        WriteBytes(csv_ / "players.csv", CsvText(players));
        WriteBytes(csv_ / "teams.csv", CsvText(teams));
        return RunTool({"import", option, game_.string(), csv_.string()});
    }

    void ExpectGameUntouched() const
    {
        EXPECT_EQ(FileBytes(game_ / "players.dat"), playersDat_);
        EXPECT_EQ(FileBytes(game_ / "teams.dat"), teamsDat_);
        EXPECT_FALSE(fs::exists(game_ / "players.dat.bak"));
    }

    // `row` with cell `column` (from 0) replaced.
    static std::string WithCell(std::string row, int column, const std::string& cell)
    {
        std::size_t start = 0;
        for (int i = 0; i < column; ++i)
            start = row.find(',', start) + 1;
        row.replace(start, row.find(',', start) - start, cell);
        return row;
    }

    fs::path game_;
    fs::path csv_;
    std::vector<std::string> players_;
    std::vector<std::string> teams_;
    std::string playersDat_;
    std::string teamsDat_;
};

// Columns of players.csv and teams.csv.
constexpr int SurnameColumn = 2;
constexpr int BatSkillColumn = 13;
constexpr int ReputationColumn = 5;
constexpr int Squad1Column = 8;

TEST_F(Import, OneWrongRowRefusesTheWholeImport)
{
    auto players = players_;
    players[1] = WithCell(players[1], BatSkillColumn, "55");  // a good edit that must not land either
    players[2] = WithCell(players[2], BatSkillColumn, "40000");
    const ToolRun run = ImportEdited(players, teams_);
    EXPECT_EQ(run.code, 1);
    EXPECT_THAT(FaultPlaces(run), ElementsAre("players.csv:3"));
    EXPECT_THAT(run.err, HasSubstr("batSkill \"40000\""));
    EXPECT_THAT(run.out, IsEmpty());
    ExpectGameUntouched();
}

TEST_F(Import, EveryWrongRowIsListedByItsLine)
{
    auto players = players_;
    players[1] = WithCell(players[1], SurnameColumn, "\"Ar,low\"");
    players[2] = WithCell(players[2], BatSkillColumn, "4.5");
    players[3] = WithCell(players[3], SurnameColumn, "\xFF\xFE");  // no UTF-8
    players.push_back(WithCell(players_[3], 0, "7"));               // skips number 4
    players.push_back(WithCell(players_[3], 0, "2001"));            // beyond the table
    players.push_back("9,too,few");
    auto teams = teams_;
    teams[2] = WithCell(teams[2], ReputationColumn, "x");
    teams.push_back(WithCell(teams_[2], 0, "501"));
    const ToolRun run = ImportEdited(players, teams);
    EXPECT_EQ(run.code, 1);
    EXPECT_THAT(FaultPlaces(run), ElementsAre("players.csv:2", "players.csv:3", "players.csv:4", "players.csv:5",
                                              "players.csv:6", "players.csv:7", "teams.csv:3", "teams.csv:4"))
        << run.err;
    EXPECT_THAT(run.err, HasSubstr("nothing was changed (8 faults)"));
    ExpectGameUntouched();
}

TEST_F(Import, HeadersAndSquadsTheFilesCannotTakeAreRefused)
{
    auto unknownColumn = players_;
    unknownColumn[0] += ",shoeSize";
    for (std::size_t i = 1; i < unknownColumn.size(); ++i)
        unknownColumn[i] += ",44";
    EXPECT_THAT(FaultPlaces(ImportEdited(unknownColumn, teams_)), ElementsAre("players.csv:1"));

    auto bigSquad = teams_;
    bigSquad[0] += ",squad21";
    bigSquad[1] += ",3";
    bigSquad[2] += ",0";
    EXPECT_THAT(FaultPlaces(ImportEdited(players_, bigSquad)), ElementsAre("teams.csv:2"));

    // Player 1 put into team 2 without leaving team 1.
    auto twice = teams_;
    twice[2] = WithCell(twice[2], Squad1Column, "1");
    const ToolRun run = ImportEdited(players_, twice);
    EXPECT_THAT(FaultPlaces(run), ElementsAre("teams.csv:2", "teams.csv:3")) << run.err;
    EXPECT_THAT(run.err, HasSubstr("also stands in the squad of team 1"));
    ExpectGameUntouched();
}

TEST_F(Import, DryRunListsTheChangesAndSavesNothing)
{
    auto players = players_;
    players[2] = WithCell(players[2], SurnameColumn, "Brenwick");
    const ToolRun run = ImportEdited(players, teams_, "--dry-run");
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(run.out, "player 2 (R J Brenwick): surname \"Brenick\" -> \"Brenwick\"\n"
                       "Dry run: nothing was saved (1 changes).\n");
    ExpectGameUntouched();
}

TEST_F(Import, NewPlayersTakeTheNextNumbersAndFollowTheirSquads)
{
    auto players = players_;
    players.push_back(WithCell(WithCell(players_[3], 0, ""), SurnameColumn, "Dunmore"));
    players.push_back(WithCell(WithCell(players_[3], 0, "5"), SurnameColumn, "Elkin"));
    // Team 1 goes from 1, 2 to 1, 4; team 2 from nobody to 3, 2.
    auto teams = teams_;
    teams[1] = WithCell(teams[1], Squad1Column + 1, "4");
    teams[2] = WithCell(WithCell(teams[2], Squad1Column, "3"), Squad1Column + 1, "2");
    const ToolRun run = ImportEdited(players, teams);
    ASSERT_EQ(run.code, 0) << run.err;
    EXPECT_THAT(run.out, HasSubstr("player 4 (R J Dunmore) added\n"));
    EXPECT_THAT(run.out, HasSubstr("player 5 (R J Elkin) added\n"));
    EXPECT_THAT(run.out, HasSubstr("player 2 (R J Brenick): teamNumber 1 -> 2\n"));
    EXPECT_THAT(run.out, HasSubstr("player 2 (R J Brenick) moved from team 1 (Ashby) to team 2 (Bexley)\n"));
    EXPECT_THAT(run.out, HasSubstr("player 3 (R J Corvane): teamNumber 0 -> 2\n"));
    EXPECT_THAT(run.out, HasSubstr("player 4 (R J Dunmore) joined team 1 (Ashby)\n"));

    EXPECT_EQ(FileBytes(game_ / "players.dat.bak"), playersDat_);
    EXPECT_EQ(FileBytes(game_ / "teams.dat.bak"), teamsDat_);
    EXPECT_EQ(RunTool({"check", game_.string()}).out, "0 errors, 0 warnings\n");
    EXPECT_THAT(RunTool({"info", game_.string()}).out, HasSubstr("PlayerCount=5\nTeamCount=4\n"));
}

}  // namespace
