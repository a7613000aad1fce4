#pragma once

#include <cstdint>
#include <string>
#include <variant>

// What a box says its field should hold: a name as the game's bytes, or a
// number (a code's number too). Nothing when the box holds no value the field
// can take, such as a number box with "abc" in it.
using TypedValue = std::variant<std::monostate, std::int16_t, std::string>;
