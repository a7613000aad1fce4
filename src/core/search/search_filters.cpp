#include "search/search_filters.h"

#include <algorithm>

#include "data/squad.h"

namespace {

using Field = std::int16_t PlayerRecord::*;

struct StageResult {
    bool filtered = false;
    int kept = 0;
};

// Copies the rows of `source` whose `field` equals `index` to the top of
// `target`, in their order, walking rows 1 to `scanLimit`. An index of 0 or
// below filters nothing: all 2000 rows are copied as they stand.
StageResult RunStage(const WorkingTable& source, WorkingTable& target, Field field, std::int16_t index,
                     int scanLimit)
{
    if (index <= 0) {
        std::copy(source.begin() + 1, source.end(), target.begin() + 1);
        return {};
    }
    int write = 1;
    for (int row = 1; row <= std::min(scanLimit, MaxPlayers); ++row) {
        if (source[row].*field == index)
            target[write++] = source[row];
    }
    return {true, write - 1};
}

// After a filtering stage the rows kept end on the first blank row behind
// them, so the next stage need walk no further than that.
int NextScanLimit(const StageResult& stage, int scanLimit)
{
    return stage.filtered ? stage.kept + 1 : scanLimit;
}

}  // namespace

void ClearWorkingTables(Game& game)
{
    for (WorkingTable* table :
         {&game.ClubMatches, &game.CountryMatches, &game.BatMatches, &game.BowlMatches, &game.FieldMatches})
        std::fill(table->begin() + 1, table->end(), game.BlankPlayer);
}

void ClubStage(Game& game, int team)
{
    if (team <= 0) {
        std::copy(game.Players.begin() + 1, game.Players.end(), game.ClubMatches.begin() + 1);
        return;
    }
    if (!IsTeamIndex(team))
        return;
    int write = 1;
    for (int slot = 1; slot <= SquadSize; ++slot) {
        const std::int16_t player = game.Teams[team].squad[slot];
        if (IsPlayerNumber(player))
            game.ClubMatches[write++] = game.Players[player];
    }
}

void FilterNationality(Game& game, std::int16_t nationIndex)
{
    RunStage(game.ClubMatches, game.CountryMatches, &PlayerRecord::homeCountry, nationIndex, MaxPlayers);
}

void FilterTypes(Game& game, std::int16_t batIndex, std::int16_t bowlIndex, std::int16_t fieldIndex)
{
    int scanLimit = MaxPlayers;
    const StageResult bat =
        RunStage(game.CountryMatches, game.BatMatches, &PlayerRecord::batPosition, batIndex, scanLimit);
    scanLimit = NextScanLimit(bat, scanLimit);
    const StageResult bowl =
        RunStage(game.BatMatches, game.BowlMatches, &PlayerRecord::bowlType, bowlIndex, scanLimit);
    scanLimit = NextScanLimit(bowl, scanLimit);
    RunStage(game.BowlMatches, game.FieldMatches, &PlayerRecord::fieldsAt, fieldIndex, scanLimit);
}

int RowsInUse(const WorkingTable& rows)
{
    const auto blank = std::find_if(rows.begin() + 1, rows.end(),
                                    [](const PlayerRecord& row) { return row.surname.empty(); });
    return static_cast<int>(blank - (rows.begin() + 1));
}

void RunFilters(Game& game, const SearchFilters& filters)
{
    ClearWorkingTables(game);
    ClubStage(game, filters.team);
    FilterNationality(game, filters.nationality);
    FilterTypes(game, filters.batPosition, filters.bowlType, filters.fieldsAt);
}
