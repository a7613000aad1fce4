#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "data/cp1252.h"
#include "game_builder.h"
#include "search/player_sort.h"
#include "search/search_filters.h"

using ::testing::DoubleNear;
using ::testing::ElementsAre;
using ::testing::Pointwise;

namespace {

class PlayerSortTest : public ::testing::Test {
protected:
    std::unique_ptr<Game> game = std::make_unique<Game>();

    PlayerRecord& Row(int row, std::string surname)
    {
        PlayerRecord& r = game->FieldMatches[row];
        r.playerNumber = static_cast<std::int16_t>(row);
        r.surname = std::move(surname);
        return r;
    }
};

// Windows-1252 bytes: 0x80 is the euro sign U+20AC, 0xE9 is e acute U+00E9,
// 0x8A is S caron U+0160. The order is that of the decoded characters, not of
// the bytes; a blank row ends the rows in use and a key out of range sorts nothing.
TEST_F(PlayerSortTest, SurnamesSortByCharacterCode)
{
    const std::vector<std::string> names{"smith", "Smith", "Smithers", "\x80uro", "\xE9tienne",
                                         "\x8Aimek", "Zulu", "Adams", "Smit", "adams", "", "Aaron"};
    for (std::size_t i = 0; i < names.size(); ++i)
        Row(static_cast<int>(i) + 1, names[i]);
    const auto surnames = [&] {
        std::vector<std::string> rows;
        for (int row = 1; row <= 12; ++row)
            rows.push_back(game->FieldMatches[row].surname);
        return rows;
    };
    SortResults(*game, 7, nullptr);
    SortResults(*game, -1, nullptr);
    EXPECT_EQ(surnames(), names);
    SortResults(*game, static_cast<int>(SortKey::Surname), nullptr);
    EXPECT_THAT(surnames(), ElementsAre("Adams", "Smit", "Smith", "Smithers", "Zulu", "adams", "smith", "\xE9tienne",
                                    "\x8Aimek", "\x80uro", "", "Aaron"));
}

// The stable standard sort by the same key is the reference: each key reads
// its own field, skills go highest first, and equal keys keep the order the
// filters left, whatever else the rows hold.
TEST_F(PlayerSortTest, EveryKeyKeepsEqualRowsInTheirOrder)
{
    std::mt19937 random(20240601);
    // Letters whose bytes sort as their characters do, and some that don't.
    const std::string letters = "AaBbZz\xE9\xFF\x80\x8A\x9F";
    std::int16_t PlayerRecord::*const skills[] = {&PlayerRecord::batSkill,    &PlayerRecord::batAggression,
                                                  &PlayerRecord::bowlSkill,   &PlayerRecord::bowlEconomy,
                                                  &PlayerRecord::fieldAbility, &PlayerRecord::potential};
    for (int key = 0; key < SortKeyCount; ++key) {
        for (int count : {2, 3, 7, 257, MaxPlayers}) {
            SCOPED_TRACE(testing::Message() << "key " << key << ", " << count << " rows");
            std::vector<PlayerRecord> rows;
            for (int row = 1; row <= count; ++row) {
                PlayerRecord& r = Row(row, std::string(1, letters[random() % letters.size()]) +
                                               (random() % 2 ? "x" : ""));
                // Long enough to live on the heap, so a copy rather than a move would show.
                r.initials = "initials-long-enough-to-live-on-the-heap-" + std::to_string(row);
                for (auto field : skills)
                    r.*field = static_cast<std::int16_t>(random() % 5 - 2);
                rows.push_back(r);
            }
            std::stable_sort(rows.begin(), rows.end(), [&](const PlayerRecord& a, const PlayerRecord& b) {
                if (key == static_cast<int>(SortKey::Surname))
                    return CompareCp1252(a.surname, b.surname) < 0;
                return a.*skills[key - 1] > b.*skills[key - 1];
            });
            SortResults(*game, key, nullptr);
            for (int row = 1; row <= count; ++row)
                ASSERT_EQ(game->FieldMatches[row], rows[row - 1]) << "row " << row;
            std::fill(game->FieldMatches.begin(), game->FieldMatches.end(), PlayerRecord{});
        }
    }
}

// The bar widens once per pair of sweeps: four rows in reverse order take a
// pair over rows 1 to 4 and one over rows 2 to 3; rows in order take one.
TEST_F(PlayerSortTest, TheBarWidensOncePerPairOfSweeps)
{
    const struct {
        std::vector<int> skills;
        std::vector<double> widths;
    } cases[] = {
        {{1, 2, 3, 4}, {2500.0 / 4, 2500.0 * 2 / 3}},
        {{5, 4, 3, 2, 1}, {500.0}},
        {{}, {}},
        {{7}, {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.skills.size());
        std::vector<double> widths;
        std::fill(game->FieldMatches.begin(), game->FieldMatches.end(), PlayerRecord{});
        for (std::size_t i = 0; i < c.skills.size(); ++i)
            Row(int(i) + 1, "R").batSkill = static_cast<std::int16_t>(c.skills[i]);
        SortResults(*game, static_cast<int>(SortKey::BatSkill), [&](double width) { widths.push_back(width); });
        EXPECT_THAT(widths, Pointwise(DoubleNear(1e-9), c.widths));
        const auto end = game->FieldMatches.begin() + 1 + c.skills.size();
        EXPECT_TRUE(std::is_sorted(game->FieldMatches.begin() + 1, end,
                                   [](const auto& a, const auto& b) { return a.batSkill > b.batSkill; }));
    }
}

}  // namespace
