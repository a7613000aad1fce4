#pragma once

#include <optional>
#include <string>

#include "data/game.h"

// Which records an export takes: every one, or only those of one team's
// squad, or of one country, or both at once.
struct CsvSelection {
    std::optional<int> team;     // the team and the players of its squad
    std::optional<int> country;  // players of that nationality, teams of that country
};

// players.csv and teams.csv as a spreadsheet reads them: UTF-8, a header row
// of the field names, a row a record, CR LF after each.
std::string PlayersCsv(const Game& game, const CsvSelection& selection = {});
std::string TeamsCsv(const Game& game, const CsvSelection& selection = {});
