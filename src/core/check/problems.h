#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "data/game.h"

// Something wrong with a game: what the editor or the game would misread
// (an error), or what is odd but harmless to the files (a warning).
enum class Severity { Error, Warning };

struct Problem {
    Severity severity;
    std::string file;   // "players.dat" or "teams.dat"
    int record;         // the player's number, or the team's place in its file
    std::string field;  // "surname", "squad3", ...
    std::string message;  // UTF-8

    bool operator==(const Problem&) const = default;
};

// What the loaded tables show: squads, codes, ranges, dates. Names are left
// to the scans of the files and of the rows that bring them in.
std::vector<Problem> ProblemsInGame(const Game& game);

// What only the bytes show: records the load passes over, repeats or never
// reaches, and lines the format cannot carry.
std::vector<Problem> ProblemsInPlayersFile(std::string_view bytes);
std::vector<Problem> ProblemsInTeamsFile(std::string_view bytes);

// Every problem of a game loaded from these bytes: errors first, then
// warnings; within each, players.dat before teams.dat, in record order. A
// record that the load reads out of step gets its error only, since its
// values are whatever lines landed there.
std::vector<Problem> ProblemsOfGame(const Game& game, std::string_view playersBytes, std::string_view teamsBytes);
