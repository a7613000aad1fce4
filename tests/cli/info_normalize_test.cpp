#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cli_folder.h"

using testing::HasSubstr;
using testing::StartsWith;

namespace {

class InfoNormalize : public CliTest {};

TEST_F(InfoNormalize, InfoGivesTheCountersAndASummary)
{
    EXPECT_THAT(RunTool({"info", KOLTA_SAMPLE}).out, StartsWith("PlayerCount=861\nTeamCount=46\n"));
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
    const std::string teams = Join(Cat(team, EmptyLines(20), Lines{"stray"}));
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
    const fs::path comma = GameFolder(quoted, TeamsBytes(team), "comma");
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
    for (const char* command : {"check", "normalize"}) {
        const ToolRun run = RunTool({command, half});
        EXPECT_EQ(run.code, 2) << command;
        EXPECT_THAT(run.err, HasSubstr("teams.dat")) << command;
    }
    EXPECT_EQ(FileBytes(half / "players.dat"), players);
    EXPECT_FALSE(fs::exists(half / "teams.dat"));
    EXPECT_FALSE(fs::exists(half / "players.dat.bak"));
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

}  // namespace
