#pragma once

#include <string>
#include <string_view>

#include "data/file_io.h"
#include "data/game.h"
#include "data/load_report.h"

// players.dat: a record a player, laid out as PlayerLayout (data/fields.h)
// says, then as many empty lines as a record has.

// Reads players into their slots and sets PlayerCount, which is not reset
// first: it ends as the last non-zero number read. The report lists what the
// load passed over or what a save would not write back.
LoadReport ReadPlayers(Game& game, std::string_view bytes);
std::string WritePlayers(const Game& game);

// The same on game.PlayersPath. Reading also reports why a file could not be
// read; writing replaces the file whole or leaves it as it was.
LoadReport ReadPlayersFile(Game& game);
FileResult WritePlayersFile(const Game& game);
