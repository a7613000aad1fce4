#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "csv/csv.h"
#include "data/game.h"

// A row of players.csv or teams.csv that can't be taken, by its line.
struct RowFault {
    std::string file;  // "players.csv", "teams.csv"
    int line = 0;      // 0 when the fault belongs to no row of the import
    std::string message;
};

struct ImportTables {
    const CsvTable* players = nullptr;  // either may be missing
    const CsvTable* teams = nullptr;
};

// Applies the rows to `game`: a row edits the record with its number, and a
// row with the next free number, or none, adds one. Returns every wrong row;
// when there is one, `game` is half changed and must not be saved.
std::vector<RowFault> ApplyImport(Game& game, const ImportTables& tables);

// The same from the texts of players.csv and teams.csv; either may be missing.
std::vector<RowFault> ImportCsv(Game& game, std::optional<std::string_view> playersCsv,
                                std::optional<std::string_view> teamsCsv);
