#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cli_folder.h"

using testing::HasSubstr;
using testing::StartsWith;

namespace {

class InfoNormalize : public CliTest {
protected:
    std::string Counters(const fs::path& game)
    {
        const ToolRun run = RunTool({"info", game.string()});
        EXPECT_EQ(run.code, 0) << run.err;
        const auto lines = run.OutLines();
        return lines.size() < 2 ? run.out : lines[0] + " " + lines[1];
    }
};

TEST_F(InfoNormalize, CountersAsTheLoadLeavesThem)
{
    const Lines one = TeamRecordLines("Ashby", 1);
    Lines fullTable;
    for (int team = 1; team <= 501; ++team)
        fullTable = Cat(fullTable, TeamRecordLines("Team", team));
    struct Case {
        const char* what;
        std::string players;
        std::string teams;
        const char* counters;
    };
    const std::vector<Case> cases{
        {"the sample game", FileBytes(KOLTA_SAMPLE "/players.dat"), FileBytes(KOLTA_SAMPLE "/teams.dat"),
         "PlayerCount=861 TeamCount=46"},
        {"empty files", "", "", "PlayerCount=0 TeamCount=2"},
        {"the last number, not the highest",
         PlayersBytes(Cat(PlayerRecordLines(1), PlayerRecordLines(2), PlayerRecordLines(5), PlayerRecordLines(3))),
         TeamsBytes(one), "PlayerCount=3 TeamCount=3"},
        {"a number read twice in a row ends the load",
         PlayersBytes(Cat(PlayerRecordLines(1), PlayerRecordLines(2), PlayerRecordLines(2), PlayerRecordLines(3))),
         Join(Cat(one, one, EmptyLines(1))), "PlayerCount=2 TeamCount=4"},
        {"files that stop right after a record", Join(PlayerRecordLines(4)), Join(one),
         "PlayerCount=4 TeamCount=3"},
        {"more teams than the table holds", PlayersBytes(PlayerRecordLines(1)), TeamsBytes(fullTable),
         "PlayerCount=1 TeamCount=502"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(Counters(GameFolder(c.players, c.teams)), c.counters) << c.what;
}

TEST_F(InfoNormalize, SummaryCountsSquadsAndCountries)
{
    const Lines players = Cat(PlayerRecordLines(1, "Arlow", 1), PlayerRecordLines(2, "Brenick"),
                              PlayerRecordLines(4, "Dunmore", 2));
    const Lines teams = Cat(TeamRecordLines("Ashby", 1, {1}, 8), TeamRecordLines("Bexley", 2, {4}, 8),
                            TeamRecordLines("Crane", 3, {}, 11));
    const ToolRun run = RunTool({"info", GameFolder(PlayersBytes(players), TeamsBytes(teams)).string()});
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
    const Lines player = With(With(With(PlayerRecordLines(1, "Mardle "), 2, "x"), InitialsLine, "  R J #"),
                              BatSkillLine, "030");
    const Lines team = With(With(TeamRecordLines("Ashby ", 99, {0, 1}), 1, "7"), 9, "5");
    const std::string players = Join(Cat(player, PlayerRecordLines(3, "Corvane")));
    const std::string teams = Join(Cat(team, EmptyLines(20), Lines{"stray"}));
    const fs::path game = GameFolder(players, teams);

    const ToolRun run = RunTool({"normalize", game.string()});
    EXPECT_EQ(run.code, 0) << run.err;
    const Lines blankPlayer2{"2", "#", "#", "#", "0", "0", "0", "0", "0", "0", "0", "0", "0",
                             "0", "0", "0", "0", "0", "0", "0", "0"};
    EXPECT_EQ(FileBytes(game / "players.dat"),
              PlayersBytes(Cat(With(With(PlayerRecordLines(1, "Mardle "), InitialsLine, "R J#"), BatSkillLine, "30"),
                               blankPlayer2, PlayerRecordLines(3, "Corvane"))));
    EXPECT_EQ(FileBytes(game / "teams.dat"), TeamsBytes(TeamRecordLines("Ashby ", 1, {0, 1})));
    EXPECT_EQ(FileBytes(game / "players.dat.bak"), players);
    EXPECT_EQ(FileBytes(game / "teams.dat.bak"), teams);
}

TEST_F(InfoNormalize, NormalizeChangesNothingItCannotWriteWhole)
{
    const fs::path noTeams = NewFolder("noteams");
    const std::string players = PlayersBytes(PlayerRecordLines(1));
    WriteBytes(noTeams / "players.dat", players);
    const ToolRun missing = RunTool({"normalize", noTeams.string()});
    EXPECT_EQ(missing.code, 2);
    EXPECT_THAT(missing.err, HasSubstr("teams.dat"));
    EXPECT_EQ(FileBytes(noTeams / "players.dat"), players);
    EXPECT_FALSE(fs::exists(noTeams / "teams.dat"));
    EXPECT_FALSE(fs::exists(noTeams / "players.dat.bak"));

    // A quoted surname brings a comma into memory, which no save can write back.
    const std::string quoted = PlayersBytes(With(PlayerRecordLines(1), SurnameLine, "\"Mar,dle#\""));
    const fs::path game = GameFolder(quoted, TeamsBytes(TeamRecordLines("Ashby", 1)));
    const ToolRun refused = RunTool({"normalize", game.string()});
    EXPECT_EQ(refused.code, 1);
    EXPECT_THAT(refused.err, HasSubstr("comma"));
    EXPECT_EQ(FileBytes(game / "players.dat"), quoted);
    EXPECT_FALSE(fs::exists(game / "players.dat.bak"));

    // info still reads a folder with one file, as the editor would.
    const ToolRun info = RunTool({"info", noTeams.string()});
    EXPECT_EQ(info.code, 0);
    EXPECT_THAT(info.out, StartsWith("PlayerCount=1\nTeamCount=2\n"));
    EXPECT_EQ(RunTool({"info", NewFolder("nothing").string()}).code, 2);
}

TEST_F(InfoNormalize, EveryCommandExplainsItselfAndRefusesWrongArguments)
{
    for (const char* command : {"info", "normalize", "check", "export", "import", "diff"}) {
        const ToolRun help = RunTool({command, "--help"});
        EXPECT_EQ(help.code, 0) << command;
        EXPECT_THAT(help.out, StartsWith(std::string("Usage: kolta-data ") + command)) << command;
        EXPECT_EQ(RunTool({command}).code, 2) << command;
        const ToolRun unknown = RunTool({command, "--colour", KOLTA_SAMPLE});
        EXPECT_EQ(unknown.code, 2) << command;
        EXPECT_THAT(unknown.err, HasSubstr("unknown option --colour")) << command;
    }
    EXPECT_THAT(RunTool({"--version"}).out, StartsWith("kolta-data "));
    EXPECT_EQ(RunTool({"frobnicate"}).code, 2);
    EXPECT_EQ(RunTool({"info", KOLTA_SAMPLE, KOLTA_SAMPLE}).code, 2);
}

}  // namespace
