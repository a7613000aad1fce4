#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "data/fields.h"

// What becomes of the text in a number box once it is carried into its field.
// The field takes a plain whole number from -32768 to 32767 as typed. Any
// other text is refused: the field keeps what it held, or, for a text the
// conversion still reads ("12.5", "1e1"), takes a number other than the one
// the box shows. A skill outside the range the game gives it is stored, with
// a warning.
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
