#include <optional>
#include <ostream>
#include <utility>

#include "cli/commands.h"
#include "diff/differences.h"
#include "cli/game_folder.h"
#include "csv/import_rows.h"
#include "data/file_io.h"
#include "data/file_steps.h"
#include "data/save.h"

namespace {

constexpr std::string_view Usage =
    "Usage: kolta-data import [--dry-run] [--force] DIR IN\n"
    "Reads IN/players.csv and IN/teams.csv, as export writes them (either may be\n"
    "left out), into the game in DIR. A row edits the player or team with its\n"
    "number; a row with the next free number, or an empty number, adds one. Columns\n"
    "left out of a file keep their values; an empty cell is 0. The word columns are\n"
    "only compared with their numbers. A player whom teams.csv moves into or out\n"
    "of a squad takes that team as his teamNumber, as the editor's squad commands\n"
    "do, unless his own row in players.csv changes it.\n"
    "When any row is wrong (an unknown column, a number that is no 16-bit whole\n"
    "number, a name the files cannot carry, a squad over 20, a number beyond\n"
    "2000 players or 500 teams, a player put into two squads) every wrong row is\n"
    "listed by its line and nothing is changed. Otherwise the changes are listed\n"
    "and both files are saved as the editor saves them, the old ones kept as .bak.\n"
    "A CSV file that is there but cannot be read stops the import. So does a game\n"
    "whose load could not keep everything its files hold, unless --force. After a\n"
    "save, an editor that has DIR open is told of on the error stream: it still\n"
    "holds the game as it was before the import.\n"
    "  --dry-run   list the changes and save nothing\n"
    "  --force     save even without what the load could not keep\n"
    "Exit 0 on success, 1 when the import was refused, 2 when a file can't be read\n"
    "or written.\n";

int RunImport(const CommandLine& line, std::ostream& out, std::ostream& err)
{
    const LoadedGame loaded = LoadGameFolder(line.positional[0]);
    TellRecovery(loaded, "import", err);
    if (!loaded.BothRead()) {
        err << "kolta-data import: cannot read " << UnreadFiles(loaded) << '\n';
        return ExitFailed;
    }
    const std::string& folder = line.positional[1];
    std::optional<std::string> playersText;
    std::optional<std::string> teamsText;
    for (auto [name, text] : {std::pair{"players.csv", &playersText}, std::pair{"teams.csv", &teamsText}}) {
        const std::string path = JoinPath(folder, name);
        if (!Exists(path))
            continue;  // left out
        FileBytes read = ReadFileBytes(path);
        if (!read.ok()) {
            err << "kolta-data import: cannot read " << path << " (" << read.reason << "); nothing was changed\n";
            return ExitFailed;
        }
        *text = std::move(read.bytes);
    }
    if (!playersText && !teamsText) {
        err << "kolta-data import: neither players.csv nor teams.csv can be read in " << folder << '\n';
        return ExitFailed;
    }
    Game& game = *loaded.game;
    const auto before = std::make_unique<Game>(game);
    const std::vector<RowFault> faults = ImportCsv(game, playersText, teamsText);
    if (!faults.empty()) {
        for (const RowFault& fault : faults)
            err << fault.file << (fault.line > 0 ? ":" + std::to_string(fault.line) : std::string{}) << ": "
                << fault.message << '\n';
        err << "kolta-data import: nothing was changed (" << faults.size()
            << (faults.size() == 1 ? " fault)\n" : " faults)\n");
        return ExitFound;
    }

    const std::vector<Difference> changes = CompareGames(*before, game);
    for (const Difference& change : changes)
        out << change.text << '\n';
    if (changes.empty()) {
        out << "Nothing to change.\n";
        return ExitOk;
    }
    if (line.Has("--dry-run")) {
        out << "Dry run: nothing was saved (" << changes.size() << " changes).\n";
        return ExitOk;
    }
    if (!game.LoadDropped.empty() && !line.Has("--force")) {
        err << "kolta-data import: saving would lose what the load could not keep: " << game.LoadDropped
            << "; nothing was changed (--force saves without it)\n";
        return ExitFound;
    }
    if (const FileResult saved = SaveGame(game, true); !saved.ok()) {
        err << "kolta-data import: " << saved.path << ": " << saved.reason << '\n';
        return ExitFailed;
    }
    out << "Saved " << changes.size() << " changes; the old files are kept as .bak.\n";
    TellOpenEditor(line.positional[0], "import", err);
    return ExitOk;
}

}  // namespace

const Subcommand& ImportCommand()
{
    static const Subcommand command{"import", "read players.csv and teams.csv back into a game folder", Usage,
                                    {{"--dry-run", "--force"}, {}}, 2, 2, RunImport};
    return command;
}
