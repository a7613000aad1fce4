#pragma once

#include <memory>
#include <string>

#include "data/game.h"
#include "data/load_report.h"

// A game loaded as the editor loads it: a fresh Game, players first, then teams.
struct LoadedGame {
    std::unique_ptr<Game> game;
    LoadReport players;
    LoadReport teams;

    bool BothRead() const { return players.Read() && teams.Read(); }
};

LoadedGame LoadGameFolder(const std::string& directory);

// The backups that the first save of a run leaves beside the files.
LoadedGame LoadGameBackups(const std::string& directory);

// "DIR/players.dat (Permission denied)", ...: the files of `loaded` that
// could not be read and why, said for a message; empty when both were read.
std::string UnreadFiles(const LoadedGame& loaded);
