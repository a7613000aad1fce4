#pragma once

#include <string>

#include "data/game.h"

// Records as a message names them for a person, in UTF-8.

// "A J Example"; the surname alone when there are no initials.
std::string PlayerLabel(const PlayerRecord& player);
// "player 17 (A J Example)"
std::string PlayerTitle(const Game& game, int number);
// "team 4 (Example County)"
std::string TeamTitle(const Game& game, int number);
