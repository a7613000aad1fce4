#include "filter/record_filter.h"

#include <algorithm>
#include <charconv>

#include "data/cp1252.h"
#include "search/player_find.h"

namespace {

template <class T>
bool Compare(Comparison comparison, const T& a, const T& b)
{
    switch (comparison) {
    case Comparison::Equal: return a == b;
    case Comparison::NotEqual: return a != b;
    case Comparison::Less: return a < b;
    case Comparison::LessOrEqual: return a <= b;
    case Comparison::Greater: return a > b;
    case Comparison::GreaterOrEqual: return a >= b;
    }
    return false;
}

bool NumberBeginsWith(int number, std::string_view digits)
{
    char text[8];
    const auto end = std::to_chars(text, text + sizeof text, number).ptr;
    return std::string_view(text, static_cast<std::size_t>(end - text)).starts_with(digits);
}

}  // namespace

FilterMatcher::FilterMatcher(const RecordFilter& filter, const RowValues& values) : filter_(filter), values_(values) {}

bool FilterMatcher::Matches(int number)
{
    if (!IsRecordNumber(filter_.kind, number))
        return false;
    if (filter_.groups.empty())
        return true;
    return std::any_of(filter_.groups.begin(), filter_.groups.end(), [&](const std::vector<FilterTerm>& group) {
        return std::all_of(group.begin(), group.end(), [&](const FilterTerm& term) { return Holds(term, number); });
    });
}

bool FilterMatcher::Holds(const FilterTerm& term, int number)
{
    switch (term.test) {
    case FilterTerm::Test::Name:
        return NameHolds(term, number);
    case FilterTerm::Test::Number: {
        const std::optional<double> value = values_.Number(*term.column, number);
        return value && Compare(term.comparison, *value, term.number);
    }
    case FilterTerm::Test::Text: {
        scratch_.clear();
        AppendNameKey(scratch_, values_.Text(*term.column, number));
        return Compare(term.comparison, CompareCp1252(scratch_, term.key), 0);
    }
    case FilterTerm::Test::Codes: {
        const int code = static_cast<int>(*values_.Number(*term.column, number));
        const bool listed = code >= 0 && code < 64 && (term.codes >> code & 1) != 0;
        return listed == (term.comparison == Comparison::Equal);
    }
    case FilterTerm::Test::Teams:
        return term.teams.test(static_cast<std::size_t>(values_.Club(number))) ==
               (term.comparison == Comparison::Equal);
    }
    return false;
}

// As Find Player finds a player: an empty text finds nobody.
bool FilterMatcher::NameHolds(const FilterTerm& term, int number)
{
    const Game& game = values_.GameShown();
    if (term.key.empty())
        return false;
    if (filter_.kind == RecordKind::Team) {
        const TeamRecord& team = game.Teams[number];
        if (term.digits)
            return NumberBeginsWith(number, term.key);
        scratch_.clear();
        AppendNameKey(scratch_, team.teamName);
        if (scratch_.find(term.key) != std::string::npos)
            return true;
        scratch_.clear();
        AppendNameKey(scratch_, team.abbreviation);
        return scratch_.find(term.key) != std::string::npos;
    }
    const PlayerRecord& player = game.Players[number];
    if (player.playerNumber == 0)  // a slot no record filled
        return false;
    if (term.digits)
        return NumberBeginsWith(number, term.key);
    scratch_.clear();
    AppendNameKey(scratch_, player.initials);
    AppendNameKey(scratch_, player.surname);
    return scratch_.find(term.key) != std::string::npos;
}

std::vector<int> MatchingRecords(const RecordFilter& filter, const Game& game, CalendarDay today)
{
    const RowValues values(game, today);
    FilterMatcher matcher(filter, values);
    const int last = filter.kind == RecordKind::Player ? LoadedPlayerCount(game) : LoadedTeamCount(game);
    std::vector<int> matching;
    for (int number = 1; number <= last; ++number) {
        if (matcher.Matches(number))
            matching.push_back(number);
    }
    return matching;
}
