#pragma once

#include <vector>

#include "data/game.h"

// For every player number from 0 to 2000, the loaded teams whose squads name
// him, once per place, in team order. Places that hold 0 or a number with no
// slot in the table are left out.
std::vector<std::vector<int>> TeamsHoldingEachPlayer(const Game& game);

// Number of players that stand in slots 1 to PlayerCount, never past the table.
int LoadedPlayerCount(const Game& game);
