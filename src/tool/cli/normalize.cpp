#include <ostream>

#include "cli/commands.h"
#include "cli/game_folder.h"
#include "data/names.h"
#include "data/save.h"

namespace {

constexpr std::string_view Usage =
    "Usage: kolta-data normalize DIR\n"
    "Loads players.dat and teams.dat from DIR and writes them back exactly as the\n"
    "editor's save does. The first save keeps the old files as players.dat.bak\n"
    "and teams.dat.bak. Nothing is changed when either file is missing or a name\n"
    "cannot be stored. Exit 0 on success, 1 when the save was refused, 2 when a\n"
    "file can't be read.\n";

int RunNormalize(const CommandLine& line, std::ostream& out, std::ostream& err)
{
    const LoadedGame loaded = LoadGameFolder(line.positional[0]);
    if (!loaded.BothRead()) {
        err << "kolta-data normalize: cannot read " << UnreadFiles(loaded) << "; nothing was changed\n";
        return ExitFailed;
    }
    Game& game = *loaded.game;
    if (const auto fault = FirstUnstorableName(game)) {
        err << "kolta-data normalize: " << fault->file << ": " << fault->description << "; nothing was changed\n";
        return ExitFound;
    }
    if (const FileResult saved = SaveGame(game); !saved.ok()) {
        err << "kolta-data normalize: " << saved.path << ": " << saved.reason << '\n';
        return ExitFailed;
    }
    out << "Wrote " << game.PlayersPath << " and " << game.TeamsPath << '\n';
    return ExitOk;
}

}  // namespace

const Subcommand& NormalizeCommand()
{
    static const Subcommand command{"normalize", "write both files back as the editor's save does", Usage,
                                    {}, 1, 1, RunNormalize};
    return command;
}
