#include "data/number_entry.h"

#include <algorithm>

#include "data/text_number.h"

namespace {

// Blanks around it, a sign, digits and nothing else.
bool IsPlainWholeNumber(std::string_view text)
{
    const auto blank = [](char c) { return c == ' '; };
    while (!text.empty() && blank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && blank(text.back()))
        text.remove_suffix(1);
    if (!text.empty() && (text.front() == '+' || text.front() == '-'))
        text.remove_prefix(1);
    return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

}  // namespace

NumberEntry JudgeNumberEntry(std::string_view text, std::int16_t current, std::string_view label,
                             std::optional<Range> range)
{
    const std::optional<std::int16_t> converted = TextAsNumber(text);
    NumberEntry entry{NumberEntry::Kind::Stored, converted.value_or(current), {}};
    if (!converted || !IsPlainWholeNumber(text)) {
        entry.kind = NumberEntry::Kind::Refused;
        entry.message = std::string(label) + " takes a whole number from -32768 to 32767: the record holds " +
                        std::to_string(entry.value) + ".";
    } else if (range && (entry.value < range->low || entry.value > range->high)) {
        entry.kind = NumberEntry::Kind::Unusual;
        entry.message = std::string(label) + " runs from " + std::to_string(range->low) + " to " +
                        std::to_string(range->high) + " in the game: " + std::to_string(entry.value) +
                        " is stored all the same.";
    }
    return entry;
}
