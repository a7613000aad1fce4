#include <gtest/gtest.h>

#include "data/players_file.h"
#include "data/teams_file.h"
#include "support/file_text.h"
#include "support/scratch_folder.h"
#include "world_generator.h"

namespace {

// Reads both files and writes them back: the same bytes, and the counts of `world`.
// Compared whole: a diff of two game files would drown the report.
void ExpectRoundTrip(const Game& world, const FilePair& files)
{
    auto read = NewGame();
    ReadPlayers(*read, files.first);
    ReadTeams(*read, files.second);
    EXPECT_EQ(read->PlayerCount, world.PlayerCount);
    EXPECT_EQ(read->TeamCount, world.TeamCount);
    EXPECT_TRUE(WrittenPair(*read) == files);
}

// The committed sample is the generator's world (the CLI check finds it free of problems).
TEST(SampleGame, TheSampleAndAFullSizeWorldComeBackByteForByte)
{
    auto sample = NewGame();
    GenerateSampleWorld(*sample);
    const FilePair files(SampleBytes("players.dat"), SampleBytes("teams.dat"));
    EXPECT_TRUE(WrittenPair(*sample) == files);
    ExpectRoundTrip(*sample, files);

    auto full = NewGame();
    GenerateFullSizeWorld(*full);
    EXPECT_EQ(full->PlayerCount, MaxPlayers);
    EXPECT_EQ(full->TeamCount, MaxTeams + 2);
    ExpectRoundTrip(*full, WrittenPair(*full));
}

}  // namespace
