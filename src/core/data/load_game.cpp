#include "data/load_game.h"

#include <filesystem>

#include "data/players_file.h"
#include "data/save.h"
#include "data/teams_file.h"

GameLoad LoadGame(Game& game)
{
    const std::filesystem::path players(game.PlayersPath);
    GameLoad load;
    load.recovered = RecoverInterruptedSave(players.has_parent_path() ? players.parent_path().string() : ".");
    load.players = ReadPlayersFile(game);
    load.teams = ReadTeamsFile(game);
    game.LoadedStamp = GameFilesStamp(game);
    game.LoadDropped.clear();
    for (const LoadReport* report : {&load.players, &load.teams}) {
        const std::string dropped = report->DroppedText();
        if (!dropped.empty())
            game.LoadDropped += (game.LoadDropped.empty() ? "" : "; ") + dropped;
    }
    return load;
}
