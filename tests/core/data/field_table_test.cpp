#include "data/fields.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "check/problems.h"
#include "newplayer/new_player_check.h"
#include "support/game_builder.h"

namespace {

NewPlayerEntries GoodEntries()
{
    return {"R J", "Ashdown", "14", "7", "1979", "45", "12", "20", "8", "25", "10"};
}

// Player 1 of team 1, with nothing `check` would warn about.
std::unique_ptr<Game> SoundGame()
{
    GameBuilder b;
    PlayerRecord& p = b.Player(1, "Ashdown", "R J");
    for (const PlayerField& field : PlayerFields) {
        if (field.codes)
            p.*field.number = static_cast<std::int16_t>(field.codes->firstCode);
        else if (field.range)
            p.*field.number = static_cast<std::int16_t>(field.range->low);
    }
    p.birthDay = 14;
    p.birthMonth = 7;
    p.birthYear = 1979;
    b.Team(1, "Ashby", {1}).homeCountry = 1;
    return std::move(b.game);
}

std::vector<std::string> WarningsAbout(const Game& game, std::string_view field)
{
    std::vector<std::string> found;
    for (const Problem& problem : ProblemsInGame(game)) {
        if (problem.field == field)
            found.push_back(problem.message);
    }
    return found;
}

}  // namespace

// The new player's window and `check` both take a skill's range from the
// table: its ends pass, one past either end is refused by the one and
// reported by the other. `check` reports no range for a field without one;
// a new player's date must be a day of the calendar instead.
TEST(FieldTable, NewPlayerChecksAndGameCheckHoldEachFieldToItsRange)
{
    for (const NumberBox& box : NumberBoxes) {
        const PlayerField& field = *FieldOf<PlayerRecord>(PlayerFields, box.field);
        const Range range = field.range.value_or(Range{-999, 9999});
        const struct {
            int value;
            bool inRange;
        } cases[] = {{range.low - 1, !field.range}, {range.low, true}, {range.high, true}, {range.high + 1, !field.range}};
        for (const auto& c : cases) {
            SCOPED_TRACE(std::string(field.name) + " = " + std::to_string(c.value));
            NewPlayerEntries entries = GoodEntries();
            entries.*box.box = std::to_string(c.value);
            if (field.range)
                EXPECT_EQ(EntriesAreGood(entries), c.inRange);

            auto game = SoundGame();
            game->Players[1].*box.field = static_cast<std::int16_t>(c.value);
            const std::vector<std::string> warnings = WarningsAbout(*game, field.name);
            if (c.inRange)
                EXPECT_TRUE(std::none_of(warnings.begin(), warnings.end(),
                                         [](const std::string& w) { return w.find("range") != std::string::npos; }));
            else
                EXPECT_EQ(warnings, std::vector<std::string>{std::to_string(c.value) + " is outside the range " +
                                                             RangeText(*field.range)});
        }
    }
}
