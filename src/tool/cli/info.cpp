#include <array>
#include <ostream>

#include "cli/commands.h"
#include "cli/game_folder.h"
#include "data/squad.h"
#include "data/code_lists.h"

namespace {

constexpr std::string_view Usage =
    "Usage: kolta-data info DIR\n"
    "Loads the game in DIR as the editor does and prints its two counters,\n"
    "then a summary:\n"
    "  PlayerCount=N   the number of the last player read from players.dat\n"
    "  TeamCount=N     two above the number of teams read from teams.dat\n"
    "A missing file loads as the editor loads it (no players, or no teams)\n"
    "and is reported on the error stream. Exit 0, or 2 when neither file is\n"
    "there or one is there but cannot be read (a pipe, a device, a folder).\n";

void PrintSummary(const Game& game, std::ostream& out)
{
    const auto holders = TeamsHoldingEachPlayer(game);
    int inSquad = 0;
    int emptySlots = 0;  // numbers below PlayerCount that no record of the file had
    for (int player = 1; player <= LoadedPlayerCount(game); ++player) {
        if (game.Players[player].playerNumber == 0)
            ++emptySlots;
        else if (!holders[player].empty())
            ++inSquad;
    }
    out << "Players in a squad: " << inSquad << '\n'
        << "Players without a team: " << LoadedPlayerCount(game) - inSquad - emptySlots << '\n';
    if (emptySlots > 0)
        out << "Empty player slots (saved as blank players): " << emptySlots << '\n';
    out << "Teams: " << LoadedTeamCount(game) << '\n'
        << "Teams per country:\n";

    std::array<int, Combo1CountryList.size()> perCountry{};
    int unreachable = 0;
    for (int team = 1; team <= LoadedTeamCount(game); ++team) {
        const int country = game.Teams[team].homeCountry;
        if (country >= 1 && country <= static_cast<int>(perCountry.size()))
            ++perCountry[country - 1];
        else
            ++unreachable;
    }
    for (std::size_t i = 0; i < perCountry.size(); ++i)
        out << "  " << Combo1CountryList[i] << ": " << perCountry[i] << '\n';
    if (unreachable > 0)
        out << "  (no country the editor lists): " << unreachable << '\n';
}

int RunInfo(const CommandLine& line, std::ostream& out, std::ostream& err)
{
    const std::string& directory = line.positional[0];
    const LoadedGame loaded = LoadGameFolder(directory);
    TellRecovery(loaded, "info", err);
    if ((!loaded.players.Read() && !loaded.teams.Read()) || !OnlyMissingFilesUnread(loaded)) {
        err << "kolta-data info: cannot read " << UnreadFiles(loaded) << '\n';
        return ExitFailed;
    }
    if (!loaded.BothRead())
        err << "kolta-data info: cannot read " << UnreadFiles(loaded) << "; loaded without it, as the editor would\n";

    const Game& game = *loaded.game;
    out << "PlayerCount=" << game.PlayerCount << '\n' << "TeamCount=" << game.TeamCount << '\n';
    PrintSummary(game, out);
    return ExitOk;
}

}  // namespace

const Subcommand& InfoCommand()
{
    static const Subcommand command{"info", "print the counters and a summary of a game folder", Usage,
                                    {}, 1, 1, RunInfo};
    return command;
}
