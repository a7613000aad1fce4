#pragma once

#include "data/file_io.h"
#include "data/game.h"

// What a save does with files another program saved since this game was
// loaded or last saved (see FilesChangedSinceLoaded).
enum class OtherChanges {
    Refuse,     // nothing is written and the result says why
    Overwrite,  // the game is written over them; their pair stays as the .prev pair
};

// Writes players.dat and teams.dat as one pair (see pair_commit.h): after it,
// the folder holds either both new files or both old ones. Names the files
// cannot hold, a file or folder that cannot be written, and another writer in
// the folder stop the save before anything is touched. The first save of a
// session keeps the old pair as .bak, the first save ever in the folder as
// .orig. When the load could not keep everything the files held
// (game.LoadDropped), the save is refused unless `dropConfirmed`.
// The result names the file that failed and why, or is a success.
FileResult SaveGame(Game& game, bool dropConfirmed = false, OtherChanges otherChanges = OtherChanges::Refuse);

// Whether another program has saved either file since this game was loaded
// or last saved. A save refused for that reason is told apart by this.
bool FilesChangedSinceLoaded(const Game& game);

// A short text that changes whenever either file's bytes change.
std::string GameFilesStamp(const std::string& playersBytes, const std::string& teamsBytes);
std::string GameFilesStamp(const Game& game);

// What a load does first: takes the folder's lock and finishes or undoes a
// save that was cut off there. Says what it did, or nothing.
std::string RecoverInterruptedSave(const std::string& folder);
