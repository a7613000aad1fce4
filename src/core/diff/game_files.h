#pragma once

#include <memory>
#include <string>

#include "data/game.h"

// A game read from its two files into a Game of its own, as the editor loads
// it: the files of `directory`, or the copies beside them whose names end in
// `suffix` (".orig"). Nothing when either file can't be read.
std::unique_ptr<Game> ReadGameFiles(const std::string& directory, const std::string& suffix = "");
