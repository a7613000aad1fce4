#pragma once

#include <memory>
#include <string>
#include <vector>

#include "csv/import_rows.h"
#include "data/file_io.h"
#include "data/game.h"
#include "diff/differences.h"

// Writes players.csv and teams.csv of the whole game into `folder`, made if
// need be; each file is replaced whole or left as it was.
FileResult ExportCsvFolder(const Game& game, const std::string& folder);

// players.csv and teams.csv of a folder read into a copy of a game, so that
// the changes can be shown before any of them is taken.
struct CsvImport {
    bool read = false;                // at least one of the two files could be read
    std::vector<RowFault> faults;     // every wrong row; the copy is then dropped
    std::unique_ptr<Game> game;       // the copy with every row taken, when no row is wrong
    std::vector<Difference> changes;  // from `game` as it was to the copy
};

// Either file may be left out of the folder.
CsvImport ImportCsvFolder(const Game& game, const std::string& folder);

// "players.csv:863: batAggression ..." as the tool and the editor list a fault.
std::string RowFaultLine(const RowFault& fault);
