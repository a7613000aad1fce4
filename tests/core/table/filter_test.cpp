#include "filter/record_filter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "table_game.h"

using ::testing::ElementsAreArray;
using ::testing::HasSubstr;

namespace {

std::vector<int> Matching(const Game& game, RecordKind kind, const char* text)
{
    const ParsedFilter parsed = ParseFilter(text, kind, game);
    EXPECT_TRUE(parsed.ok()) << text << ": " << parsed.error->reason;
    return MatchingRecords(parsed.filter, game, Today);
}

TEST(Filter, NarrowsThePlayersAndTheTeams)
{
    const auto game = TableGame();
    const struct {
        RecordKind kind;
        const char* text;
        std::vector<int> found;
    } cases[] = {
        {RecordKind::Player, "", {1, 2, 3, 4, 5, 6}},
        // Plain words find names as Find Player does.
        {RecordKind::Player, "SMITH", {1, 2}}, {RecordKind::Player, "a. j. smi", {1}},
        {RecordKind::Player, "cd", {3}}, {RecordKind::Player, "1", {1}},
        // Columns as in the CSV header, case and blanks as typed.
        {RecordKind::Player, "batSkill>=45", {1, 3, 4}}, {RecordKind::Player, "BATSKILL <= 30", {2, 5}},
        {RecordKind::Player, "batSkill!=45 batSkill>35", {3, 4, 6}},
        // Words for codes, both codes of a word that stands twice, a value over several words.
        {RecordKind::Player, "homeCountry=england", {1, 5, 6}}, {RecordKind::Player, "homeCountry=Namibia", {2, 3}},
        {RecordKind::Player, "homeCountryName=New Zealand dyke", {4}}, {RecordKind::Player, "homeCountry=29", {3}},
        {RecordKind::Player, "bowlType!=None", {2, 3, 5, 6}}, {RecordKind::Player, "bowlType<MF", {2, 5}},
        // The club by the squads: none, a team's whole name, its number.
        {RecordKind::Player, "club=none", {4, 5}}, {RecordKind::Player, "club=perth pelicans", {1, 2}},
        {RecordKind::Player, "club=Perth jones", {3}}, {RecordKind::Player, "club!=2", {1, 2, 4, 5}},
        // Ages on the given day; a birth date that cannot be passes no comparison.
        {RecordKind::Player, "age<24", {2}}, {RecordKind::Player, "age>=34", {1, 4}},
        {RecordKind::Player, "age!=23", {1, 4, 5, 6}},
        {RecordKind::Player, "surname=van Dyke", {4}}, {RecordKind::Player, "surname=\"SMITH\"", {1}},
        {RecordKind::Player, "surname<jones", {6}},
        // Side by side all hold; "or" takes either side, side by side binding first.
        {RecordKind::Player, "smith or ng", {1, 2, 5}},
        {RecordKind::Player, "smith batSkill>40 OR age>40", {1, 4}},
        {RecordKind::Team, "perth", {1, 2}}, {RecordKind::Team, "3", {3}},
        {RecordKind::Team, "squadSize=2 homeCountry=Australia", {1}},
        {RecordKind::Team, "averageBatSkill>40", {2}}, {RecordKind::Team, "averageBatSkill<=40", {1}},
    };
    for (const auto& c : cases)
        EXPECT_THAT(Matching(*game, c.kind, c.text), ElementsAreArray(c.found)) << c.text;
}

// What cannot be read is said with the stretch of text at fault, and lets every record through.
TEST(Filter, ATermItCannotReadIsNamedWithItsPlace)
{
    const auto game = TableGame();
    const struct {
        RecordKind kind;
        const char* text;
        const char* reason;
        int start;
        int length;
    } cases[] = {
        {RecordKind::Player, "smith batSkil>3", "no column is called \"batSkil\"", 6, 7},
        {RecordKind::Player, "smith batSkill>", "batSkill needs a value after >", 6, 9},
        {RecordKind::Player, "batSkill>=4x or ng", "batSkill takes a number, not \"4x\"", 0, 12},
        {RecordKind::Player, "a or", "\"or\" needs a term on each side", 2, 2},
        {RecordKind::Player, "a or or b", "\"or\" needs a term on each side", 5, 2},
        {RecordKind::Player, " >3", "a comparison needs a column before it", 1, 1},
        {RecordKind::Player, "batSkill=>3", "\"=>\" is no comparison", 8, 2},
        {RecordKind::Player, "surname=\"Smi", "the quote is not closed", 8, 4},
        {RecordKind::Player, "homeCountry=West", "homeCountry takes a word of its list or a code, not \"West\"", 0, 16},
        {RecordKind::Player, "club=Perth Pel", "no team is called \"Perth Pel\"", 0, 14},
        {RecordKind::Player, "club>Perth", "club takes a team's number with >", 0, 10},
        {RecordKind::Team, "age<30", "no column is called \"age\"", 0, 3},
    };
    for (const auto& c : cases) {
        const ParsedFilter parsed = ParseFilter(c.text, c.kind, *game);
        ASSERT_FALSE(parsed.ok()) << c.text;
        EXPECT_THAT(parsed.error->reason, HasSubstr(c.reason)) << c.text;
        EXPECT_EQ(parsed.error->start, c.start) << c.text;
        EXPECT_EQ(parsed.error->length, c.length) << c.text;
        EXPECT_EQ(MatchingRecords(parsed.filter, *game, Today).size(), c.kind == RecordKind::Player ? 6u : 3u);
    }
}

}  // namespace
