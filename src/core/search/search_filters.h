#pragma once

#include <cstdint>

#include "data/game.h"

// A search narrows the players in five stages, each copying whole records
// from one working table into the next: club, nationality, batting type,
// bowling type and fielding type. The last table, FieldMatches, is what gets
// sorted and listed. In every table the first row with an empty surname ends
// the rows in use.

// Blanks all five working tables.
void ClearWorkingTables(Game& game);

// Fills ClubMatches. `team` 0 or below stands for all clubs: every player
// from number 1 to 2000, each at the row of his number. Otherwise the players
// of that team's squad, in the order of its places; empty places and numbers
// that name no player give no row.
void ClubStage(Game& game, int team);

// Keeps the rows of ClubMatches whose homeCountry is `nationIndex`, in
// CountryMatches; 0 or below keeps them all.
void FilterNationality(Game& game, std::int16_t nationIndex);

// Bat, bowl and field type stages, from CountryMatches to FieldMatches. An
// index of 0 or below keeps every row.
void FilterTypes(Game& game, std::int16_t batIndex, std::int16_t bowlIndex, std::int16_t fieldIndex);

// Rows in use at the top of a working table: those before the first empty surname.
int RowsInUse(const WorkingTable& rows);

// A whole search but the sort: clears the tables and runs the five stages.
struct SearchFilters {
    int team = 0;                  // 0: all clubs
    std::int16_t nationality = 0;  // 0 everywhere: no filter
    std::int16_t batPosition = 0;
    std::int16_t bowlType = 0;
    std::int16_t fieldsAt = 0;
};
void RunFilters(Game& game, const SearchFilters& filters);
