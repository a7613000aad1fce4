#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <set>

#include "data/players_file.h"
#include "data/teams_file.h"
#include "file_text.h"
#include "world_generator.h"

namespace {

std::string Bytes(const std::string& path)
{
    return ReadWholeFile(path).value_or("<missing>");
}

void ExpectRoundTrip(const Game& world)
{
    const std::string players = WritePlayers(world);
    const std::string teams = WriteTeams(world);
    auto read = NewGame();
    ReadPlayers(*read, players);
    ReadTeams(*read, teams);
    EXPECT_EQ(read->PlayerCount, world.PlayerCount);
    EXPECT_EQ(read->TeamCount, world.TeamCount);
    EXPECT_EQ(WritePlayers(*read), players);
    EXPECT_EQ(WriteTeams(*read), teams);
}

bool Within(int value, int low, int high)
{
    return value >= low && value <= high;
}

// What a world must hold for the game: valid codes, believable values, and
// squads and team numbers that agree. Gives the number of players in no squad.
int ExpectPlayableWorld(const Game& world, int minSquad)
{
    std::vector<int> teamOf(static_cast<std::size_t>(world.PlayerCount) + 1, 0);
    std::set<int> countries;
    for (int t = 1; t <= LoadedTeamCount(world); ++t) {
        const TeamRecord& team = world.Teams[static_cast<std::size_t>(t)];
        EXPECT_EQ(team.teamNumber, t);
        EXPECT_TRUE(Within(team.homeCountry, 1, 10)) << "team " << t;
        countries.insert(team.homeCountry);
        const auto filled = std::count_if(team.squad.begin() + 1, team.squad.end(), [](int p) { return p != 0; });
        EXPECT_TRUE(Within(static_cast<int>(filled), minSquad, SquadSize)) << "team " << t;
        for (int place = 1; place <= SquadSize; ++place) {
            const int player = team.squad[static_cast<std::size_t>(place)];
            EXPECT_EQ(player == 0, place > filled) << "team " << t << " is not packed";
            if (player == 0)
                continue;
            if (!Within(player, 1, world.PlayerCount)) {
                ADD_FAILURE() << "team " << t << " names player " << player;
                continue;
            }
            EXPECT_EQ(teamOf[static_cast<std::size_t>(player)], 0) << "player " << player << " in two squads";
            teamOf[static_cast<std::size_t>(player)] = t;
        }
    }
    EXPECT_EQ(countries.size(), 10U);

    int withoutTeam = 0;
    for (int n = 1; n <= world.PlayerCount; ++n) {
        const PlayerRecord& p = world.Players[static_cast<std::size_t>(n)];
        SCOPED_TRACE("player " + std::to_string(n));
        EXPECT_EQ(p.playerNumber, n);
        EXPECT_FALSE(p.surname.empty());
        EXPECT_EQ(p.teamNumber, teamOf[static_cast<std::size_t>(n)]);
        withoutTeam += p.teamNumber == 0;
        EXPECT_TRUE(Within(p.birthYear, 1960, 1985) && Within(p.birthMonth, 1, 12) && Within(p.birthDay, 1, 31));
        EXPECT_TRUE(Within(p.homeCountry, 1, 39));
        EXPECT_TRUE(Within(p.batPosition, 1, 6) && Within(p.bats, 0, 1));
        EXPECT_TRUE(Within(p.bowlType, 1, 9) && Within(p.bowls, 0, 1) && Within(p.fieldsAt, 1, 4));
        EXPECT_TRUE(Within(p.batSkill, 0, 60) && Within(p.batAggression, 0, 20));
        EXPECT_TRUE(Within(p.bowlSkill, 0, 60) && Within(p.bowlEconomy, 0, 20));
        EXPECT_TRUE(Within(p.fieldAbility, 10, 40) && Within(p.potential, 0, 20));
        EXPECT_TRUE(Within(p.carriedValue, 0, 9));
    }
    return withoutTeam;
}

TEST(SampleGame, TheCommittedFilesAreTheGeneratorsOutput)
{
    auto world = NewGame();
    GenerateSampleWorld(*world);
    EXPECT_EQ(Bytes(KOLTA_SAMPLE "/players.dat"), WritePlayers(*world));
    EXPECT_EQ(Bytes(KOLTA_SAMPLE "/teams.dat"), WriteTeams(*world));
}

TEST(SampleGame, IsAPlayableWorldThatShowsTheCodePage)
{
    auto world = NewGame();
    GenerateSampleWorld(*world);
    const int withoutTeam = ExpectPlayableWorld(*world, 14);
    EXPECT_TRUE(Within(withoutTeam, 90, 110));
    const auto accented = std::count_if(world->Players.begin(), world->Players.end(), [](const PlayerRecord& p) {
        return p.surname.find_first_of("\xE9\xF6") != std::string::npos;
    });
    EXPECT_GE(accented, 3);
    ExpectRoundTrip(*world);
}

TEST(SampleGame, AFullSizeWorldFillsBothTablesAndRoundTrips)
{
    auto world = NewGame();
    GenerateFullSizeWorld(*world);
    EXPECT_EQ(world->PlayerCount, MaxPlayers);
    EXPECT_EQ(LoadedTeamCount(*world), MaxTeams);
    ExpectPlayableWorld(*world, 3);
    ExpectRoundTrip(*world);
}

}  // namespace
