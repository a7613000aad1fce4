#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cli_folder.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAreArray;

namespace {

// "teams.dat: 2: squad1: error" for each problem line: where and how bad,
// without the wording.
std::vector<std::string> Findings(const ToolRun& run)
{
    std::vector<std::string> found;
    for (const std::string& line : run.OutLines()) {
        for (const char* severity : {": error", ": warning"}) {
            if (const auto at = line.find(severity); at != std::string::npos) {
                found.push_back(line.substr(0, at + std::string(severity).size()));
                break;
            }
        }
    }
    return found;
}

class Check : public CliTest {
protected:
    ToolRun CheckGame(const Lines& players, const Lines& teams)
    {
        return RunTool({"check", GameFolder(PlayersBytes(players), TeamsBytes(teams)).string()});
    }
};

TEST_F(Check, SampleGameHasNoProblem)
{
    const ToolRun run = RunTool({"check", KOLTA_SAMPLE});
    EXPECT_EQ(run.code, 0);
    EXPECT_EQ(run.out, "0 errors, 0 warnings\n");
}

TEST_F(Check, SquadsThatNameAPlayerTwiceOrNoPlayerAreErrors)
{
    const Lines players = Cat(PlayerRecordLines(1, "Arlow", 1), PlayerRecordLines(2, "Brenick", 1),
                              PlayerRecordLines(3, "Corvane", 2));
    const Lines teams = Cat(TeamRecordLines("Ashby", 1, {1, 2, 1}), TeamRecordLines("Bexley", 2, {3, 2, 4}),
                            TeamRecordLines("Crane", 3, {-1}));
    const ToolRun run = CheckGame(players, teams);
    EXPECT_EQ(run.code, 1);
    EXPECT_THAT(Findings(run), UnorderedElementsAreArray<std::string>({
                                   "teams.dat: 1: squad1: error",  // player 1 twice in team 1
                                   "teams.dat: 1: squad2: error",  // player 2 also in team 2
                                   "teams.dat: 2: squad2: error",  // ... and the other side
                                   "teams.dat: 2: squad3: error",  // no player 4
                                   "teams.dat: 3: squad1: error",  // -1
                               }))
        << run.out;
}

TEST_F(Check, FilesTheLoadMisreadsAreErrors)
{
    struct Case {
        const char* what;
        Lines players;
        Lines teams;
        std::vector<std::string> findings;
    };
    const Lines team = TeamRecordLines("Ashby", 1);
    const std::vector<Case> cases{
        {"two records in a row with one number end the load",
         Cat(PlayerRecordLines(1), PlayerRecordLines(2), PlayerRecordLines(2), PlayerRecordLines(3)), team,
         {"players.dat: 2: playerNumber: error"}},
        {"a number read again later replaces the first record",
         Cat(PlayerRecordLines(1), PlayerRecordLines(2), PlayerRecordLines(1), PlayerRecordLines(3)), team,
         {"players.dat: 1: playerNumber: error"}},
        {"a last number below an earlier one cuts the save short",
         Cat(PlayerRecordLines(1), PlayerRecordLines(3), PlayerRecordLines(2)), team,
         {"players.dat: 2: playerNumber: error"}},
        {"a number with no slot is passed over",
         Cat(PlayerRecordLines(1), PlayerRecordLines(2001), PlayerRecordLines(2)), team,
         {"players.dat: 2: playerNumber: error"}},
        {"two teams with one number", PlayerRecordLines(1),
         Cat(team, TeamRecordLines("Bexley", 1)), {"teams.dat: 2: teamNumber: error"}},
        {"a comma splits a surname", PlayerRecordLines(1, "Ard,en"), team,
         {"players.dat: 1: surname: error", "players.dat: 1: birthDay: error"}},
        {"a team name opening with a double quote", PlayerRecordLines(1),
         With(team, TeamNameLine, "\"Ashby#"), {"teams.dat: 1: teamName: error", "teams.dat: 1: line 10: error"}},
        {"a number line that is no number", With(PlayerRecordLines(1), BatSkillLine, "high"),
         With(team, ReputationLine, "40000"),
         {"players.dat: 1: batSkill: error", "teams.dat: 1: reputation: error"}},
        {"a squad of 21 runs into the next team", PlayerRecordLines(1),
         Cat(team, Lines{"1"}, TeamRecordLines("Bexley", 2)),
         {"teams.dat: 1: squad: error", "teams.dat: 2: homeCountry: error"}},
    };
    for (const Case& c : cases) {
        const ToolRun run = CheckGame(c.players, c.teams);
        EXPECT_EQ(run.code, 1) << c.what;
        EXPECT_THAT(Findings(run), UnorderedElementsAreArray(c.findings)) << c.what << "\n" << run.out;
    }
}

TEST_F(Check, RecordsPastTheEndSignAreErrors)
{
    const Lines player = PlayerRecordLines(1);
    const Lines team = TeamRecordLines("Ashby", 1);
    // A stray empty line ends the load early in either file.
    const fs::path dir = GameFolder(Join(Cat(player, EmptyLines(1), PlayerRecordLines(2), EmptyLines(21))),
                                    Join(Cat(team, EmptyLines(20), Lines{"4"})));
    const ToolRun run = RunTool({"check", dir.string()});
    EXPECT_EQ(run.code, 1);
    EXPECT_THAT(Findings(run), ElementsAre("players.dat: 1: end of file: error", "teams.dat: 1: end of file: error"))
        << run.out;
}

TEST_F(Check, MoreRecordsThanTheTablesHoldAreErrors)
{
    Lines players;
    for (int number = 1; number <= 2001; ++number)
        players = Cat(players, PlayerRecordLines(number));
    Lines teams;
    for (int number = 1; number <= 501; ++number)
        teams = Cat(teams, TeamRecordLines("Team", number));
    const ToolRun run = CheckGame(players, teams);
    EXPECT_EQ(run.code, 1);
    EXPECT_THAT(Findings(run), ElementsAre("players.dat: 2001: playerNumber: error", "teams.dat: 501: teamNumber: error"))
        << run.out;
}

TEST_F(Check, WhatTheEditorCopesWithIsAWarning)
{
    const Lines players = Cat(
        PlayerRecordLines(1, "Arlow", 2),                        // in the squad of team 1
        With(PlayerRecordLines(2, "Brenick"), BatsLine, "2"),
        With(With(PlayerRecordLines(3, "Corvane"), NationLine, "40"), BatSkillLine, "61"),
        With(PlayerRecordLines(4, "Dunmore"), FieldAbilityLine, "9"),
        PlayerRecordLines(5, ""),                                // empty surname
        With(With(PlayerRecordLines(6, "Elkin"), BirthDayLine, "29"), BirthMonthLine, "2"),  // 1980: a leap year
        With(With(With(PlayerRecordLines(7, "Farrow"), BirthDayLine, "29"), BirthMonthLine, "2"), BirthYearLine,
             "1981"),
        PlayerRecordLines(9, "Garnet"));                         // no player 8
    const Lines teams = Cat(TeamRecordLines("Ashby", 1, {1, 0, 2}), TeamRecordLines("Bexley", 2, {}, 11));
    const ToolRun run = CheckGame(players, teams);
    EXPECT_EQ(run.code, 0);
    EXPECT_THAT(Findings(run), ElementsAre("players.dat: 1: teamNumber: warning",
                                           "players.dat: 2: teamNumber: warning",  // held by team 1, says 0
                                           "players.dat: 2: bats: warning",
                                           "players.dat: 3: homeCountry: warning",
                                           "players.dat: 3: batSkill: warning",
                                           "players.dat: 4: fieldAbility: warning",
                                           "players.dat: 5: surname: warning",
                                           "players.dat: 7: birthDay: warning",
                                           "players.dat: 8: playerNumber: warning",
                                           "teams.dat: 1: squad2: warning",
                                           "teams.dat: 2: homeCountry: warning"))
        << run.out;
    EXPECT_EQ(run.OutLines().back(), "0 errors, 11 warnings");
}

TEST_F(Check, ErrorsComeBeforeWarningsAlsoAsJson)
{
    const Lines players = Cat(PlayerRecordLines(1, "Arlow"), With(PlayerRecordLines(2, "Brenick"), BatsLine, "5"));
    const fs::path dir = GameFolder(PlayersBytes(players), TeamsBytes(TeamRecordLines("Ashby", 1, {7})));
    const ToolRun text = RunTool({"check", dir.string()});
    EXPECT_THAT(Findings(text), ElementsAre("teams.dat: 1: squad1: error", "players.dat: 2: bats: warning"));
    EXPECT_EQ(text.OutLines().back(), "1 error, 1 warning");

    const ToolRun json = RunTool({"check", "--json", dir.string()});
    EXPECT_EQ(json.code, 1);
    const auto lines = json.OutLines();
    ASSERT_EQ(lines.size(), 3u) << json.out;
    EXPECT_THAT(lines[0], testing::StartsWith(
                              R"({"severity":"error","file":"teams.dat","record":1,"field":"squad1","message":")"));
    EXPECT_THAT(lines[1], testing::StartsWith(R"({"severity":"warning","file":"players.dat","record":2,)"));
    EXPECT_EQ(lines[2], R"({"errors":1,"warnings":1})");
}

TEST_F(Check, AFolderWithoutItsFilesCannotBeChecked)
{
    const fs::path dir = NewFolder("empty");
    WriteBytes(dir / "players.dat", PlayersBytes(PlayerRecordLines(1)));
    const ToolRun run = RunTool({"check", dir.string()});
    EXPECT_EQ(run.code, 2);
    EXPECT_THAT(run.err, testing::HasSubstr("teams.dat"));
    EXPECT_THAT(run.out, IsEmpty());
}

}  // namespace
