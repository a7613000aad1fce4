#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

#include "cli_folder.h"
#include "data/folder_lock.h"

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

class Normalize : public CliTest {};

TEST_F(Normalize, WritesWhatTheEditorsSaveWritesAndNeverHalfAGame)
{
    // Line 2 of a player is dropped, blanks around initials go, numbers lose
    // their leading zeros, a team is numbered by its place, and whatever
    // follows the end sign is gone.
    const Lines player =
        Edit(PlayerRecordLines(1, "Mardle "), {{2, "x"}, {InitialsLine, "  R J #"}, {BatSkillLine, "030"}});
    const Lines team = Edit(TeamRecordLines("Ashby ", 99, {0, 1}), {{1, "7"}, {9, "5"}});
    const std::string players = Join(Cat(player, PlayerRecordLines(3, "Corvane")));
    const std::string teams = Join(Cat(team, Lines(20, ""), Lines{"stray"}));
    const fs::path game = GameFolder(players, teams);

    const ToolRun run = RunTool({"normalize", game});
    EXPECT_EQ(run.code, 0) << run.err;
    const Lines blankPlayer2 = Cat(Lines{"2", "#", "#", "#"}, Lines(17, "0"));
    EXPECT_EQ(Bytes(game / "players.dat"),
              PlayersBytes(Cat(Edit(PlayerRecordLines(1, "Mardle "), {{BatSkillLine, "30"}}), blankPlayer2,
                               PlayerRecordLines(3, "Corvane"))));
    EXPECT_EQ(Bytes(game / "teams.dat"), TeamsBytes(TeamRecordLines("Ashby ", 1, {0, 1})));
    EXPECT_EQ(PairIn(game, ".bak"), FilePair(players, teams));

    // A name the files cannot carry is refused before anything is written.
    const fs::path tab = GameOf(PlayerRecordLines(1, "Mar\tdle"), TeamRecordLines("Ashby", 1));
    const ToolRun refused = RunTool({"normalize", tab});
    EXPECT_EQ(refused.code, 1);
    EXPECT_THAT(refused.err, HasSubstr("players.dat: "));
    EXPECT_FALSE(fs::exists(tab / "players.dat.bak"));

    // A folder with only players.dat is read but never written.
    const fs::path half = NewFolder("half");
    WriteBytes(half / "players.dat", players);
    EXPECT_EQ(RunTool({"check", half}).code, 2);
    EXPECT_EQ(RunTool({"normalize", half}).code, 2);
    EXPECT_EQ(Bytes(half / "players.dat"), players);
    EXPECT_EQ(std::distance(fs::directory_iterator(half), {}), 1);  // no teams.dat, no backup
}

// The editor keeps the game it loaded, so a save beside it is worth a word.
TEST_F(Normalize, ImportAndNormalizeSayWhenAnEditorHasTheFolderOpen)
{
    for (const bool editorOpen : {false, true}) {
        SCOPED_TRACE(editorOpen ? "an editor has the folder open" : "no editor");
        const fs::path game = SampleCopy();
        const fs::path csv = Export(game);
        std::string players = Bytes(csv / "players.csv");
        players.replace(players.find("Neskerly"), 8, "Neskerley");
        WriteBytes(csv / "players.csv", players);
        std::optional<FolderPresence> editor;
        if (editorOpen)
            editor.emplace(PathText(game));
        for (const ToolRun& run : {RunTool({"normalize", game}), RunTool({"import", game, csv})}) {
            EXPECT_EQ(run.code, 0) << run.err;
            EXPECT_EQ(run.err.find("an editor has " + PathText(game) + " open") != std::string::npos, editorOpen)
                << run.err;
        }
    }
}

class Diff : public CliTest {};

TEST_F(Diff, RecordByRecordAndFieldByField)
{
    const fs::path before = GameOf(Players({1, 1, 1, 2, 3, 3}),
                                   Cat(TeamRecordLines("Ashby", 1, {1, 2, 3}), TeamRecordLines("Bexley", 2, {4}),
                                       TeamRecordLines("Crane", 3, {5, 6}), TeamRecordLines("Dorne", 4)));
    // Player 2 moves to team 2, player 3 leaves, player 1 also turns up in team 4,
    // team 3 swaps its two players, team 2 changes country, and player 7 is new.
    const fs::path after = GameOf(
        Edit(Players({1, 2, 0, 2, 3, 3, 0}), {{OfPlayer(4, SurnameLine), "Dunmoore#"}, {OfPlayer(4, BatsLine), "1"}}),
        Cat(Edit(TeamRecordLines("Ashby", 1, {1}), {{ReputationLine, "51"}}), TeamRecordLines("Bexley", 2, {4, 2}, 3),
            TeamRecordLines("Crane", 3, {6, 5}), TeamRecordLines("Dorne", 4, {1})));

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

    EXPECT_THAT(RunTool({"diff", after, before}).out, HasSubstr("player 7 (R J Garnet) removed\n"));
}

TEST_F(Diff, OneFolderIsComparedWithItsBackups)
{
    const fs::path game = GameOf(Players({0}), {});
    const ToolRun noBackups = RunTool({"diff", game});
    EXPECT_EQ(noBackups.code, 2);
    EXPECT_THAT(noBackups.err, HasSubstr("players.dat.bak"));

    // The backups are the files before, the folder's own files after.
    WriteBytes(game / "players.dat.bak", PlayersBytes(PlayerRecordLines(1, "Arlo")));
    WriteBytes(game / "teams.dat.bak", TeamsBytes({}));
    const ToolRun run = RunTool({"diff", game});
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.out, "player 1 (R J Arlow): surname \"Arlo\" -> \"Arlow\"\n");
}

}  // namespace
