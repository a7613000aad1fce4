#pragma once

#include <string>
#include <vector>

#include "data/game.h"

// One difference between two games, said for a person (`text`) and for tools.
struct Difference {
    std::string change;  // "added", "removed", "changed", "moved", "rearranged"
    std::string file;    // "players.dat" or "teams.dat"
    int record = 0;      // the player's or the team's number
    std::string field;   // for "changed"
    std::string from;    // old value, or the old team's number for "moved"
    std::string to;
    std::string text;
};

// Record by record and field by field. Squad changes come as players that
// moved, joined or left; a squad that holds the same players in other places
// comes as "rearranged".
std::vector<Difference> CompareGames(const Game& before, const Game& after);
