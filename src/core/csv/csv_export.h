#pragma once

#include <optional>
#include <span>
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

// The same header and rows for the records `numbers`, in that order, as the
// tables export the rows chosen in them. Numbers outside the table are left out.
std::string PlayersCsvOf(const Game& game, std::span<const int> numbers);
std::string TeamsCsvOf(const Game& game, std::span<const int> numbers);
