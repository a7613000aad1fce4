#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "search/player_find.h"
#include "support/game_builder.h"

using ::testing::ElementsAreArray;

namespace {

// Windows-1252: 0xC9 is É and 0xE9 é; 0x8A is Š and 0x9A š. Number 11 is a
// slot that no record filled.
TEST(PlayerFind, ListsTheMatchesInOrder)
{
    GameBuilder b;
    b.Player(1, "Smith", "A J");
    b.Player(2, "Smithers", "B");
    b.Player(3, "Blacksmith", "C");
    b.Player(4, "Jones", "A J");
    b.Player(5, "\xC9lise", "E");
    b.Player(6, "\x8Aimek", "F");
    b.Player(7, "smith", "G");
    b.Player(10, "Ng", "H");
    b.Player(12, "O'Brien", "K");
    b.Player(120, "Kumar", "L");
    // What is typed, and the players found in their order.
    const std::pair<const char*, std::vector<std::int16_t>> cases[] = {
        // The whole surname first (two of one name by their initials), then
        // surnames that begin with the text, then those that hold it.
        {"smith", {1, 7, 2, 3}}, {"SMITH", {1, 7, 2, 3}}, {"  sMiTh ", {1, 7, 2, 3}},
        // Initials, however they are typed, then initials with a surname.
        {"aj", {4, 1}}, {"A. J.", {4, 1}}, {"j smi", {1}}, {"AJ Jones", {4}},
        // Accented capitals fold like plain ones, including those among 0x80 to 0x9F.
        {"\xE9l", {5}}, {"\x9A" "IM", {6}}, {"o'b", {12}},
        // Numbers: the exact one, then every number that begins alike.
        {"1", {1, 10, 12, 120}}, {"12", {12, 120}}, {" 7 ", {7}}, {"11", {}}, {"2001", {}}, {"0", {}},
        // Nothing to look for, or nobody like it.
        {"", {}}, {"   ", {}}, {". .", {}}, {"xyz", {}},
    };
    for (const auto& [typed, found] : cases)
        EXPECT_THAT(FindPlayers(*b.game, typed), ElementsAreArray(found)) << '"' << typed << '"';

    // Only loaded players are searched: a record behind PlayerCount was never loaded.
    b.Player(MaxPlayers, "Smith", "Z");
    EXPECT_THAT(FindPlayers(*b.game, "smith"), ElementsAreArray<std::int16_t>({1, 7, MaxPlayers, 2, 3}));
    b.game->PlayerCount = 3;
    EXPECT_THAT(FindPlayers(*b.game, "smith"), ElementsAreArray<std::int16_t>({1, 2, 3}));
    b.game->PlayerCount = -5;
    EXPECT_THAT(FindPlayers(*b.game, "smith"), ::testing::IsEmpty());
}

TEST(PlayerAge, CountsWholeYearsFromTheBirthday)
{
    const struct {
        std::int16_t day, month, year;  // born
        int onYear, onMonth, onDay;
        std::optional<int> age;
    } cases[] = {
        {15, 6, 1980, 2000, 6, 14, 19},  {15, 6, 1980, 2000, 6, 15, 20}, {15, 6, 1980, 2000, 12, 31, 20},
        {15, 6, 1980, 2001, 1, 1, 20},   {15, 6, 1980, 1980, 6, 15, 0},
        {15, 6, 1980, 1980, 6, 14, std::nullopt},  // not born yet
        {29, 2, 1984, 2001, 2, 28, 16},  {29, 2, 1984, 2001, 3, 1, 17},
        // No possible birth date, no age.
        {0, 6, 1980, 2000, 6, 15, std::nullopt}, {15, 13, 1980, 2000, 6, 15, std::nullopt},
        {15, 6, 0, 2000, 6, 15, std::nullopt},
    };
    for (const auto& c : cases) {
        PlayerRecord player;
        std::tie(player.birthDay, player.birthMonth, player.birthYear) = std::tie(c.day, c.month, c.year);
        EXPECT_EQ(AgeOn(player, c.onYear, c.onMonth, c.onDay), c.age)
            << c.day << "/" << c.month << "/" << c.year << " on " << c.onDay << "/" << c.onMonth << "/" << c.onYear;
    }
}

}  // namespace
