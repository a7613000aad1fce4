#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cli_folder.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class Diff : public CliTest {};

TEST_F(Diff, RecordByRecordAndFieldByField)
{
    const fs::path before = GameOf(Players({1, 1, 1, 2, 3, 3}),
                                   Cat(TeamRecordLines("Ashby", 1, {1, 2, 3}), TeamRecordLines("Bexley", 2, {4}),
                                       TeamRecordLines("Crane", 3, {5, 6}), TeamRecordLines("Dorne", 4)),
                                   "before");
    // Player 2 moves to team 2, player 3 leaves, player 1 also turns up in team 4,
    // team 3 swaps its two players, team 2 changes country, and player 7 is new.
    const fs::path after = GameOf(
        With(With(Players({1, 2, 0, 2, 3, 3, 0}), OfPlayer(4, SurnameLine), "Dunmoore#"), OfPlayer(4, BatsLine), "1"),
        Cat(With(TeamRecordLines("Ashby", 1, {1}), ReputationLine, "51"), TeamRecordLines("Bexley", 2, {4, 2}, 3),
            TeamRecordLines("Crane", 3, {6, 5}), TeamRecordLines("Dorne", 4, {1})),
        "after");

    const ToolRun run = RunTool({"diff", before, after});
    EXPECT_EQ(run.code, 1);
    EXPECT_THAT(SplitLines(run.out),
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

    const Lines json = SplitLines(RunTool({"diff", "--json", before, after}).out);
    ASSERT_EQ(json.size(), 11u);
    EXPECT_EQ(json[9], R"({"change":"moved","file":"players.dat","record":2,"field":"squad","from":"1","to":"2",)"
                       R"j("text":"player 2 (R J Brenick) moved from team 1 (Ashby) to team 2 (Bexley)"})j");
    EXPECT_THAT(RunTool({"diff", after, before}).out, HasSubstr("player 7 (R J Garnet) removed\n"));
}

TEST_F(Diff, OneFolderIsComparedWithItsBackups)
{
    const fs::path game = SampleCopy();
    const ToolRun noBackups = RunTool({"diff", game});
    EXPECT_EQ(noBackups.code, 2);
    EXPECT_THAT(noBackups.err, HasSubstr("players.dat.bak"));

    // Normalizing the sample writes it as it was, so the folder and its backups agree.
    ASSERT_EQ(RunTool({"normalize", game}).code, 0);
    const ToolRun same = RunTool({"diff", game});
    EXPECT_EQ(same.code, 0);
    EXPECT_THAT(same.out, IsEmpty());

    const fs::path csv = Export(game);
    std::string players = FileBytes(csv / "players.csv");
    players.replace(players.find(",Travwick,"), 10, ",Travers,");
    WriteBytes(csv / "players.csv", players);
    ASSERT_EQ(RunTool({"import", game, csv}).code, 0);

    const ToolRun run = RunTool({"diff", game});
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.out, "player 1 (H R Travers): surname \"Travwick\" -> \"Travers\"\n");
}

}  // namespace
