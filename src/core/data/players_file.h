#pragma once

#include <string>
#include <string_view>

#include "data/file_io.h"
#include "data/game.h"
#include "data/load_report.h"

// players.dat: 21 lines a player, then 21 empty lines.
//   1 number          8 homeCountry    15 bowls
//   2 "#"             9 teamNumber     16 bowlSkill
//   3 initials + "#"  10 batPosition   17 bowlEconomy
//   4 surname + "#"   11 bats          18 fieldAbility
//   5 birthDay        12 batSkill      19 fieldsAt
//   6 birthMonth      13 batAggression 20 potential
//   7 birthYear       14 bowlType      21 carriedValue

// Reads players into their slots and sets PlayerCount, which is not reset
// first: it ends as the last non-zero number read. The report lists what the
// load passed over or what a save would not write back.
LoadReport ReadPlayers(Game& game, std::string_view bytes);
std::string WritePlayers(const Game& game);

// The same on game.PlayersPath. Reading also reports why a file could not be
// read; writing replaces the file whole or leaves it as it was.
LoadReport ReadPlayersFile(Game& game);
FileResult WritePlayersFile(const Game& game);
