#include "cli/squads.h"

#include <algorithm>

std::vector<std::vector<int>> TeamsHoldingEachPlayer(const Game& game)
{
    std::vector<std::vector<int>> holders(MaxPlayers + 1);
    for (int team = 1; team <= LoadedTeamCount(game); ++team) {
        for (int place = 1; place <= SquadSize; ++place) {
            const int player = game.Teams[team].squad[place];
            if (player >= 1 && player <= MaxPlayers)
                holders[player].push_back(team);
        }
    }
    return holders;
}

int LoadedPlayerCount(const Game& game)
{
    return std::clamp<int>(game.PlayerCount, 0, MaxPlayers);
}
