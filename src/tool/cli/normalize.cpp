#include <ostream>

#include "cli/commands.h"
#include "cli/game_folder.h"
#include "data/names.h"
#include "data/save.h"

namespace {

constexpr std::string_view Usage =
    "Usage: kolta-data normalize [--force] DIR\n"
    "Loads players.dat and teams.dat from DIR and writes them back exactly as the\n"
    "editor's save does. The first save keeps the old files as players.dat.bak\n"
    "and teams.dat.bak, the first save ever in the folder as .orig. Nothing is\n"
    "changed when either file is missing or a name cannot be stored, nor when the\n"
    "load could not keep everything the files hold (teams past 500, players past\n"
    "2000, records after the one that ends the file, records without a usable\n"
    "number): the message says what would be lost. After a save, an editor that\n"
    "has DIR open is told of on the error stream: it still holds the old game.\n"
    "  --force   save even so, without what the load could not keep\n"
    "Exit 0 on success, 1 when the save was refused, 2 when a file can't be read\n"
    "or written.\n";

int RunNormalize(const CommandLine& line, std::ostream& out, std::ostream& err)
{
    const LoadedGame loaded = LoadGameFolder(line.positional[0]);
    TellRecovery(loaded, "normalize", err);
    if (!loaded.BothRead()) {
        err << "kolta-data normalize: cannot read " << UnreadFiles(loaded) << "; nothing was changed\n";
        return ExitFailed;
    }
    Game& game = *loaded.game;
    if (const auto fault = FirstUnstorableName(game)) {
        err << "kolta-data normalize: " << fault->file << ": " << fault->description << "; nothing was changed\n";
        return ExitFound;
    }
    if (!game.LoadDropped.empty() && !line.Has("--force")) {
        err << "kolta-data normalize: saving would lose what the load could not keep: " << game.LoadDropped
            << "; nothing was changed (--force saves without it)\n";
        return ExitFound;
    }
    if (const FileResult saved = SaveGame(game, true); !saved.ok()) {
        err << "kolta-data normalize: " << saved.path << ": " << saved.reason << '\n';
        return ExitFailed;
    }
    out << "Wrote " << game.PlayersPath << " and " << game.TeamsPath << '\n';
    TellOpenEditor(line.positional[0], "normalize", err);
    return ExitOk;
}

}  // namespace

const Subcommand& NormalizeCommand()
{
    static const Subcommand command{"normalize", "write both files back as the editor's save does", Usage,
                                    {{"--force"}, {}}, 1, 1, RunNormalize};
    return command;
}
