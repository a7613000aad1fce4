#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "data/players_file.h"
#include "data/teams_file.h"
#include "file_text.h"
#include "world_generator.h"

namespace {

// Reads both files and writes them back: the same bytes, and the counts of `world`.
// Compared whole: a diff of two game files would drown the report.
void ExpectRoundTrip(const Game& world, const std::string& players, const std::string& teams)
{
    auto read = NewGame();
    ReadPlayers(*read, players);
    ReadTeams(*read, teams);
    EXPECT_EQ(read->PlayerCount, world.PlayerCount);
    EXPECT_EQ(read->TeamCount, world.TeamCount);
    EXPECT_TRUE(WritePlayers(*read) == players);
    EXPECT_TRUE(WriteTeams(*read) == teams);
}

bool Within(int value, int low, int high)
{
    return value >= low && value <= high;
}

// What a world must hold for the game: valid codes, believable values, and
// squads and team numbers that agree. Gives the number of players in no squad.
int ExpectPlayableWorld(const Game& world, int minSquad)
{
    std::vector<int> teamOf(world.PlayerCount + 1, 0);
    std::set<int> countries;
    for (int t = 1; t <= LoadedTeamCount(world); ++t) {
        SCOPED_TRACE("team " + std::to_string(t));
        const TeamRecord& team = world.Teams[t];
        EXPECT_EQ(team.teamNumber, t);
        EXPECT_TRUE(Within(team.homeCountry, 1, 10));
        countries.insert(team.homeCountry);
        // Squads are packed from place 1: the first `filled` places hold players.
        const int filled = std::count_if(team.squad.begin() + 1, team.squad.end(), [](int p) { return p != 0; });
        EXPECT_TRUE(Within(filled, minSquad, SquadSize));
        for (int place = 1; place <= filled; ++place) {
            const int player = team.squad[place];
            if (!Within(player, 1, world.PlayerCount)) {
                ADD_FAILURE() << "place " << place << " holds player " << player;
                continue;
            }
            EXPECT_EQ(teamOf[player], 0) << "player " << player << " in two squads";
            teamOf[player] = t;
        }
    }
    EXPECT_EQ(countries.size(), 10U);

    int withoutTeam = 0;
    for (int n = 1; n <= world.PlayerCount; ++n) {
        const PlayerRecord& p = world.Players[n];
        SCOPED_TRACE("player " + std::to_string(n));
        EXPECT_EQ(p.playerNumber, n);
        EXPECT_FALSE(p.surname.empty());
        EXPECT_EQ(p.teamNumber, teamOf[n]);
        withoutTeam += p.teamNumber == 0;
        EXPECT_TRUE(Within(p.birthYear, 1960, 1985) && Within(p.birthMonth, 1, 12) && Within(p.birthDay, 1, 31));
        EXPECT_TRUE(Within(p.homeCountry, 1, 39) && Within(p.batPosition, 1, 6) && Within(p.bats, 0, 1) &&
                    Within(p.bowlType, 1, 9) && Within(p.bowls, 0, 1) && Within(p.fieldsAt, 1, 4));
        EXPECT_TRUE(Within(p.batSkill, 0, 60) && Within(p.batAggression, 0, 20) && Within(p.bowlSkill, 0, 60) &&
                    Within(p.bowlEconomy, 0, 20) && Within(p.fieldAbility, 10, 40) && Within(p.potential, 0, 20) &&
                    Within(p.carriedValue, 0, 9));
    }
    return withoutTeam;
}

TEST(SampleGame, IsTheGeneratorsPlayableWorldAndComesBackByteForByte)
{
    auto world = NewGame();
    GenerateSampleWorld(*world);
    const std::string players = ReadWholeFile(KOLTA_SAMPLE "/players.dat").value_or("");
    const std::string teams = ReadWholeFile(KOLTA_SAMPLE "/teams.dat").value_or("");
    EXPECT_TRUE(players == WritePlayers(*world));
    EXPECT_TRUE(teams == WriteTeams(*world));
    ExpectRoundTrip(*world, players, teams);

    EXPECT_TRUE(Within(ExpectPlayableWorld(*world, 14), 90, 110));
    // Some names show off the code page.
    const auto accented = [](const PlayerRecord& p) { return p.surname.find_first_of("\xE9\xF6") != p.surname.npos; };
    EXPECT_GE(std::count_if(world->Players.begin(), world->Players.end(), accented), 3);
}

TEST(SampleGame, AFullSizeWorldFillsBothTablesAndComesBackByteForByte)
{
    auto world = NewGame();
    GenerateFullSizeWorld(*world);
    EXPECT_EQ(world->PlayerCount, MaxPlayers);
    EXPECT_EQ(world->TeamCount, MaxTeams + 2);
    ExpectPlayableWorld(*world, 3);
    ExpectRoundTrip(*world, WritePlayers(*world), WriteTeams(*world));
}

}  // namespace
