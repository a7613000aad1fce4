#include "cli/game_folder.h"

#include "data/players_file.h"
#include "data/teams_file.h"

namespace {

LoadedGame Load(const std::string& directory, const std::string& suffix)
{
    LoadedGame loaded{std::make_unique<Game>()};
    SetGameDirectory(*loaded.game, directory);
    loaded.game->PlayersPath += suffix;
    loaded.game->TeamsPath += suffix;
    loaded.playersRead = ReadPlayersFile(*loaded.game);
    loaded.teamsRead = ReadTeamsFile(*loaded.game);
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
    const std::string players = loaded.game->PlayersPath;
    const std::string teams = loaded.game->TeamsPath;
    if (!loaded.playersRead && !loaded.teamsRead)
        return players + " and " + teams;
    if (!loaded.playersRead)
        return players;
    if (!loaded.teamsRead)
        return teams;
    return {};
}
