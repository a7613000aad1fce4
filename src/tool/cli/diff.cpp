#include <ostream>

#include "cli/commands.h"
#include "cli/game_folder.h"
#include "cli/output.h"
#include "diff/differences.h"

namespace {

constexpr std::string_view Usage =
    "Usage: kolta-data diff [--json] [--orig] DIR_A [DIR_B]\n"
    "Lists what differs between two game folders, record by record and field by\n"
    "field: players and teams added, removed and changed, and squad moves\n"
    "(\"player 17 (A J Example) moved from team 4 (...) to team 7 (...)\").\n"
    "With one folder, compares players.dat.bak and teams.dat.bak, the files the\n"
    "first save of a run kept, with the files as they are now.\n"
    "  --orig   with one folder, compare players.dat.orig and teams.dat.orig,\n"
    "           the files as the first save ever in the folder found them\n"
    "  --json   one JSON object a line instead\n"
    "Exit 0 when nothing differs, 1 when something does, 2 when a file can't be read.\n";

int RunDiff(const CommandLine& line, std::ostream& out, std::ostream& err)
{
    const bool againstBackups = line.positional.size() == 1;
    if (line.Has("--orig") && !againstBackups) {
        err << "kolta-data diff: --orig compares one folder with its .orig files\n";
        return ExitFailed;
    }
    const std::string suffix = line.Has("--orig") ? ".orig" : ".bak";
    const LoadedGame before = againstBackups ? LoadGameBeside(line.positional[0], suffix)
                                             : LoadGameFolder(line.positional[0]);
    const LoadedGame after = LoadGameFolder(line.positional[againstBackups ? 0 : 1]);
    for (const LoadedGame* loaded : {&before, &after}) {
        TellRecovery(*loaded, "diff", err);
        if (!loaded->BothRead()) {
            err << "kolta-data diff: cannot read " << UnreadFiles(*loaded) << '\n';
            return ExitFailed;
        }
    }
    const std::vector<Difference> differences = CompareGames(*before.game, *after.game);
    for (const Difference& difference : differences)
        out << (line.Has("--json") ? DifferenceJson(difference) : difference.text) << '\n';
    return differences.empty() ? ExitOk : ExitFound;
}

}  // namespace

const Subcommand& DiffCommand()
{
    static const Subcommand command{"diff", "what differs between two game folders, or a folder and its backups",
                                    Usage, {{"--json", "--orig"}, {}}, 1, 2, RunDiff};
    return command;
}
