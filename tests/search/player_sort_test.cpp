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
using ::testing::IsEmpty;
using ::testing::Pointwise;

namespace {

class PlayerSortTest : public ::testing::Test {
protected:
    std::unique_ptr<Game> game = std::make_unique<Game>();
    std::vector<double> widths;

    SortProgress Recorder()
    {
        return [this](double width) { widths.push_back(width); };
    }

    PlayerRecord& Row(int row, std::string surname)
    {
        PlayerRecord& r = game->FieldMatches[row];
        r.playerNumber = static_cast<std::int16_t>(row);
        r.surname = std::move(surname);
        return r;
    }

    std::vector<std::string> Surnames()
    {
        std::vector<std::string> names;
        for (int row = 1; row <= RowsInUse(game->FieldMatches); ++row)
            names.push_back(game->FieldMatches[row].surname);
        return names;
    }

    std::vector<int> Numbers()
    {
        std::vector<int> numbers;
        for (int row = 1; row <= RowsInUse(game->FieldMatches); ++row)
            numbers.push_back(game->FieldMatches[row].playerNumber);
        return numbers;
    }
};

TEST_F(PlayerSortTest, SurnamesSortByCharacterCode)
{
    // Windows-1252 bytes: 0x80 is the euro sign U+20AC, 0xE9 is e acute U+00E9,
    // 0x8A is S caron U+0160. The order is that of the decoded characters, not of
    // the bytes.
    const std::vector<std::string> names{"smith", "Smith", "Smithers", "\x80uro", "\xE9tienne",
                                         "\x8Aimek", "Zulu", "Adams", "Smit", "adams"};
    for (std::size_t i = 0; i < names.size(); ++i)
        Row(static_cast<int>(i) + 1, names[i]);
    SortResults(*game, static_cast<int>(SortKey::Surname), Recorder());
    EXPECT_THAT(Surnames(), ElementsAre("Adams", "Smit", "Smith", "Smithers", "Zulu", "adams", "smith",
                                        "\xE9tienne", "\x8Aimek", "\x80uro"));
}

TEST_F(PlayerSortTest, EverySkillSortsHighestFirst)
{
    const struct {
        SortKey key;
        std::int16_t PlayerRecord::*field;
    } keys[] = {
        {SortKey::BatSkill, &PlayerRecord::batSkill},         {SortKey::BatAggression, &PlayerRecord::batAggression},
        {SortKey::BowlSkill, &PlayerRecord::bowlSkill},       {SortKey::BowlEconomy, &PlayerRecord::bowlEconomy},
        {SortKey::FieldSkill, &PlayerRecord::fieldAbility},   {SortKey::Potential, &PlayerRecord::potential},
    };
    for (const auto& k : keys) {
        SCOPED_TRACE(static_cast<int>(k.key));
        // Values in every field, but only the key's field decides.
        const std::int16_t values[] = {12, -5, 60, 0, 33};
        for (int row = 1; row <= 5; ++row) {
            PlayerRecord& r = Row(row, "Same");
            for (const auto& other : keys)
                r.*other.field = static_cast<std::int16_t>(100 - row);
            r.*k.field = values[row - 1];
        }
        SortResults(*game, static_cast<int>(k.key), nullptr);
        EXPECT_THAT(Numbers(), ElementsAre(3, 5, 1, 4, 2));
    }
}

// The stable standard sort by the same key is the reference: equal keys keep
// the order the filters left, whatever else the rows hold.
TEST_F(PlayerSortTest, EveryKeyKeepsEqualRowsInTheirOrder)
{
    std::mt19937 random(20240601);
    // Letters whose bytes sort as their characters do, and some that don't.
    const std::string letters = "AaBbZz\xE9\xFF\x80\x8A\x9F";
    for (int key = 0; key < SortKeyCount; ++key) {
        for (int count : {2, 3, 7, 40, 257}) {
            SCOPED_TRACE(testing::Message() << "key " << key << ", " << count << " rows");
            std::vector<PlayerRecord> rows;
            for (int row = 1; row <= count; ++row) {
                PlayerRecord& r = Row(row, std::string(1, letters[random() % letters.size()]) +
                                               (random() % 2 ? "x" : ""));
                r.initials = std::to_string(row);
                for (auto field : {&PlayerRecord::batSkill, &PlayerRecord::batAggression, &PlayerRecord::bowlSkill,
                                   &PlayerRecord::bowlEconomy, &PlayerRecord::fieldAbility, &PlayerRecord::potential})
                    r.*field = static_cast<std::int16_t>(random() % 5 - 2);
                rows.push_back(r);
            }
            const auto before = [key](const PlayerRecord& a, const PlayerRecord& b) {
                switch (static_cast<SortKey>(key)) {
                case SortKey::Surname: return CompareCp1252(a.surname, b.surname) < 0;
                case SortKey::BatSkill: return a.batSkill > b.batSkill;
                case SortKey::BatAggression: return a.batAggression > b.batAggression;
                case SortKey::BowlSkill: return a.bowlSkill > b.bowlSkill;
                case SortKey::BowlEconomy: return a.bowlEconomy > b.bowlEconomy;
                case SortKey::FieldSkill: return a.fieldAbility > b.fieldAbility;
                case SortKey::Potential: return a.potential > b.potential;
                }
                return false;
            };
            std::stable_sort(rows.begin(), rows.end(), before);
            SortResults(*game, key, nullptr);
            for (int row = 1; row <= count; ++row)
                ASSERT_EQ(game->FieldMatches[row], rows[row - 1]) << "row " << row;
            std::fill(game->FieldMatches.begin(), game->FieldMatches.end(), PlayerRecord{});
        }
    }
}

TEST_F(PlayerSortTest, TheBarWidensOncePerPairOfSweeps)
{
    // Four rows in reverse order: the first pair of sweeps works on rows 1 to 4,
    // the second on rows 2 to 3, and then the span is sorted.
    for (int row = 1; row <= 4; ++row)
        Row(row, "R").batSkill = static_cast<std::int16_t>(row);
    SortResults(*game, static_cast<int>(SortKey::BatSkill), Recorder());
    EXPECT_THAT(Numbers(), ElementsAre(4, 3, 2, 1));
    EXPECT_THAT(widths, Pointwise(DoubleNear(1e-9), {2500.0 / 4, 2500.0 * 2 / 3}));
}

TEST_F(PlayerSortTest, RowsInOrderTakeOneSweepAndMoveNothing)
{
    for (int row = 1; row <= 5; ++row)
        Row(row, std::string(1, static_cast<char>('A' + row)));
    SortResults(*game, static_cast<int>(SortKey::Surname), Recorder());
    EXPECT_THAT(Numbers(), ElementsAre(1, 2, 3, 4, 5));
    EXPECT_THAT(widths, ElementsAre(500.0));
}

TEST_F(PlayerSortTest, NoRowOrOneRowSetsNoWidth)
{
    SortResults(*game, 0, Recorder());
    Row(1, "Only");
    SortResults(*game, 0, Recorder());
    EXPECT_THAT(widths, IsEmpty());
}

TEST_F(PlayerSortTest, RowsBehindTheFirstBlankAndUnknownKeysLeaveTheOrder)
{
    Row(1, "C");
    Row(2, "B");
    Row(4, "A");  // row 3 is blank and ends the rows in use
    SortResults(*game, 7, Recorder());
    SortResults(*game, -1, Recorder());
    EXPECT_THAT(widths, IsEmpty());
    EXPECT_EQ(game->FieldMatches[1].surname, "C");
    SortResults(*game, 0, Recorder());
    EXPECT_EQ(game->FieldMatches[1].surname, "B");
    EXPECT_EQ(game->FieldMatches[2].surname, "C");
    EXPECT_EQ(game->FieldMatches[4].surname, "A");
}

TEST_F(PlayerSortTest, AReversedFullTableSortsAndKeepsEveryText)
{
    for (int row = 1; row <= MaxPlayers; ++row) {
        // Long names, so that a copy rather than a move would still show in the result.
        PlayerRecord& r = Row(row, "Surname-long-enough-to-live-on-the-heap-" + std::to_string(row));
        r.initials = "Initials-long-enough-to-live-on-the-heap-" + std::to_string(row);
        r.potential = static_cast<std::int16_t>(row);
    }
    SortResults(*game, static_cast<int>(SortKey::Potential), Recorder());
    for (int row = 1; row <= MaxPlayers; ++row) {
        const PlayerRecord& r = game->FieldMatches[row];
        ASSERT_EQ(r.potential, MaxPlayers + 1 - row);
        ASSERT_EQ(r.surname, "Surname-long-enough-to-live-on-the-heap-" + std::to_string(r.potential));
        ASSERT_EQ(r.initials, "Initials-long-enough-to-live-on-the-heap-" + std::to_string(r.potential));
    }
    EXPECT_EQ(widths.size(), 1000u);
    EXPECT_TRUE(std::is_sorted(widths.begin(), widths.end()));
}

}  // namespace
