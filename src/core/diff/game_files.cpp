#include "diff/game_files.h"

#include "data/players_file.h"
#include "data/teams_file.h"

std::unique_ptr<Game> ReadGameFiles(const std::string& directory, const std::string& suffix)
{
    auto game = std::make_unique<Game>();
    SetGameDirectory(*game, directory);
    game->PlayersPath += suffix;
    game->TeamsPath += suffix;
    if (!ReadPlayersFile(*game).Read() || !ReadTeamsFile(*game).Read())
        return nullptr;
    return game;
}
