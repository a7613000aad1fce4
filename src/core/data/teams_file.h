#pragma once

#include <string>
#include <string_view>

#include "data/file_io.h"
#include "data/game.h"
#include "data/load_report.h"

// teams.dat: 30 lines a team, then 20 empty lines.
//   1 "0"                 5 reputation   9 "0"
//   2 teamName + "#"      6 wealth      10 "0" (empty ends the file)
//   3 abbreviation + "#"  7 support     11-30 squad places 1 to 20
//   4 homeCountry         8 team number
// A team is numbered by its place in the file, whatever line 8 says.

// Reads teams into slots 1, 2, ... and sets TeamCount to two above the number
// of teams: the pass over the closing empty lines counts as one more. The
// report lists the teams and lines a save would not write back.
LoadReport ReadTeams(Game& game, std::string_view bytes);
std::string WriteTeams(const Game& game);

LoadReport ReadTeamsFile(Game& game);
FileResult WriteTeamsFile(const Game& game);
