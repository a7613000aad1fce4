#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "csv/csv.h"
#include "data/game.h"

// The columns of players.csv and teams.csv: the record's number, then its
// fields in the order of the file. Each coded field is followed by its word
// ("homeCountry", "homeCountryName"); a team's squad is squad1 to squad20.
CsvRow PlayerColumns();
CsvRow TeamColumns();
CsvRow PlayerRow(const Game& game, int number);
CsvRow TeamRow(const Game& game, int number);

// The column beside a coded field that carries its word: "homeCountryName".
std::string WordColumn(std::string_view field);

// A whole number of 16 bits, blanks around it allowed: "12", "-3", " 7 ".
// Nothing for "", "3.5", "1e2" or "40000".
std::optional<std::int16_t> WholeNumber(std::string_view text);
