#pragma once

#include "data/file_io.h"
#include "data/game.h"

// Writes players.dat, then teams.dat. Names the files cannot hold, and a file
// or folder that cannot be written, stop the save before either file is
// touched; a failure while writing either file leaves both as they were. The
// first save for a game directory keeps the old files as .bak beside them.
// The result names the file that failed and why, or is a success.
FileResult SaveGame(Game& game);
