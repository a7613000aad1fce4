#include "data/teams_file.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "file_text.h"

namespace {

// A team record as the game writes it; unlisted squad places are 0.
Lines Team(std::string name, std::string abbreviation, int country, std::vector<int> squad = {},
           std::string number = "0")
{
    Lines lines{"0", std::move(name), std::move(abbreviation), std::to_string(country), "70", "55", "60",
                std::move(number), "0", "0"};
    squad.resize(SquadSize);
    for (int player : squad)
        lines.push_back(std::to_string(player));
    return lines;
}

// `count` teams numbered as the writer numbers them.
Lines Teams(int count)
{
    Lines lines;
    for (int i = 1; i <= count; ++i)
        lines = Cat(lines, Team("Team " + std::to_string(i) + "#", "T#", i % 10 + 1, {i, 0, i + 1},
                                std::to_string(i)));
    return lines;
}

const Lines Terminator = EmptyLines(20);

TeamRecord Marked()
{
    TeamRecord team;
    team.teamName = "Old";
    team.abbreviation = "OLD";
    team.homeCountry = 9;
    team.reputation = team.wealth = team.support = 99;
    team.squad.fill(77);
    return team;
}

TEST(TeamsFile, ReadsTheGamesOwnRecordBySlot)
{
    const Lines example = Cat(Lines{"0", "Example County#", "EXC#", "2", "70", "55", "60", "4", "0", "0",
                                    "17", "18", "40"},
                              Lines(17, "0"));
    auto game = NewGame();
    ReadTeams(*game, Join(Cat(Teams(3), example, Terminator)));
    const TeamRecord& team = game->Teams[4];
    EXPECT_EQ(team.teamName, "Example County");
    EXPECT_EQ(team.abbreviation, "EXC");
    EXPECT_EQ(team.homeCountry, 2);
    EXPECT_EQ(team.teamNumber, 4);
    EXPECT_EQ(team.reputation, 70);
    EXPECT_EQ(team.wealth, 55);
    EXPECT_EQ(team.support, 60);
    EXPECT_EQ(team.squad[1], 17);
    EXPECT_EQ(team.squad[3], 40);
    EXPECT_EQ(team.squad[4], 0);
    EXPECT_EQ(game->TeamCount, 6);
}

TEST(TeamsFile, RoundTripsAndCountsTwoAboveTheTeams)
{
    // Windows-1252 and a trailing blank (kept: nothing is trimmed here), a
    // squad with holes and countries no country list reaches.
    const Lines odd = Cat(Team("K\xF6ln Rovers #", " KR#", 0, {17, 0, 40}), Team("#", "#", 11, {0, 0, 0, 5}));
    const std::string file = Join(Cat(odd, Terminator));
    auto game = NewGame();
    ReadTeams(*game, file);
    EXPECT_EQ(game->TeamCount, 4);
    EXPECT_EQ(game->Teams[1].teamName, "K\xF6ln Rovers ");
    EXPECT_EQ(WriteTeams(*game), Join(Cat(Team("K\xF6ln Rovers #", "KR#", 0, {17, 0, 40}, "1"),
                                          Team("#", "#", 11, {0, 0, 0, 5}, "2"), Terminator)));

    const std::string written = WriteTeams(*game);
    auto again = NewGame();
    ReadTeams(*again, written);
    EXPECT_EQ(again->TeamCount, 4);
    EXPECT_EQ(WriteTeams(*again), written);
}

TEST(TeamsFile, NumbersTeamsByPlaceAndWritesTheConstants)
{
    Lines team = Team("Ninety Nine#", "NN#", 3, {}, "99");
    team[0] = "x";
    team[8] = "7";
    auto game = NewGame();
    ReadTeams(*game, Join(Cat(team, Terminator)));
    EXPECT_EQ(game->Teams[1].teamNumber, 1);
    EXPECT_EQ(WriteTeams(*game), Join(Cat(Team("Ninety Nine#", "NN#", 3, {}, "1"), Terminator)));
}

// The closing pass runs over the empty lines like a record: it blanks the
// numbers of the slot after the last team and the first ten squad places.
TEST(TeamsFile, TheClosingPassBlanksTheSlotAfterTheLastTeam)
{
    auto game = NewGame();
    game->Teams[3] = Marked();
    ReadTeams(*game, Join(Cat(Teams(2), Terminator)));
    const TeamRecord& after = game->Teams[3];
    EXPECT_EQ(after.teamName, "Old");
    EXPECT_EQ(after.abbreviation, "OLD");
    EXPECT_EQ(after.homeCountry, 0);
    EXPECT_EQ(after.teamNumber, 3);
    EXPECT_EQ(after.reputation, 0);
    EXPECT_EQ(after.support, 0);
    EXPECT_EQ(after.squad[10], 0);
    EXPECT_EQ(after.squad[11], 77);
    EXPECT_EQ(game->TeamCount, 4);
}

TEST(TeamsFile, LoadsTheSameWhetherTwentyOneOrNoEmptyLinesFollow)
{
    const std::string full = Join(Cat(Teams(3), Terminator));
    for (const Lines& tail : {EmptyLines(1), Lines{}}) {
        auto game = NewGame();
        ReadTeams(*game, Join(Cat(Teams(3), tail)));
        EXPECT_EQ(game->TeamCount, 5) << tail.size() << " empty lines";
        EXPECT_EQ(WriteTeams(*game), full) << tail.size() << " empty lines";
    }
}

TEST(TeamsFile, AnEmptyTenthLineEndsTheLoadWithThatRecordAsTheClosingPass)
{
    Lines last = Team("Last#", "L#", 4);
    last[9] = "";
    auto game = NewGame();
    ReadTeams(*game, Join(Cat(Teams(2), last, Teams(3), Terminator)));
    EXPECT_EQ(game->TeamCount, 4);
    EXPECT_EQ(game->Teams[3].teamName, "Last");
    EXPECT_EQ(WriteTeams(*game), Join(Cat(Teams(2), Terminator)));
}

TEST(TeamsFile, AnEmptyOrMissingFileLeavesNoTeams)
{
    auto game = NewGame();
    game->TeamCount = 9;
    ReadTeams(*game, "");
    EXPECT_EQ(game->TeamCount, 2);
    EXPECT_EQ(WriteTeams(*game), Join(Terminator));

    auto missing = NewGame();
    missing->TeamsPath = "/nonexistent/folder/teams.dat";
    EXPECT_FALSE(ReadTeamsFile(*missing));
    EXPECT_EQ(missing->TeamCount, 2);
}

TEST(TeamsFile, FillsAllFiveHundredSlotsAndReadsNoFurther)
{
    const std::string five = Join(Cat(Teams(MaxTeams), Terminator));
    auto game = NewGame();
    ReadTeams(*game, five);
    EXPECT_EQ(game->TeamCount, MaxTeams + 2);
    EXPECT_EQ(game->Teams[MaxTeams].teamName, "Team 500");
    EXPECT_EQ(WriteTeams(*game), five);

    auto more = NewGame();
    ReadTeams(*more, Join(Cat(Teams(MaxTeams + 3), Terminator)));
    EXPECT_EQ(more->TeamCount, MaxTeams + 2);
    EXPECT_EQ(WriteTeams(*more), five);
}

TEST(TeamsFile, NameLinesOfJustTheMarkEmptyTheNameAndEmptyLinesKeepIt)
{
    auto game = NewGame();
    game->Teams[1] = Marked();
    game->Teams[2] = Marked();
    ReadTeams(*game, Join(Cat(Team("#", "#", 1), Team("", "", 1), Terminator)));
    EXPECT_EQ(game->Teams[1].teamName, "");
    EXPECT_EQ(game->Teams[1].abbreviation, "");
    EXPECT_EQ(game->Teams[2].teamName, "Old");
    EXPECT_EQ(game->Teams[2].abbreviation, "OLD");
}

TEST(TeamsFile, BadNumbersLeaveTheirFieldsAndEmptyOnesGiveZero)
{
    Lines team = Team("Bad#", "B#", 3, {5, 6, 7});
    team[3] = "";        // homeCountry
    team[4] = "high";    // reputation
    team[5] = "99999";   // wealth
    team[11] = "x";      // squad place 2
    team[12] = "";       // squad place 3
    auto game = NewGame();
    game->Teams[1] = Marked();
    ReadTeams(*game, Join(Cat(team, Teams(1), Terminator)));
    const TeamRecord& read = game->Teams[1];
    EXPECT_EQ(read.homeCountry, 0);
    EXPECT_EQ(read.reputation, 99);
    EXPECT_EQ(read.wealth, 99);
    EXPECT_EQ(read.support, 60);
    EXPECT_EQ(read.squad[1], 5);
    EXPECT_EQ(read.squad[2], 77);
    EXPECT_EQ(read.squad[3], 0);
    EXPECT_EQ(game->TeamCount, 4);
}

TEST(TeamsFile, AFileCutInsideARecordEndsWithThatRecordAsTheClosingPass)
{
    Lines cut = Team("Cut#", "C#", 5);
    cut.resize(6);  // up to wealth
    auto game = NewGame();
    game->Teams[3] = Marked();
    ReadTeams(*game, Join(Cat(Teams(2), cut)));
    EXPECT_EQ(game->TeamCount, 4);
    EXPECT_EQ(game->Teams[3].teamName, "Cut");
    EXPECT_EQ(game->Teams[3].wealth, 55);
    EXPECT_EQ(game->Teams[3].support, 0);
    EXPECT_EQ(game->Teams[3].squad[1], 77);
}

}  // namespace
