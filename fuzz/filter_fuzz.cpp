// Any bytes as the filter box of the players table, and again of the teams
// table, over a small game: a text is a filter or an error that names a
// stretch of it; every record can be tested against a filter, a number
// outside the table never passes, and a filter or itself passes exactly what
// the filter passes.
#include <algorithm>
#include <memory>
#include <string>

#include "filter/record_filter.h"
#include "fuzz_check.h"

namespace {

// Six players and three teams whose names share words, so that a value may
// run over several words.
const Game& SmallGame()
{
    static const Game& game = []() -> const Game& {
        Game& made = *new Game;
        const char* const surnames[] = {"Smith", "van Dyke", "O'Brien", "\xC9lise", "Ng", ""};
        for (int i = 1; i <= 6; ++i) {
            PlayerRecord& player = made.Players[i];
            player.playerNumber = static_cast<std::int16_t>(i);
            player.initials = i % 2 ? "A J" : "B.";
            player.surname = surnames[i - 1];
            player.birthDay = static_cast<std::int16_t>(i * 5);
            player.birthMonth = static_cast<std::int16_t>(i * 2);
            player.birthYear = static_cast<std::int16_t>(1975 + i * 5);
            player.homeCountry = static_cast<std::int16_t>(i * 7 - 3);
            player.bowlType = static_cast<std::int16_t>(i);
            player.batSkill = static_cast<std::int16_t>(i * 11 - 20);
        }
        made.PlayerCount = 6;
        const char* const teams[] = {"Perth", "Perth Pelicans", "West Indies XI"};
        for (int t = 1; t <= 3; ++t) {
            TeamRecord& team = made.Teams[t];
            team.teamName = teams[t - 1];
            team.abbreviation = team.teamName.substr(0, 3);
            team.teamNumber = static_cast<std::int16_t>(t);
            team.homeCountry = static_cast<std::int16_t>(t * 4);
            team.squad[1] = static_cast<std::int16_t>(t * 2 - 1);
            team.squad[2] = static_cast<std::int16_t>(t == 3 ? 0 : t * 2);
        }
        made.TeamCount = TeamCountFor(3);
        return made;
    }();
    return game;
}

constexpr CalendarDay Today{2024, 2, 29};

std::vector<int> Passing(const RecordFilter& filter, const RowValues& values)
{
    FilterMatcher matcher(filter, values);
    std::vector<int> passing;
    for (int number = -1; number <= MaxPlayers + 1; ++number) {
        if (matcher.Matches(number))
            passing.push_back(number);
    }
    return passing;
}

void CheckFilter(std::string_view text, RecordKind kind)
{
    const Game& game = SmallGame();
    const ParsedFilter parsed = ParseFilter(text, kind, game);
    const RowValues values(game, Today);
    const std::vector<int> passing = Passing(parsed.filter, values);
    Require(std::all_of(passing.begin(), passing.end(), [kind](int n) { return IsRecordNumber(kind, n); }),
            "only records of the table pass");
    if (!parsed.ok()) {
        const FilterError& error = *parsed.error;
        Require(!error.reason.empty(), "an error says why");
        Require(error.start >= 0 && error.length > 0 && error.start + error.length <= static_cast<int>(text.size()),
                "an error names a stretch of the text");
        Require(parsed.filter.groups.empty(), "a text that cannot be read lets every record through");
        return;
    }
    if (parsed.filter.groups.empty())
        return;
    const std::string twice = std::string(text) + " or " + std::string(text);
    const ParsedFilter either = ParseFilter(twice, kind, game);
    Require(either.ok(), "a filter or itself can be read");
    Require(Passing(either.filter, values) == passing, "a filter or itself passes what the filter passes");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const std::string_view text = AsBytes(data, size);
    CheckFilter(text, RecordKind::Player);
    CheckFilter(text, RecordKind::Team);
    return 0;
}
