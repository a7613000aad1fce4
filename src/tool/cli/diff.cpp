#include <ostream>

#include "cli/commands.h"
#include "cli/game_folder.h"
#include "cli/json.h"
#include "diff/differences.h"

namespace {

constexpr std::string_view Usage =
    "Usage: kolta-data diff [--json] DIR_A [DIR_B]\n"
    "Lists what differs between two game folders, record by record and field by\n"
    "field: players and teams added, removed and changed, and squad moves\n"
    "(\"player 17 (A J Example) moved from team 4 (...) to team 7 (...)\").\n"
    "With one folder, compares players.dat.bak and teams.dat.bak, the files the\n"
    "first save kept, with the files as they are now.\n"
    "  --json   one JSON object a line instead\n"
    "Exit 0 when nothing differs, 1 when something does, 2 when a file can't be read.\n";

std::string DifferenceJson(const Difference& d)
{
    std::string json = "{\"change\":" + JsonString(d.change) + ",\"file\":" + JsonString(d.file) +
                       ",\"record\":" + std::to_string(d.record);
    if (!d.field.empty())
        json += ",\"field\":" + JsonString(d.field);
    if (d.change != "added" && d.change != "rearranged")
        json += ",\"from\":" + JsonString(d.from);
    if (d.change != "removed" && d.change != "rearranged")
        json += ",\"to\":" + JsonString(d.to);
    return json + ",\"text\":" + JsonString(d.text) + "}";
}

int RunDiff(const CommandLine& line, std::ostream& out, std::ostream& err)
{
    const bool againstBackups = line.positional.size() == 1;
    const LoadedGame before =
        againstBackups ? LoadGameBackups(line.positional[0]) : LoadGameFolder(line.positional[0]);
    const LoadedGame after = LoadGameFolder(line.positional[againstBackups ? 0 : 1]);
    for (const LoadedGame* loaded : {&before, &after}) {
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
                                    Usage, {{"--json"}, {}}, 1, 2, RunDiff};
    return command;
}
