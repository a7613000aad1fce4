#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "data/squad.h"
#include "search/player_find.h"
#include "support/game_builder.h"

using ::testing::ElementsAreArray;

namespace {

struct FindCase {
    const char* typed;
    std::vector<std::int16_t> found;
};

// The typed text names each case in the test list, its bytes past ASCII as
// \xNN.
void PrintTo(const FindCase& c, std::ostream* out)
{
    *out << '"';
    for (const unsigned char byte : std::string(c.typed))
        if (byte < 0x80)
            *out << byte;
        else
            *out << "\\x" << std::hex << int(byte) << std::dec;
    *out << '"';
}

class PlayerFindTest : public ::testing::TestWithParam<FindCase> {};

// Windows-1252: 0xC9 is É and 0xE9 é; 0x8A is Š and 0x9A š. Number 11 is a
// slot that no record filled.
std::unique_ptr<Game> FindWorld()
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
    return std::move(b.game);
}

TEST_P(PlayerFindTest, ListsTheMatchesInOrder)
{
    static const auto game = FindWorld();
    EXPECT_THAT(FindPlayers(*game, GetParam().typed), ElementsAreArray(GetParam().found));
}

INSTANTIATE_TEST_SUITE_P(
    Typed, PlayerFindTest,
    ::testing::Values(
        // The whole surname first (two of one name by their initials), then
        // surnames that begin with the text, then those that hold it.
        FindCase{"smith", {1, 7, 2, 3}}, FindCase{"SMITH", {1, 7, 2, 3}}, FindCase{"  sMiTh ", {1, 7, 2, 3}},
        // Initials, however they are typed, then initials with a surname.
        FindCase{"aj", {4, 1}}, FindCase{"A. J.", {4, 1}}, FindCase{"j smi", {1}}, FindCase{"AJ Jones", {4}},
        // Accented capitals fold like plain ones, including those among 0x80 to 0x9F.
        FindCase{"\xE9l", {5}}, FindCase{"\x9A" "IM", {6}}, FindCase{"o'b", {12}},
        // Numbers: the exact one, then every number that begins alike.
        FindCase{"1", {1, 10, 12, 120}}, FindCase{"12", {12, 120}}, FindCase{" 7 ", {7}},
        FindCase{"11", {}}, FindCase{"2001", {}}, FindCase{"0", {}},
        // Nothing to look for, or nobody like it.
        FindCase{"", {}}, FindCase{"   ", {}}, FindCase{". .", {}}, FindCase{"xyz", {}}));

TEST(PlayerFindLimits, OnlyLoadedPlayersAreSearched)
{
    GameBuilder b;
    b.Player(3, "Smith");
    b.Player(MaxPlayers, "Smith");
    EXPECT_THAT(FindPlayers(*b.game, "smith"), ElementsAreArray<std::int16_t>({3, MaxPlayers}));
    // A record behind PlayerCount was never loaded.
    b.game->PlayerCount = 3;
    EXPECT_THAT(FindPlayers(*b.game, "smith"), ElementsAreArray<std::int16_t>({3}));
    b.game->PlayerCount = -5;
    EXPECT_THAT(FindPlayers(*b.game, "smith"), ::testing::IsEmpty());
}

TEST(PlayerFindClubs, AgreeWithPresentClubForEveryPlayer)
{
    GameBuilder b;
    b.Players(30);
    b.Team(1, "One", {1, 2, 3});
    b.Team(2, "Two", {3, 4, 0, 5});   // 3 in two squads: the higher team is his club
    b.Team(3, "Three", {6, 6, 2001, -4, 7});
    b.game->Teams[MaxTeams].squad[1] = 8;  // past TeamCount: no squad the game searches
    const std::vector<std::int16_t> clubs = PresentClubs(*b.game);
    ASSERT_EQ(clubs.size(), std::size_t(MaxPlayers + 1));
    for (int player = 0; player <= MaxPlayers; ++player)
        EXPECT_EQ(clubs[std::size_t(player)], PresentClub(*b.game, std::int16_t(player))) << "player " << player;
    EXPECT_EQ(clubs[3], 2);
    EXPECT_EQ(clubs[6], 3);
}

struct AgeCase {
    std::int16_t day, month, year;  // born
    int onYear, onMonth, onDay;
    std::optional<int> age;
};

TEST(PlayerAge, CountsWholeYearsFromTheBirthday)
{
    const AgeCase cases[] = {
        {15, 6, 1980, 2000, 6, 14, 19},
        {15, 6, 1980, 2000, 6, 15, 20},
        {15, 6, 1980, 2000, 12, 31, 20},
        {15, 6, 1980, 2001, 1, 1, 20},
        {15, 6, 1980, 1980, 6, 15, 0},
        {15, 6, 1980, 1980, 6, 14, std::nullopt},  // not born yet
        {29, 2, 1984, 2001, 2, 28, 16},
        {29, 2, 1984, 2001, 3, 1, 17},
        {0, 6, 1980, 2000, 6, 15, std::nullopt},
        {15, 13, 1980, 2000, 6, 15, std::nullopt},
        {15, 6, 0, 2000, 6, 15, std::nullopt},
    };
    for (const AgeCase& c : cases) {
        PlayerRecord player;
        player.birthDay = c.day;
        player.birthMonth = c.month;
        player.birthYear = c.year;
        EXPECT_EQ(AgeOn(player, c.onYear, c.onMonth, c.onDay), c.age)
            << c.day << "/" << c.month << "/" << c.year << " on " << c.onDay << "/" << c.onMonth << "/" << c.onYear;
    }
}

}  // namespace
