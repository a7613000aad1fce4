#include "data/load_report.h"

#include <cstddef>

namespace {

std::string Plural(std::size_t count, const std::string& one, const std::string& many)
{
    return std::to_string(count) + ' ' + (count == 1 ? one : many);
}

// "5, 9 and 12"; long lists end in "..." after the first ten.
std::string ListOf(const std::vector<int>& numbers)
{
    constexpr std::size_t Shown = 10;
    std::string text;
    for (std::size_t i = 0; i < numbers.size() && i < Shown; ++i) {
        if (i > 0)
            text += (i + 1 == numbers.size() ? " and " : ", ");
        text += std::to_string(numbers[i]);
    }
    if (numbers.size() > Shown)
        text += ", ...";
    return text;
}

}  // namespace

bool LoadReport::DroppedAny() const
{
    return !skippedRecords.empty() || !pastLastNumber.empty() || teamsPastLimit > 0 || valuesAfterEnd > 0;
}

std::string LoadReport::DroppedText() const
{
    std::vector<std::string> parts;
    if (!skippedRecords.empty()) {
        std::string part = Plural(skippedRecords.size(), "record", "records") +
                           " without a usable player number (record " + ListOf(skippedRecords) + ")";
        if (numberedPastLimit > 0)
            part += ", " + std::to_string(numberedPastLimit) + " of them numbered past 2000";
        parts.push_back(part);
    }
    if (!pastLastNumber.empty())
        parts.push_back("player " + ListOf(pastLastNumber) + ", numbered above the last player read");
    if (teamsPastLimit > 0)
        parts.push_back(Plural(static_cast<std::size_t>(teamsPastLimit), "team", "teams") + " after the 500th");
    if (valuesAfterEnd > 0)
        parts.push_back(Plural(static_cast<std::size_t>(valuesAfterEnd), "line", "lines") +
                        " after the record that ends the file");
    if (parts.empty())
        return {};
    std::string text = file + ": ";
    for (std::size_t i = 0; i < parts.size(); ++i)
        text += (i == 0 ? "" : "; ") + parts[i];
    return text;
}
