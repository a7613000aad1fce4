#include <functional>
#include <set>
#include <tuple>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cli_folder.h"

using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class ExportImport : public CliTest {
protected:
    // A copy of `game` in which every name and number of every record differs, squads included.
    fs::path ScrambledCopy(const fs::path& game)
    {
        // Lines of each record left alone: numbers and lines the load drops.
        const auto scramble = [](const std::string& bytes, std::size_t recordLines, std::set<std::size_t> kept) {
            Lines lines = SplitLines(bytes);
            for (std::size_t i = 0; i < lines.size(); ++i) {
                if (!lines[i].empty() && !kept.contains(i % recordLines))
                    lines[i] = std::isdigit(lines[i].back()) ? std::to_string(std::stoi(lines[i]) + 1) : "Q" + lines[i];
            }
            return Join(lines);
        };
        return GameFolder(scramble(Bytes(game / "players.dat"), 21, {0, 1}),
                          scramble(Bytes(game / "teams.dat"), 30, {0, 7, 8, 9}));
    }

    // Imports the export of `game` into a scrambled copy of it, which must come out byte for byte the same.
    void ExpectRoundTrip(const fs::path& game, const fs::path& csv)
    {
        const fs::path into = ScrambledCopy(game);
        const FilePair scrambled = PairIn(into);
        const ToolRun imported = RunTool({"import", into, csv});
        ASSERT_EQ(imported.code, 0) << imported.err;
        EXPECT_EQ(PairIn(into), PairIn(game));
        EXPECT_EQ(PairIn(into, ".bak"), scrambled);
    }
};

TEST_F(ExportImport, TheSampleAndWindowsNamesComeBackByteForByte)
{
    const fs::path sample = SampleCopy();
    const fs::path sampleCsv = Export(sample);
    const ToolRun unchanged = RunTool({"import", sample, sampleCsv});
    EXPECT_EQ(unchanged.code, 0);
    EXPECT_EQ(unchanged.out, "Nothing to change.\n");
    EXPECT_FALSE(fs::exists(sample / "players.dat.bak"));
    ExpectRoundTrip(sample, sampleCsv);

    // é, a no-break space, € and †, the undefined 0x81, Ÿ, a double quote and
    // a "#" inside a name, a blank at the end of a surname, no initials.
    const Lines players = Cat(Edit(PlayerRecordLines(1, "Ch\xE9ron\xA0\x80\x86", 1), {{InitialsLine, "\x81\x9F#"}}),
                              Edit(PlayerRecordLines(2, "Mac\"Dee#Two ", 1), {{InitialsLine, "#"}}),
                              PlayerRecordLines(3, "O'Rourke"));
    const Lines teams = Edit(TeamRecordLines("Z\xFCrich Zebras", 1, {1, 2}), {{AbbreviationLine, "Z\xDF#"}, {ReputationLine, "-7"}});
    const fs::path game = GameOf(players, teams);
    const fs::path csv = Export(game);
    const std::string playersCsv = Bytes(csv / "players.csv");
    EXPECT_THAT(playersCsv, HasSubstr("1,\xC2\x81\xC5\xB8,Ch\xC3\xA9ron\xC2\xA0\xE2\x82\xAC\xE2\x80\xA0,"));
    EXPECT_THAT(playersCsv, HasSubstr("2,,\"Mac\"\"Dee#Two \","));
    EXPECT_THAT(Bytes(csv / "teams.csv"), HasSubstr("1,Z\xC3\xBCrich Zebras,Z\xC3\x9F,2,England,-7,"));
    ExpectRoundTrip(game, csv);
}

// Columns of players.csv and teams.csv.
constexpr int SurnameColumn = 2;
constexpr int HomeCountryNameColumn = 7;
constexpr int BatSkillColumn = 13;
constexpr int ReputationColumn = 5;
constexpr int Squad1Column = 8;

// Cell `column` (from 0) of `row` set to `cell`.
std::string& Set(std::string& row, int column, const std::string& cell)
{
    std::size_t start = 0;
    for (int i = 0; i < column; ++i)
        start = row.find(',', start) + 1;
    return row.replace(start, row.find(',', start) - start, cell);
}

// A copy of row `from` added after the last, numbered `number`.
std::string& AddRow(Lines& rows, std::size_t from, const std::string& number)
{
    rows.push_back(rows[from]);
    return Set(rows.back(), 0, number);
}

// A game of three players, two in team 1, and the rows of the CSV files exported from it.
class Import : public CliTest {
protected:
    using Edit = std::function<void(Lines& players, Lines& teams)>;

    void SetUp() override
    {
        game_ = GameOf(Players({1, 1, 0}), Cat(TeamRecordLines("Ashby", 1, {1, 2}), TeamRecordLines("Bexley", 2)));
        csv_ = Export(game_);
        exported_ = {SplitLines(Bytes(csv_ / "players.csv")), SplitLines(Bytes(csv_ / "teams.csv"))};
        dat_ = PairIn(game_);
    }

    // Imports the exported rows once `edit` has changed them.
    ToolRun ImportEdited(const Edit& edit, const std::string& option = "--")
    {
        auto [players, teams] = exported_;
        edit(players, teams);
        WriteBytes(csv_ / "players.csv", Join(players));
        WriteBytes(csv_ / "teams.csv", Join(teams));
        return RunTool({"import", option, game_, csv_});
    }

    void ExpectGameUntouched() const
    {
        EXPECT_EQ(PairIn(game_), dat_);
        EXPECT_FALSE(fs::exists(game_ / "players.dat.bak"));
    }

    fs::path game_;
    fs::path csv_;
    std::pair<Lines, Lines> exported_;
    FilePair dat_;
};

TEST_F(Import, AnyWrongRowRefusesTheWholeImportAndIsListedByItsLine)
{
    // How the rows are spoilt, the rows listed as faulty, and what is said.
    const std::tuple<Edit, std::vector<std::string>, std::string> cases[] = {
        // The good edit of row 2 must not land either.
        {[](Lines& p, Lines&) { Set(p[1], BatSkillColumn, "55"); Set(p[2], BatSkillColumn, "40000"); },
         {"players.csv:3"}, "batSkill \"40000\""},
        {[](Lines& p, Lines&) { Set(p[1], BatSkillColumn, "+-5"); }, {"players.csv:2"}, "batSkill \"+-5\""},
        {[](Lines& p, Lines&) { Set(p[1], SurnameColumn, "Tab\tHere"); }, {"players.csv:2"}, "control character"},
        // "A" written in two bytes, which UTF-8 forbids.
        {[](Lines& p, Lines&) { Set(p[1], SurnameColumn, "\xC1\x81rlow"); }, {"players.csv:2"}, "is not UTF-8 text"},
        {[](Lines& p, Lines&) { Set(p[2], SurnameColumn, "\"Ar\"low"); }, {"players.csv:3"},
         "text after the closing double quote"},
        // The word changed without its number: player 1 stays English.
        {[](Lines& p, Lines&) { Set(p[1], HomeCountryNameColumn, "Australia"); }, {"players.csv:2"},
         "homeCountryName \"Australia\" does not match homeCountry 2 (England)"},
        {[](Lines& p, Lines& t) {
             AddRow(p, 3, "7");  // skips number 4
             AddRow(p, 3, "2001");
             p.push_back("9,too,few");
             Set(p[1], SurnameColumn, "\"Ar,low\"");
             Set(p[2], BatSkillColumn, "4.5");
             Set(p[3], SurnameColumn, "\xFF\xFE");  // no UTF-8
             AddRow(t, 2, "501");
             Set(t[2], ReputationColumn, "x");
         },
         {"players.csv:2", "players.csv:3", "players.csv:4", "players.csv:5", "players.csv:6", "players.csv:7",
          "teams.csv:3", "teams.csv:4"},
         "nothing was changed (8 faults)"},
        // Player 1 put into team 2 without leaving team 1.
        {[](Lines&, Lines& t) { Set(t[2], Squad1Column, "1"); }, {"teams.csv:2", "teams.csv:3"},
         "also stands in the squad of team 1"},
    };
    for (const auto& [edit, listed, says] : cases) {
        SCOPED_TRACE(says);
        const ToolRun run = ImportEdited(edit);
        EXPECT_EQ(run.code, 1);
        std::vector<std::string> places;  // "players.csv:4" for each fault listed
        for (const std::string& line : SplitLines(run.err)) {
            if (line.find(".csv:") != std::string::npos)
                places.push_back(line.substr(0, line.find(": ")));
        }
        EXPECT_THAT(places, ElementsAreArray(listed)) << run.err;
        EXPECT_THAT(run.err, HasSubstr(says));
        EXPECT_THAT(run.out, IsEmpty());
        ExpectGameUntouched();
    }
}

TEST_F(Import, NewPlayersTakeTheNextNumbersAndFollowTheirSquads)
{
    const Edit edit = [](Lines& p, Lines& t) {
        Set(AddRow(p, 3, ""), SurnameColumn, "Dunmore");
        Set(AddRow(p, 3, "5"), SurnameColumn, "Elkin");
        // Team 1 goes from 1, 2 to 1, 4; team 2 from nobody to 3, 2.
        Set(t[1], Squad1Column + 1, "4");
        Set(t[2], Squad1Column, "3");
        Set(t[2], Squad1Column + 1, "2");
    };
    const ToolRun dry = ImportEdited(edit, "--dry-run");
    EXPECT_THAT(dry.out, HasSubstr("player 4 (R J Dunmore) added\n"));
    ExpectGameUntouched();
    const ToolRun run = ImportEdited(edit);
    ASSERT_EQ(run.code, 0) << run.err;
    for (const char* line : {"player 4 (R J Dunmore) added\n", "player 5 (R J Elkin) added\n",
                             "player 2 (R J Brenick): teamNumber 1 -> 2\n",
                             "player 2 (R J Brenick) moved from team 1 (Ashby) to team 2 (Bexley)\n",
                             "player 3 (R J Corvane): teamNumber 0 -> 2\n",
                             "player 4 (R J Dunmore) joined team 1 (Ashby)\n"})
        EXPECT_THAT(run.out, HasSubstr(line));
    EXPECT_EQ(Bytes(game_ / "teams.dat.bak"), dat_.second);
    EXPECT_EQ(RunTool({"check", game_}).out, "0 errors, 0 warnings\n");
    EXPECT_THAT(RunTool({"info", game_}).out, HasSubstr("PlayerCount=5\nTeamCount=4\n"));
}

}  // namespace
