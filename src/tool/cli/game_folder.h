#pragma once

#include <memory>
#include <string>

#include "data/game.h"

// A game loaded as the editor loads it: a fresh Game, players first, then teams.
struct LoadedGame {
    std::unique_ptr<Game> game;
    bool playersRead = false;
    bool teamsRead = false;

    bool BothRead() const { return playersRead && teamsRead; }
};

LoadedGame LoadGameFolder(const std::string& directory);

// The backups that the first save of a run leaves beside the files.
LoadedGame LoadGameBackups(const std::string& directory);

// "players.dat and teams.dat", "teams.dat", ...: the files of `loaded` that
// could not be read, said for a message; empty when both were read.
std::string UnreadFiles(const LoadedGame& loaded);
