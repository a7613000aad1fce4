#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "data/game.h"

// The files hold names as bare text with no quoting, so a comma would end a
// name early, a leading double quote would swallow the lines after it, a
// line break would put the rest of the name on a line of its own and leading
// blanks would be skipped when the name is read back.
// Nothing when `name` can be stored; otherwise what is wrong with it.
std::optional<std::string> NameProblem(std::string_view name);
// The same said to someone typing: "A name cannot hold a comma".
std::optional<std::string> NameRefusal(std::string_view name);

// The first name in the game that cannot be stored, said for a person:
// which file, which record, which field and why.
struct NameFault {
    std::string file;
    std::string description;
};
std::optional<NameFault> FirstUnstorableName(const Game& game);
