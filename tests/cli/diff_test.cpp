#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cli_folder.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Diff : public CliTest {};

TEST_F(Diff, AFolderAgainstItselfIsEmpty)
{
    const ToolRun run = RunTool({"diff", KOLTA_SAMPLE, KOLTA_SAMPLE});
    EXPECT_EQ(run.code, 0);
    EXPECT_THAT(run.out, IsEmpty());
}

TEST_F(Diff, RecordByRecordAndFieldByField)
{
    const Lines teamsBefore = Cat(TeamRecordLines("Ashby", 1, {1, 2, 3}), TeamRecordLines("Bexley", 2, {4}),
                                  TeamRecordLines("Crane", 3, {5, 6}), TeamRecordLines("Dorne", 4));
    const Lines playersBefore =
        Cat(PlayerRecordLines(1, "Arlow", 1), PlayerRecordLines(2, "Brenick", 1), PlayerRecordLines(3, "Corvane", 1),
            PlayerRecordLines(4, "Dunmore", 2), PlayerRecordLines(5, "Elkin", 3), PlayerRecordLines(6, "Farrow", 3));
    // Player 2 moves to team 2, player 3 leaves, player 1 also turns up in team 4,
    // team 3 swaps its two players, team 2 changes country, and player 7 is new.
    const Lines teamsAfter = Cat(With(TeamRecordLines("Ashby", 1, {1}), ReputationLine, "51"),
                                 TeamRecordLines("Bexley", 2, {4, 2}, 3), TeamRecordLines("Crane", 3, {6, 5}),
                                 TeamRecordLines("Dorne", 4, {1}));
    const Lines playersAfter =
        Cat(PlayerRecordLines(1, "Arlow", 1), PlayerRecordLines(2, "Brenick", 2), PlayerRecordLines(3, "Corvane"),
            With(PlayerRecordLines(4, "Dunmoore", 2), BatsLine, "1"), PlayerRecordLines(5, "Elkin", 3),
            PlayerRecordLines(6, "Farrow", 3), PlayerRecordLines(7, "Garnet"));
    const fs::path before = GameFolder(PlayersBytes(playersBefore), TeamsBytes(teamsBefore), "before");
    const fs::path after = GameFolder(PlayersBytes(playersAfter), TeamsBytes(teamsAfter), "after");

    const ToolRun run = RunTool({"diff", before.string(), after.string()});
    EXPECT_EQ(run.code, 1);
    EXPECT_THAT(run.OutLines(),
                ElementsAre("player 2 (R J Brenick): teamNumber 1 -> 2",
                            "player 3 (R J Corvane): teamNumber 1 -> 0",
                            "player 4 (R J Dunmoore): surname \"Dunmore\" -> \"Dunmoore\"",
                            "player 4 (R J Dunmoore): bats 0 (Right Handed) -> 1 (Left Handed)",
                            "player 7 (R J Garnet) added",
                            "team 1 (Ashby): reputation 50 -> 51",
                            "team 2 (Bexley): homeCountry 2 (England) -> 3 (India)",
                            "team 3 (Crane): the squad holds the same players in other places",
                            "player 1 (R J Arlow) joined team 4 (Dorne)",
                            "player 2 (R J Brenick) moved from team 1 (Ashby) to team 2 (Bexley)",
                            "player 3 (R J Corvane) left team 1 (Ashby)"));

    const ToolRun json = RunTool({"diff", "--json", before.string(), after.string()});
    ASSERT_EQ(json.OutLines().size(), 11u);
    EXPECT_EQ(json.OutLines()[1],
              R"({"change":"changed","file":"players.dat","record":3,"field":"teamNumber","from":"1","to":"0",)"
              R"j("text":"player 3 (R J Corvane): teamNumber 1 -> 0"})j");
    EXPECT_EQ(json.OutLines()[9],
              R"({"change":"moved","file":"players.dat","record":2,"field":"squad","from":"1","to":"2",)"
              R"j("text":"player 2 (R J Brenick) moved from team 1 (Ashby) to team 2 (Bexley)"})j");

    const ToolRun back = RunTool({"diff", after.string(), before.string()});
    EXPECT_THAT(back.out, testing::HasSubstr("player 7 (R J Garnet) removed\n"));
}

TEST_F(Diff, OneFolderIsComparedWithItsBackups)
{
    const fs::path game = SampleCopy();
    const ToolRun noBackups = RunTool({"diff", game.string()});
    EXPECT_EQ(noBackups.code, 2);
    EXPECT_THAT(noBackups.err, testing::HasSubstr("players.dat.bak"));

    ASSERT_EQ(RunTool({"normalize", game.string()}).code, 0);
    EXPECT_EQ(RunTool({"diff", game.string()}).code, 0);

    const fs::path csv = NewFolder("csv");
    ASSERT_EQ(RunTool({"export", "--team", "1", game.string(), csv.string()}).code, 0);
    std::string players = FileBytes(csv / "players.csv");
    players.replace(players.find(",Travwick,"), 10, ",Travers,");
    WriteBytes(csv / "players.csv", players);
    ASSERT_EQ(RunTool({"import", game.string(), csv.string()}).code, 0);

    const ToolRun run = RunTool({"diff", game.string()});
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.out, "player 1 (H R Travers): surname \"Travwick\" -> \"Travers\"\n");
}

}  // namespace
