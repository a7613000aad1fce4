#include "search/search_filters.h"

#include <algorithm>

#include "data/squad.h"

namespace {

using Field = std::int16_t PlayerRecord::*;

SearchRows ClubStage(const Game& game, int team)
{
    if (team <= 0)
        return SearchRows(game.Players.begin() + 1, game.Players.end());
    SearchRows rows;
    if (!IsTeamIndex(team))
        return rows;
    for (int slot = 1; slot <= SquadSize; ++slot) {
        const std::int16_t player = game.Teams[team].squad[slot];
        if (IsPlayerNumber(player))
            rows.push_back(game.Players[player]);
    }
    return rows;
}

// Keeps the rows whose `field` equals `code`, in their order.
void FilterStage(SearchRows& rows, Field field, std::int16_t code)
{
    if (code <= 0)
        return;
    std::erase_if(rows, [&](const PlayerRecord& row) { return row.*field != code; });
}

}  // namespace

SearchRows RunFilters(const Game& game, const SearchFilters& filters)
{
    SearchRows rows = ClubStage(game, filters.team);
    FilterStage(rows, &PlayerRecord::homeCountry, filters.nationality);
    FilterStage(rows, &PlayerRecord::batPosition, filters.batPosition);
    FilterStage(rows, &PlayerRecord::bowlType, filters.bowlType);
    FilterStage(rows, &PlayerRecord::fieldsAt, filters.fieldsAt);
    const auto blank = std::find_if(rows.begin(), rows.end(), [](const PlayerRecord& row) { return row.surname.empty(); });
    rows.erase(blank, rows.end());
    return rows;
}
