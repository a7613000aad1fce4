#pragma once

#include "data/game.h"
#include "search/player_sort.h"
#include "search/search_filters.h"

// The floor under a search: the same five stages, then the rows in the same
// order by the standard library's stable sort, with no bar to move.
SearchRows SearchByStableSort(const Game& game, SortKey key);
