#pragma once

#include <cstdint>
#include <vector>

#include "data/game.h"

// The players a search finds, as copies taken when it ran, in the order the
// stages or the sort left them.
using SearchRows = std::vector<PlayerRecord>;

// A search narrows the players in five stages, each keeping whole records:
// club, nationality, batting type, bowling type and fielding type. A code of
// 0 or below opens its stage: every row goes through.
struct SearchFilters {
    int team = 0;                  // 0: all clubs
    std::int16_t nationality = 0;  // 0 everywhere: no filter
    std::int16_t batPosition = 0;
    std::int16_t bowlType = 0;
    std::int16_t fieldsAt = 0;
};

// Runs the five stages. All clubs start from every player slot, 1 to 2000,
// in the order of their numbers; one club from the players of its squad in
// the order of its places, where empty places and numbers that name no player
// give no row. The first row with an empty surname ends what the search
// lists, wherever he survives the filters.
SearchRows RunFilters(const Game& game, const SearchFilters& filters);
