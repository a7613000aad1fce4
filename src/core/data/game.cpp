#include "data/game.h"

#include <algorithm>
#include <filesystem>

void SetGameDirectory(Game& game, const std::string& directory)
{
    const std::filesystem::path dir(directory);
    if (directory != game.GameDirectory) {
        game.BackupsKept = false;
        game.LoadedStamp.clear();
    }
    game.GameDirectory = directory;
    game.PlayersPath = (dir / "players.dat").string();
    game.TeamsPath = (dir / "teams.dat").string();
}

void ClearTables(Game& game)
{
    std::fill(game.Players.begin(), game.Players.end(), PlayerRecord{});
    std::fill(game.Teams.begin(), game.Teams.end(), TeamRecord{});
    game.PlayerCount = 0;
    game.TeamCount = 0;
    game.LoadDropped.clear();
    game.LoadedStamp.clear();
}

std::int16_t TeamCountFor(int teams)
{
    return static_cast<std::int16_t>(teams + 2);
}

int LoadedTeamCount(const Game& game)
{
    return std::clamp(game.TeamCount - TeamCountFor(0), 0, MaxTeams);
}

int LastTeamSearched(const Game& game)
{
    return std::min<int>(game.TeamCount, MaxTeams);
}

int LoadedPlayerCount(const Game& game)
{
    return std::clamp<int>(game.PlayerCount, 0, MaxPlayers);
}
