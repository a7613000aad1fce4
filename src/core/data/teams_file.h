#pragma once

#include <string>
#include <string_view>

#include "data/file_io.h"
#include "data/game.h"
#include "data/load_report.h"

// teams.dat: a record a team, laid out as TeamLayout (data/fields.h) says,
// then 20 empty lines. A team is numbered by its place in the file, whatever
// its key line says.

// Reads teams into slots 1, 2, ... and sets TeamCount (see TeamCountFor). The
// report lists the teams and lines a save would not write back.
LoadReport ReadTeams(Game& game, std::string_view bytes);
std::string WriteTeams(const Game& game);

LoadReport ReadTeamsFile(Game& game);
FileResult WriteTeamsFile(const Game& game);
