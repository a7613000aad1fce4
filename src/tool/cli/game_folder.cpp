#include "cli/game_folder.h"

#include "data/file_steps.h"
#include "data/folder_lock.h"
#include "data/load_game.h"

namespace {

LoadedGame Load(const std::string& directory, const std::string& suffix)
{
    LoadedGame loaded;
    loaded.game = std::make_unique<Game>();
    SetGameDirectory(*loaded.game, directory);
    loaded.game->PlayersPath += suffix;
    loaded.game->TeamsPath += suffix;
    GameLoad load = LoadGame(*loaded.game);
    loaded.players = std::move(load.players);
    loaded.teams = std::move(load.teams);
    loaded.recovered = std::move(load.recovered);
    return loaded;
}

}  // namespace

LoadedGame LoadGameFolder(const std::string& directory)
{
    return Load(directory, "");
}

LoadedGame LoadGameBeside(const std::string& directory, const std::string& suffix)
{
    return Load(directory, suffix);
}

bool OnlyMissingFilesUnread(const LoadedGame& loaded)
{
    return (loaded.players.Read() || !Exists(loaded.game->PlayersPath)) &&
           (loaded.teams.Read() || !Exists(loaded.game->TeamsPath));
}

std::string UnreadFiles(const LoadedGame& loaded)
{
    const auto unread = [](const std::string& path, const LoadReport& report) {
        return path + " (" + report.failure + ")";
    };
    const std::string& players = loaded.game->PlayersPath;
    const std::string& teams = loaded.game->TeamsPath;
    if (!loaded.players.Read() && !loaded.teams.Read())
        return unread(players, loaded.players) + " and " + unread(teams, loaded.teams);
    if (!loaded.players.Read())
        return unread(players, loaded.players);
    if (!loaded.teams.Read())
        return unread(teams, loaded.teams);
    return {};
}

void TellRecovery(const LoadedGame& loaded, std::string_view command, std::ostream& err)
{
    if (!loaded.recovered.empty())
        err << "kolta-data " << command << ": " << loaded.recovered << '\n';
}

void TellOpenEditor(const std::string& directory, std::string_view command, std::ostream& err)
{
    if (EditorHasFolderOpen(directory))
        err << "kolta-data " << command << ": an editor has " << directory
            << " open and still holds the game as it was before\n";
}
