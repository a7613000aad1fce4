#pragma once

#include <string>
#include <vector>

#include "data/game.h"

// Something wrong with a world, found by `check`.
enum class Severity { Error, Warning };

struct Problem {
    Severity severity;
    std::string file;   // "players.dat" or "teams.dat"
    int record;         // the player's number, or the team's place in its file
    std::string field;  // "surname", "squad3", ...
    std::string message;  // UTF-8

    bool operator==(const Problem&) const = default;
};

// "players.dat: 17: surname: warning: is empty ..."
std::string ProblemLine(const Problem& problem);
std::string ProblemJson(const Problem& problem);

// What the loaded tables show: squads, codes, ranges, dates. Names are left
// to the scans of the files and of the rows that bring them in.
std::vector<Problem> ProblemsInGame(const Game& game);

// What only the bytes show: records the load passes over, repeats or never
// reaches, and lines the format cannot carry.
std::vector<Problem> ProblemsInPlayersFile(std::string_view bytes);
std::vector<Problem> ProblemsInTeamsFile(std::string_view bytes);
