#pragma once

#include <string>

#include "data/game.h"
#include "data/load_report.h"

struct GameLoad {
    std::string recovered;  // what became of a save cut off in the folder; empty when there was none
    LoadReport players;
    LoadReport teams;
};

// The load of the editor and of every command of the tool: finishes or undoes
// a save cut off in the game's folder, then reads players.dat and teams.dat.
// What the files held that the tables could not keep is noted in
// game.LoadDropped, so that a save can ask before it writes the files without it.
GameLoad LoadGame(Game& game);
