#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cli_folder.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

namespace {

class InfoNormalize : public CliTest {};

TEST_F(InfoNormalize, InfoGivesTheCountersAndASummary)
{
    // No player 3; team 3 in no country the editor lists.
    const fs::path game = GameOf(Cat(Players({1, 0}), PlayerRecordLines(4, "Dunmore", 2)),
                                 Cat(TeamRecordLines("Ashby", 1, {1}, 8), TeamRecordLines("Bexley", 2, {4}, 8),
                                     TeamRecordLines("Crane", 3, {}, 11)));
    const ToolRun run = RunTool({"info", game});
    EXPECT_EQ(run.code, 0);
    EXPECT_THAT(run.out, StartsWith("PlayerCount=4\nTeamCount=5\n"
                                    "Players in a squad: 2\nPlayers without a team: 1\n"
                                    "Empty player slots (saved as blank players): 1\nTeams: 3\n"));
    EXPECT_THAT(run.out, HasSubstr("  West Indies and Mics.: 2\n"));
    EXPECT_THAT(run.out, HasSubstr("  (no country the editor lists): 1\n"));
}

TEST_F(InfoNormalize, NormalizeWritesWhatTheEditorsSaveWrites)
{
    // Line 2 of a player is dropped, blanks around initials go, numbers lose
    // their leading zeros, a team is numbered by its place, and whatever
    // follows the end sign is gone.
    const Lines player =
        With(With(With(PlayerRecordLines(1, "Mardle "), 2, "x"), InitialsLine, "  R J #"), BatSkillLine, "030");
    const Lines team = With(With(TeamRecordLines("Ashby ", 99, {0, 1}), 1, "7"), 9, "5");
    const std::string players = Join(Cat(player, PlayerRecordLines(3, "Corvane")));
    const std::string teams = Join(Cat(team, Lines(20, ""), Lines{"stray"}));
    const fs::path game = GameFolder(players, teams);

    const ToolRun run = RunTool({"normalize", game});
    EXPECT_EQ(run.code, 0) << run.err;
    const Lines blankPlayer2 = Cat(Lines{"2", "#", "#", "#"}, Lines(17, "0"));
    EXPECT_EQ(FileBytes(game / "players.dat"),
              PlayersBytes(Cat(With(PlayerRecordLines(1, "Mardle "), BatSkillLine, "30"), blankPlayer2,
                               PlayerRecordLines(3, "Corvane"))));
    EXPECT_EQ(FileBytes(game / "teams.dat"), TeamsBytes(TeamRecordLines("Ashby ", 1, {0, 1})));
    EXPECT_EQ(FileBytes(game / "players.dat.bak"), players);
    EXPECT_EQ(FileBytes(game / "teams.dat.bak"), teams);

    // A quoted surname brings a comma into memory, which no save can write back;
    // an export still carries it, quoted.
    const std::string quoted = PlayersBytes(With(PlayerRecordLines(1), SurnameLine, "\"Mar,dle#\""));
    const fs::path comma = GameFolder(quoted, TeamsBytes(team));
    const ToolRun refused = RunTool({"normalize", comma});
    EXPECT_EQ(refused.code, 1);
    EXPECT_THAT(refused.err, HasSubstr("comma"));
    EXPECT_EQ(FileBytes(comma / "players.dat"), quoted);
    EXPECT_FALSE(fs::exists(comma / "players.dat.bak"));
    EXPECT_THAT(FileBytes(Export(comma) / "players.csv"), HasSubstr(",\"Mar,dle\","));
}

TEST_F(InfoNormalize, AFolderWithOnlyPlayersDatIsReadButNeverWritten)
{
    const fs::path half = NewFolder("half");
    const std::string players = PlayersBytes(PlayerRecordLines(1));
    WriteBytes(half / "players.dat", players);
    EXPECT_THAT(RunTool({"info", half}).out, StartsWith("PlayerCount=1\nTeamCount=2\n"));
    EXPECT_EQ(RunTool({"check", half}).code, 2);
    EXPECT_EQ(RunTool({"normalize", half}).code, 2);
    EXPECT_EQ(FileBytes(half / "players.dat"), players);
    EXPECT_EQ(std::distance(fs::directory_iterator(half), {}), 1);  // no teams.dat, no backup
    EXPECT_EQ(RunTool({"info", NewFolder("nothing")}).code, 2);
}

TEST_F(InfoNormalize, EveryCommandRefusesWrongArguments)
{
    for (const char* command : {"info", "normalize", "check", "export", "import", "diff"}) {
        EXPECT_EQ(RunTool({command, "--help"}).code, 0) << command;
        EXPECT_EQ(RunTool({command}).code, 2) << command;
        EXPECT_THAT(RunTool({command, "--colour", KOLTA_SAMPLE}).err, HasSubstr("unknown option --colour")) << command;
    }
    EXPECT_EQ(RunTool({"frobnicate"}).code, 2);
    EXPECT_EQ(RunTool({"info", KOLTA_SAMPLE, KOLTA_SAMPLE}).code, 2);
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
        With(With(Players({1, 2, 0, 2, 3, 3, 0}), OfPlayer(4, SurnameLine), "Dunmoore#"), OfPlayer(4, BatsLine), "1"),
        Cat(With(TeamRecordLines("Ashby", 1, {1}), ReputationLine, "51"), TeamRecordLines("Bexley", 2, {4, 2}, 3),
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
