#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "data/fields.h"

// The number `text` says exactly, as a field stores it: blanks around it, a
// sign, digits, and a value from -32768 to 32767. Nothing for any other text,
// "12.5" and "1e1" included: the record would hold a number nobody typed.
std::optional<std::int16_t> ExactNumber(std::string_view text);

// Why `text` is no value a field can hold: "1234567 is not a whole number
// from -32768 to 32767", "an empty box is not ...".
std::string NotExactReason(std::string_view text);

// What becomes of the text in a number box once it is carried into its field.
// The field takes a plain whole number from -32768 to 32767 as typed. Any
// other text is refused and the field keeps what it held. A skill outside
// the range the game gives it is stored, with a warning.
struct NumberEntry {
    enum class Kind { Stored, Unusual, Refused };
    Kind kind = Kind::Stored;
    std::int16_t value = 0;   // what the field holds afterwards
    std::string message;      // for the person typing; empty when Stored
};

// `text` typed into the box of a field captioned `label` whose record holds
// `current`; `range` is the game's range of a skill, if it has one.
NumberEntry JudgeNumberEntry(std::string_view text, std::int16_t current, std::string_view label,
                             std::optional<Range> range);

template <class Record>
NumberEntry JudgeNumberEntry(std::string_view text, const Record& record, const Field<Record>& field)
{
    return JudgeNumberEntry(text, record.*field.number, field.label, field.range);
}
