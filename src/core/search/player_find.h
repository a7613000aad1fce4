#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "data/game.h"

// The Find Player box: one line of text that may be part of a surname, the
// initials, both ("A J Smi"), or a player number. Letters match without
// regard to case, accented ones included ("é" finds "É").
//
// Digits alone look for numbers: every player whose number begins with them,
// the exact one first, then the others in number order. Anything else is looked for in the initials and
// surname run together, with blanks and dots left out on both sides, so "aj"
// and "A. J." both find "A J". Players whose surname equals the text come
// first, then those whose surname begins with it, then those whose surname
// holds it, then the rest; each group A to Z by surname, then initials, then
// number. A blank text finds nobody.
std::vector<std::int16_t> FindPlayers(const Game& game, std::string_view typed);

// Adds `text` to `out` as Find Player compares names: letters folded to
// small ones as above, blanks and dots left out ("A. J." adds "aj").
void AppendNameKey(std::string& out, std::string_view text);

// The club of every player from 0 to 2000 as PresentClub names it (0 for
// none), found in one walk over the squads rather than one for each player.
std::vector<std::int16_t> PresentClubs(const Game& game);

// Whole years the player has lived on the given day, or nothing when his
// birth date is not a possible date or lies after that day.
std::optional<int> AgeOn(const PlayerRecord& player, int year, int month, int day);
