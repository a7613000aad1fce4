#pragma once

#include <cstdint>
#include <vector>

#include "data/game.h"

// Squads hold player numbers in places 1 to 20. The commands keep them packed:
// a team with n players has them in places 1 to n, in list order, and 0 in the
// rest, so that a row of the squad list and a place agree. A squad read from a
// file may have gaps; the helpers below count rows over the filled places only,
// as the squad list does. A number that names no player (below 1 or above
// 2000) is no player: it takes no row and counts as a free place.

// Whether `team` is a team of the table (1 to 500).
bool IsTeamIndex(int team);
// Whether `player` can name a record of `Players` (1 to 2000).
bool IsPlayerNumber(int player);

// Filled places of a squad: the rows the squad list shows.
int SquadCount(const TeamRecord& team);
// The place behind row `row` (from 0) of the squad list; 0 when there is none.
int SlotOfRow(const TeamRecord& team, int row);

// Closes place `slot` (1 to 20): the players behind it move up one place and
// place 20 becomes 0. No player record changes.
void RemoveSquadSlot(Game& game, int team, int slot);

// Takes `player` out of every squad that holds him, closing each place, and
// gives the team he left: the highest-numbered one if several held him, 0 if
// none did. His teamNumber is not changed; the squads alone decide.
std::int16_t DetachFromSquads(Game& game, std::int16_t player);

// Whether the squad of `team` holds `player`.
bool IsInSquad(const Game& game, int team, std::int16_t player);

// The team whose squad holds `player`, 0 if none does. If several do, the
// highest-numbered one, as the search window names his present club.
std::int16_t PresentClub(const Game& game, std::int16_t player);

// Deletes the player at `slot` from the squad of `team`: he keeps his record,
// and his teamNumber names a team whose squad still holds him (a game may
// list him in two), or 0 when none does. Gives his number (0 for an empty place).
std::int16_t DeleteFromSquad(Game& game, int team, int slot);

// Moves `candidate` to the end of the squad of `team`, out of whatever squad
// held him, and gives the team he left (0 if none). The caller has checked
// that the squad has room and does not hold him already.
std::int16_t AddToSquad(Game& game, int team, std::int16_t candidate);

// Puts `candidate` into the place of row `row` of the squad of `team`. The
// player he replaces keeps a team only if another squad still holds him, as
// after a delete; the candidate leaves whatever squad held him. The caller has checked that the squad does not
// hold him already and that the row exists.
struct Replacement {
    std::int16_t oldTeam = 0;    // the team the candidate left, 0 if none
    std::int16_t replaced = 0;   // the player put out of the squad
};
Replacement ReplaceInSquad(Game& game, int team, int row, std::int16_t candidate);

// For every player number from 0 to 2000, the loaded teams whose squads name
// him, once per place, in team order. Places that hold 0 or a number with no
// slot in the table are left out.
std::vector<std::vector<int>> TeamsHoldingEachPlayer(const Game& game);
