#include <gtest/gtest.h>

#include "data/players_file.h"
#include "data/teams_file.h"
#include "support/file_text.h"
#include "support/scratch_folder.h"
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

// The committed sample is the generator's world (the CLI check finds it free of problems).
TEST(SampleGame, TheSampleAndAFullSizeWorldComeBackByteForByte)
{
    auto sample = NewGame();
    GenerateSampleWorld(*sample);
    const std::string players = SampleBytes("players.dat");
    const std::string teams = SampleBytes("teams.dat");
    EXPECT_TRUE(players == WritePlayers(*sample));
    EXPECT_TRUE(teams == WriteTeams(*sample));
    ExpectRoundTrip(*sample, players, teams);

    auto full = NewGame();
    GenerateFullSizeWorld(*full);
    EXPECT_EQ(full->PlayerCount, MaxPlayers);
    EXPECT_EQ(full->TeamCount, MaxTeams + 2);
    ExpectRoundTrip(*full, WritePlayers(*full), WriteTeams(*full));
}

}  // namespace
