#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <string>
#include <tuple>
#include <vector>

#include "data/cp1252.h"
#include "support/game_builder.h"
#include "search/player_sort.h"
#include "search/search_filters.h"
#include "search/sort_sweeps.h"

using ::testing::DoubleNear;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pointwise;

namespace {

class PlayerSearchTest : public ::testing::Test {
protected:
    GameBuilder b;
    Game& game = *b.game;

    // Six players with distinct codes in every field the filters read:
    // country, batting position, bowling type, fielding position.
    void SetUp() override
    {
        const std::int16_t codes[][4] = {{1, 1, 1, 1}, {2, 2, 7, 2}, {13, 3, 7, 3},
                                         {29, 1, 9, 4}, {1, 6, 2, 1}, {2, 1, 7, 1}};
        for (const auto& c : codes) {
            PlayerRecord& p = b.Player(game.PlayerCount + 1, "S" + std::to_string(game.PlayerCount + 1));
            std::tie(p.homeCountry, p.batPosition, p.bowlType, p.fieldsAt) = std::tie(c[0], c[1], c[2], c[3]);
        }
    }

    // Runs the filters and gives the player numbers of the last table's rows in use.
    std::vector<int> Search(const SearchFilters& filters)
    {
        found = RunFilters(game, filters);
        std::vector<int> numbers;
        for (const PlayerRecord& row : found)
            numbers.push_back(row.playerNumber);
        return numbers;
    }

    // Appends a row for the sort.
    static PlayerRecord& Row(SearchRows& rows, std::string surname)
    {
        PlayerRecord& r = rows.emplace_back();
        r.playerNumber = static_cast<std::int16_t>(rows.size());
        r.surname = std::move(surname);
        return r;
    }

    SearchRows found;
};

TEST_F(PlayerSearchTest, EachFilterStageComparesItsCodeDirectlyAndAClubGoesBySquad)
{
    EXPECT_THAT(Search({}), ElementsAre(1, 2, 3, 4, 5, 6));
    EXPECT_EQ(found[2], game.Players[3]) << "whole records are copied";
    EXPECT_THAT(Search({.nationality = 2}), ElementsAre(2, 6));
    EXPECT_THAT(Search({.nationality = 29}), ElementsAre(4));  // the second "Namibia" of the list
    EXPECT_THAT(Search({.batPosition = 1}), ElementsAre(1, 4, 6));
    EXPECT_THAT(Search({.bowlType = 7}), ElementsAre(2, 3, 6));  // "None" is a bowling type like the rest
    EXPECT_THAT(Search({.fieldsAt = 1}), ElementsAre(1, 5, 6));
    EXPECT_THAT(Search({.nationality = 2, .batPosition = 1, .bowlType = 7, .fieldsAt = 1}), ElementsAre(6));
    EXPECT_THAT(Search({.nationality = 3}), IsEmpty());

    // A club lists its squad in place order. Places that name no player give
    // no row; the same number twice gives two.
    TeamRecord& t = b.Team(4, "Club");
    t.squad = {0, 5, 0, 2, -1, 2001, 4, 2};
    EXPECT_THAT(Search({.team = 4}), ElementsAre(5, 2, 4, 2));
    // The squad decides, not the players' own team numbers.
    game.Players[1].teamNumber = 4;
    game.Players[5].teamNumber = 0;
    EXPECT_THAT(Search({.team = 4}), ElementsAre(5, 2, 4, 2));
    // The club and the nationality are independent: the team's country plays no part.
    t.homeCountry = 5;
    EXPECT_THAT(Search({.team = 4, .nationality = 1}), ElementsAre(5));
    EXPECT_THAT(Search({.team = 4, .bowlType = 7}), ElementsAre(2, 2));

    // A code of 0 passes only an open filter.
    game.Players[2].bowlType = 0;
    EXPECT_THAT(Search({.bowlType = 7}), ElementsAre(3, 6));
    EXPECT_THAT(Search({}), ElementsAre(1, 2, 3, 4, 5, 6));
    // An empty surname ends the list only where he survives the filters.
    game.Players[3].surname.clear();
    EXPECT_THAT(Search({}), ElementsAre(1, 2));
    EXPECT_THAT(Search({.batPosition = 1}), ElementsAre(1, 4, 6));
    EXPECT_THAT(Search({.bowlType = 7}), IsEmpty());
}

// Windows-1252 bytes: 0x80 is the euro sign U+20AC, 0xE9 is e acute U+00E9,
// 0x8A is S caron U+0160. The order is that of the decoded characters, not of
// the bytes.
TEST_F(PlayerSearchTest, SurnamesSortByCharacterCode)
{
    SearchRows rows;
    for (const char* name : {"smith", "Smith", "Smithers", "\x80uro", "\xE9tienne", "\x8Aimek", "Zulu", "Adams",
                             "Smit", "adams", "Featherst\x80", "Featherstone", "Featherst\xE9"})
        Row(rows, name);
    SortResults(rows, static_cast<int>(SortKey::Surname), nullptr);
    std::vector<std::string> sorted;
    for (const PlayerRecord& row : rows)
        sorted.push_back(row.surname);
    EXPECT_THAT(sorted, ElementsAre("Adams", "Featherstone", "Featherst\xE9", "Featherst\x80", "Smit", "Smith",
                                    "Smithers", "Zulu", "adams", "smith", "\xE9tienne", "\x8Aimek", "\x80uro"));
}

// The stable standard sort by the same key is the reference: each key reads
// its own field, skills go highest first, and equal keys keep the order the
// filters left, whatever else the rows hold.
TEST_F(PlayerSearchTest, EveryKeyKeepsEqualRowsInTheirOrder)
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
            SearchRows sorting;
            std::vector<PlayerRecord> rows;
            for (int row = 1; row <= count; ++row) {
                PlayerRecord& r = Row(sorting, std::string(1, letters[random() % letters.size()]) +
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
            SortResults(sorting, key, nullptr);
            for (int row = 0; row < count; ++row)
                ASSERT_EQ(sorting[row], rows[row]) << "row " << row + 1;
        }
    }
}

// Progress is told once per pair of sweeps: four rows in reverse order take a
// pair over rows 1 to 4 and one over rows 2 to 3; rows in order take one;
// forty in reverse order, one pair for each two rows, each sweep placing one.
TEST_F(PlayerSearchTest, ProgressIsToldOncePerPairOfSweeps)
{
    const auto widths = [&](const std::vector<int>& skills) {
        std::vector<double> seen;
        SearchRows rows;
        for (int skill : skills)
            Row(rows, "R").batSkill = static_cast<std::int16_t>(skill);
        SortResults(rows, static_cast<int>(SortKey::BatSkill), [&](double done) { seen.push_back(done); });
        EXPECT_TRUE(std::is_sorted(rows.begin(), rows.end(),
                                   [](const auto& a, const auto& b) { return a.batSkill > b.batSkill; }));
        return seen;
    };
    EXPECT_THAT(widths({1, 2, 3, 4}), Pointwise(DoubleNear(1e-9), std::vector{1.0 / 4, 2.0 / 3}));
    EXPECT_THAT(widths({5, 4, 3, 2, 1}), Pointwise(DoubleNear(1e-9), std::vector{1.0 / 5}));
    std::vector<int> rising(40);
    std::iota(rising.begin(), rising.end(), 1);
    std::vector<double> expected;
    for (int pair = 1; pair <= 20; ++pair)
        expected.push_back(static_cast<double>(pair) / (41 - pair));
    EXPECT_THAT(widths(rising), Pointwise(DoubleNear(1e-9), expected));
    EXPECT_THAT(widths({}), IsEmpty());
    EXPECT_THAT(widths({7}), IsEmpty());
}

// Sixteen-bit keys go through the sweeps eight at a time; any other key one at
// a time. Both must give the game's spans, whatever the keys: long runs and
// short ones, many equal keys, and blocks whose last key to move is followed
// by keys already in place.
TEST(SortSweeps, EightKeysAtATimeGiveTheSpansOfOneAtATime)
{
    std::mt19937 random(1999);
    for (int round = 0; round < 600; ++round) {
        const int count = round % 50 == 0 ? 2000 : static_cast<int>(random() % 70);
        const int spread = round % 3 == 0 ? 3 : 30000;
        std::vector<std::int16_t> narrow(count + 1);
        for (int i = 1; i <= count; ++i) {
            const int run = round % 4 == 0 ? (count - i) * 7 : round % 4 == 1 ? i * 5 : 0;
            narrow[i] = static_cast<std::int16_t>((run + static_cast<int>(random() % spread)) % 65536 - 32768);
        }
        if (round % 5 == 0 && count > 10)
            std::sort(narrow.end() - 1 - static_cast<int>(random() % 10), narrow.end());
        std::vector<int> wide(narrow.begin(), narrow.end());
        std::vector<std::pair<int, int>> narrowSpans;
        std::vector<std::pair<int, int>> wideSpans;
        FollowSortSweeps(narrow, [&](int first, int last) { narrowSpans.emplace_back(first, last); });
        FollowSortSweeps(wide, [&](int first, int last) { wideSpans.emplace_back(first, last); });
        ASSERT_EQ(narrowSpans, wideSpans) << "round " << round;
        ASSERT_TRUE(std::equal(narrow.begin() + 1, narrow.end(), wide.begin() + 1)) << "round " << round;
    }
}

}  // namespace
