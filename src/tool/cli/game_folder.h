#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <string_view>

#include "data/game.h"
#include "data/load_report.h"

// A game loaded as the editor loads it: a fresh Game, players first, then teams.
struct LoadedGame {
    std::unique_ptr<Game> game;
    LoadReport players;
    LoadReport teams;
    std::string recovered;  // what became of a save cut off in the folder

    bool BothRead() const { return players.Read() && teams.Read(); }
};

LoadedGame LoadGameFolder(const std::string& directory);

// Writes what the load did about a cut-off save, if anything, as a note of `command`.
void TellRecovery(const LoadedGame& loaded, std::string_view command, std::ostream& err);

// After `command` saved the game in `directory`: says so on the error stream
// when an editor has that folder open, since the editor still holds the game
// as it was before.
void TellOpenEditor(const std::string& directory, std::string_view command, std::ostream& err);

// The pair kept beside the files under `suffix`: ".bak", the files as the
// first save of a run found them; ".orig", as the first save ever found them.
LoadedGame LoadGameBeside(const std::string& directory, const std::string& suffix);

// Whether every game file that could not be read is simply not there, so
// that the game loads without it as the editor would. A file that is there
// and cannot be read (a pipe, a device, a folder, no permission) is a fault.
bool OnlyMissingFilesUnread(const LoadedGame& loaded);

// "DIR/players.dat (Permission denied)", ...: the files of `loaded` that
// could not be read and why, said for a message; empty when both were read.
std::string UnreadFiles(const LoadedGame& loaded);
