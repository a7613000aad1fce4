#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

#include "check/problems.h"
#include "cli/commands.h"
#include "cli/game_folder.h"
#include "cli/output.h"
#include "data/file_io.h"

namespace {

constexpr std::string_view Usage =
    "Usage: kolta-data check [--json] DIR\n"
    "Loads the game in DIR as the editor does and lists every problem, one a line:\n"
    "  FILE: RECORD: FIELD: error|warning: what is wrong\n"
    "RECORD is the player's number, or the team's place in teams.dat.\n"
    "Errors are what the game or the editor would misread: a player in two squads\n"
    "or twice in one, a squad naming a player who does not exist, a name the files\n"
    "cannot carry, more than 2000 players or 500 teams, two records with one number,\n"
    "a number line that holds no number, records the load never reaches. Warnings:\n"
    "a teamNumber that disagrees with the squad holding the player, a squad with\n"
    "gaps, a code outside its list, a skill outside its range, a team in no listed\n"
    "country, an empty surname, a birth date that cannot be, a name line without\n"
    "its closing \"#\". Errors come first, then warnings, then the count.\n"
    "  --json   one JSON object a line instead, the count last\n"
    "Exit 0 when there is no error, 1 when there is, 2 when the folder can't be read.\n";

int RunCheck(const CommandLine& line, std::ostream& out, std::ostream& err)
{
    const LoadedGame loaded = LoadGameFolder(line.positional[0]);
    TellRecovery(loaded, "check", err);
    const auto playersBytes = ReadWholeFile(loaded.game->PlayersPath);
    const auto teamsBytes = ReadWholeFile(loaded.game->TeamsPath);
    if (!loaded.BothRead() || !playersBytes || !teamsBytes) {
        err << "kolta-data check: cannot read " << UnreadFiles(loaded) << '\n';
        return ExitFailed;
    }

    const std::vector<Problem> problems = ProblemsOfGame(*loaded.game, *playersBytes, *teamsBytes);

    const auto errors = std::count_if(problems.begin(), problems.end(),
                                      [](const Problem& p) { return p.severity == Severity::Error; });
    const auto warnings = static_cast<long>(problems.size()) - errors;
    const bool json = line.Has("--json");
    for (const Problem& problem : problems)
        out << (json ? ProblemJson(problem) : ProblemLine(problem)) << '\n';
    if (json)
        out << "{\"errors\":" << errors << ",\"warnings\":" << warnings << "}\n";
    else
        out << errors << (errors == 1 ? " error, " : " errors, ") << warnings
            << (warnings == 1 ? " warning\n" : " warnings\n");
    return errors > 0 ? ExitFound : ExitOk;
}

}  // namespace

const Subcommand& CheckCommand()
{
    static const Subcommand command{"check", "list every problem of a game folder, errors first", Usage,
                                    {{"--json"}, {}}, 1, 1, RunCheck};
    return command;
}
