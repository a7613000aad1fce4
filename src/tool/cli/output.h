#pragma once

#include <string>

#include "check/problems.h"
#include "diff/differences.h"

// How the tool prints what the core found: one line of text or one JSON
// object each, UTF-8.

// "players.dat: 17: surname: warning: is empty ..."
std::string ProblemLine(const Problem& problem);
std::string ProblemJson(const Problem& problem);

std::string DifferenceJson(const Difference& difference);
