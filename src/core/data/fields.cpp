#include "data/fields.h"

namespace {

template <class Record, std::size_t Count>
constexpr bool InFileOrder(const std::array<Field<Record>, Count>& fields)
{
    for (std::size_t i = 1; i < Count; ++i) {
        if (fields[i].line <= fields[i - 1].line)
            return false;
    }
    return true;
}

static_assert(InFileOrder(PlayerFields) && InFileOrder(TeamFields));
static_assert(PlayerFields.back().line == PlayerLayout.lines);
static_assert(TeamLayout.firstSquadLine + SquadSize - 1 == TeamLayout.lines);

}  // namespace

std::optional<std::string_view> CodeList::WordFor(int code) const
{
    const int position = code - firstCode;
    if (position < 0 || position >= static_cast<int>(words.size()))
        return std::nullopt;
    return words[position];
}

std::string RangeText(const Range& range)
{
    return std::to_string(range.low) + " - " + std::to_string(range.high);
}

std::string SquadPlaceName(int place)
{
    return "squad" + std::to_string(place);
}
