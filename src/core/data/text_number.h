#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

// A decimal number with optional sign, fraction and exponent, and optional
// blanks around it: " -12", "3.5", "1e2". Nothing else counts as a number
// (no thousands separators, no currency signs, no hexadecimal).
std::optional<double> TextAsDecimal(std::string_view text);

// The same, as the 16-bit integer the game stores: a fraction goes to the
// nearest integer and a half to the even one. Nothing when the text is empty,
// no number, or the result lies outside -32768 to 32767.
std::optional<std::int16_t> TextAsNumber(std::string_view text);
