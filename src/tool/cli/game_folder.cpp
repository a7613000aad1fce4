#include "cli/game_folder.h"

#include "data/players_file.h"
#include "data/teams_file.h"

namespace {

LoadedGame Load(const std::string& directory, const std::string& suffix)
{
    LoadedGame loaded;
    loaded.game = std::make_unique<Game>();
    SetGameDirectory(*loaded.game, directory);
    loaded.game->PlayersPath += suffix;
    loaded.game->TeamsPath += suffix;
    loaded.players = ReadPlayersFile(*loaded.game);
    loaded.teams = ReadTeamsFile(*loaded.game);
    return loaded;
}

}  // namespace

LoadedGame LoadGameFolder(const std::string& directory)
{
    return Load(directory, "");
}

LoadedGame LoadGameBackups(const std::string& directory)
{
    return Load(directory, ".bak");
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
