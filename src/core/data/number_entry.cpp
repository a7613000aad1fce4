#include "data/number_entry.h"

#include <algorithm>
#include <limits>

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

const std::string WholeNumbers = "a whole number from " +
                                 std::to_string(std::numeric_limits<std::int16_t>::min()) + " to " +
                                 std::to_string(std::numeric_limits<std::int16_t>::max());

}  // namespace

std::optional<std::int16_t> ExactNumber(std::string_view text)
{
    return IsPlainWholeNumber(text) ? TextAsNumber(text) : std::nullopt;
}

std::string NotExactReason(std::string_view text)
{
    const bool blank = text.find_first_not_of(' ') == std::string_view::npos;
    return (blank ? std::string("an empty box") : std::string(text)) + " is not " + WholeNumbers;
}

NumberEntry JudgeNumberEntry(std::string_view text, std::int16_t current, std::string_view label,
                             std::optional<Range> range)
{
    const std::optional<std::int16_t> exact = ExactNumber(text);
    NumberEntry entry{NumberEntry::Kind::Stored, exact.value_or(current), {}};
    if (!exact) {
        entry.kind = NumberEntry::Kind::Refused;
        entry.message =
            std::string(label) + " takes " + WholeNumbers + ": the record holds " + std::to_string(entry.value) + ".";
    } else if (range && (entry.value < range->low || entry.value > range->high)) {
        entry.kind = NumberEntry::Kind::Unusual;
        entry.message = std::string(label) + " runs from " + std::to_string(range->low) + " to " +
                        std::to_string(range->high) + " in the game: " + std::to_string(entry.value) +
                        " is stored all the same.";
    }
    return entry;
}
