#pragma once

#include <filesystem>
#include <memory>

#include "data/game.h"

// A game as large as the files allow, generated afresh: 2000 players, 500 teams.
std::unique_ptr<Game> FullSizeGame();

// Writes the full-size game's two files into `folder`, made if need be, and
// points the returned game at them.
std::unique_ptr<Game> FullSizeGameIn(const std::filesystem::path& folder);

// A folder for benchmark files in memory (/dev/shm), where a sync to disk
// costs nothing, or on the disk under the system's temporary folder.
std::filesystem::path BenchFolder(bool inMemory, const char* name);
