#include <regex>
#include <tuple>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cli_folder.h"

using testing::ElementsAreArray;

namespace {

// "teams.dat: 2: squad1: error" for each problem line: where and how bad, without the wording.
std::vector<std::string> Findings(const ToolRun& run)
{
    static const std::regex problem(R"(^([^:]+: \d+: [^:]+: (error|warning)): )");
    std::vector<std::string> found;
    std::smatch match;
    for (const std::string& line : SplitLines(run.out)) {
        if (std::regex_search(line, match, problem))
            found.push_back(match[1]);
    }
    return found;
}

class Check : public CliTest {};

TEST_F(Check, FindsEachKindOfProblemWhereItIs)
{
    const Lines one = PlayerRecordLines(1);
    const Lines team = TeamRecordLines("Ashby", 1);
    Lines allPlayers;
    Lines allTeams;
    for (int number = 1; number <= 2001; ++number)
        allPlayers = Cat(std::move(allPlayers), PlayerRecordLines(number));
    for (int number = 1; number <= 501; ++number)
        allTeams = Cat(std::move(allTeams), TeamRecordLines("Team", number));
    // Oddities the editor copes with; player 6 (29 February of a leap year) has none.
    const Lines odd = Cat(PlayerRecordLines(1, "Arlow", 2), Edit(PlayerRecordLines(2, "Brenick"), {{BatsLine, "2"}}),
                          Edit(PlayerRecordLines(3, "Corvane"), {{NationLine, "40"}, {BatSkillLine, "61"}}),
                          Edit(PlayerRecordLines(4, "Dunmore"), {{FieldAbilityLine, "9"}}), PlayerRecordLines(5, ""),
                          Edit(PlayerRecordLines(6), {{BirthDayLine, "29"}, {BirthMonthLine, "2"}}),  // a leap year
                          Edit(PlayerRecordLines(7), {{BirthDayLine, "29"}, {BirthMonthLine, "2"}, {BirthYearLine, "1981"}}),
                          Edit(PlayerRecordLines(9), {{InitialsLine, "R J"}}));
    // What the files hold, their records, and what check finds where.
    const std::tuple<const char*, Lines, Lines, std::vector<std::string>> cases[] = {
        {"a player twice in one squad, in two squads, a squad naming no player", Players({1, 1, 2}),
         Cat(TeamRecordLines("Ashby", 1, {1, 2, 1}), TeamRecordLines("Bexley", 2, {3, 2, 4}),
             TeamRecordLines("Crane", 3, {-1})),
         {"teams.dat: 1: squad1: error", "teams.dat: 1: squad2: error", "teams.dat: 2: squad2: error",
          "teams.dat: 2: squad3: error", "teams.dat: 3: squad1: error"}},
        {"two records in a row with one number end the load",
         Cat(one, PlayerRecordLines(2), PlayerRecordLines(2), PlayerRecordLines(3)), team,
         {"players.dat: 2: playerNumber: error"}},
        {"a number read again later replaces the first record",
         Cat(one, PlayerRecordLines(2), one, PlayerRecordLines(3)), team, {"players.dat: 1: playerNumber: error"}},
        {"a last number below an earlier one cuts the save short",
         Cat(one, PlayerRecordLines(3), PlayerRecordLines(2)), team, {"players.dat: 2: playerNumber: error"}},
        {"a number with no slot is passed over", Cat(one, PlayerRecordLines(2001), PlayerRecordLines(2)), team,
         {"players.dat: 2: playerNumber: error"}},
        {"two teams with one number", one, Cat(team, TeamRecordLines("Bexley", 1)),
         {"teams.dat: 2: teamNumber: error"}},
        {"a comma splits a surname", PlayerRecordLines(1, "Ard,en"), team,
         {"players.dat: 1: surname: error", "players.dat: 1: birthDay: error"}},
        {"a team name opening with a double quote", one, Edit(team, {{TeamNameLine, "\"Ashby#"}}),
         {"teams.dat: 1: teamName: error", "teams.dat: 1: line 10: error"}},
        {"number lines that are no number", Edit(one, {{BatSkillLine, "high"}}), Edit(team, {{ReputationLine, "40000"}}),
         {"players.dat: 1: batSkill: error", "teams.dat: 1: reputation: error"}},
        {"a squad of 21 runs into the next team", one, Cat(team, Lines{"1"}, TeamRecordLines("Bexley", 2)),
         {"teams.dat: 1: squad: error", "teams.dat: 2: homeCountry: error"}},
        {"more records than the tables hold", allPlayers, allTeams,
         {"players.dat: 2001: playerNumber: error", "teams.dat: 501: teamNumber: error"}},
        {"warnings only", odd, Cat(TeamRecordLines("Ashby", 1, {1, 0, 2}), TeamRecordLines("Bexley", 2, {}, 11)),
         {"players.dat: 1: teamNumber: warning", "players.dat: 2: teamNumber: warning", "players.dat: 2: bats: warning",
          "players.dat: 3: homeCountry: warning", "players.dat: 3: batSkill: warning",
          "players.dat: 4: fieldAbility: warning", "players.dat: 5: surname: warning",
          "players.dat: 7: birthDay: warning", "players.dat: 8: playerNumber: warning",
          "players.dat: 9: initials: warning", "teams.dat: 1: squad2: warning", "teams.dat: 2: homeCountry: warning"}},
        {"a stray line past the end sign of either file", Cat(one, Lines(1, ""), PlayerRecordLines(2)),
         Cat(team, Lines(20, ""), Lines{"4"}),
         {"players.dat: 1: end of file: error", "teams.dat: 1: end of file: error"}},
    };
    for (const auto& [what, players, teams, findings] : cases) {
        SCOPED_TRACE(what);
        const ToolRun run = RunTool({"check", GameOf(players, teams)});
        EXPECT_EQ(run.code, findings.front().ends_with(": error") ? 1 : 0);  // errors come first
        EXPECT_THAT(Findings(run), ElementsAreArray(findings)) << run.out;
    }
    EXPECT_EQ(RunTool({"check", SampleCopy()}).out, "0 errors, 0 warnings\n");
}

}  // namespace
