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

// Players and teams, each kind with its own columns.
constexpr RecordKind P = RecordKind::Player;
constexpr RecordKind T = RecordKind::Team;

TEST(Filter, NarrowsThePlayersAndTheTeams)
{
    const auto game = TableGame();
    const struct {
        RecordKind kind;
        const char* text;
        std::vector<int> found;
    } cases[] = {
        {P, "", {1, 2, 3, 4, 5, 6}},
        // Plain words find names as Find Player does.
        {P, "SMITH", {1, 2}}, {P, "a. j. smi", {1}}, {P, "cd", {3}}, {P, "1", {1}},
        // Columns as in the CSV header, case and blanks as typed.
        {P, "batSkill>=45", {1, 3, 4}}, {P, "BATSKILL <= 30", {2, 5}}, {P, "batSkill!=45 batSkill>35", {3, 4, 6}},
        // Words for codes, both codes of a word that stands twice, a value over several words.
        {P, "homeCountry=england", {1, 5, 6}}, {P, "homeCountry=Namibia", {2, 3}},
        {P, "homeCountryName=New Zealand dyke", {4}}, {P, "homeCountry=29", {3}},
        {P, "bowlType!=None", {2, 3, 5, 6}}, {P, "bowlType<MF", {2, 5}},
        // The club by the squads: none, a team's whole name, its number.
        {P, "club=none", {4, 5}}, {P, "club=perth pelicans", {1, 2}}, {P, "club=Perth jones", {3}},
        {P, "club!=2", {1, 2, 4, 5}},
        // Ages on the given day; a birth date that cannot be passes no comparison.
        {P, "age<24", {2}}, {P, "age>=34", {1, 4}}, {P, "age!=23", {1, 4, 5, 6}},
        // Birth dates in the calendar's order, day/month/year as typed; player 3's cannot be.
        {P, "birthDate<9/9/1999", {1, 4, 5}}, {P, "birthDate>=14/2/1990 birthDate!=1/7/2000", {1, 5, 6}},
        {P, "surname=van Dyke", {4}}, {P, "surname=\"SMITH\"", {1}}, {P, "surname<jones", {6}},
        // Side by side all hold; "or" takes either side, side by side binding first.
        {P, "smith or ng", {1, 2, 5}}, {P, "smith batSkill>40 OR age>40", {1, 4}},
        {T, "perth", {1, 2}}, {T, "3", {3}}, {T, "squadSize=2 homeCountry=Australia", {1}},
        {T, "averageBatSkill>40", {2}}, {T, "averageBatSkill<=40", {1}},
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
        {P, "smith batSkil>3", "no column is called \"batSkil\"", 6, 7},
        {P, "smith batSkill>", "batSkill needs a value after >", 6, 9},
        {P, "batSkill>=4x or ng", "batSkill takes a number, not \"4x\"", 0, 12},
        {P, "a or", "\"or\" needs a term on each side", 2, 2},
        {P, "a or or b", "\"or\" needs a term on each side", 5, 2},
        {P, " >3", "a comparison needs a column before it", 1, 1},
        {P, "batSkill=>3", "\"=>\" is no comparison", 8, 2},
        {P, "surname=\"Smi", "the quote is not closed", 8, 4},
        {P, "homeCountry=West", "homeCountry takes a word of its list or a code, not \"West\"", 0, 16},
        {P, "club=Perth Pel", "no team is called \"Perth Pel\"", 0, 14},
        {P, "club>Perth", "club takes a team's number with >", 0, 10},
        {P, "birthDate<31/2/1990", "Date of birth 31/2/1990 does not exist.", 0, 19},
        {P, "ng or birthDate>1990", "Date of birth takes day/month/year", 6, 14},
        {T, "age<30", "no column is called \"age\"", 0, 3},
    };
    for (const auto& c : cases) {
        const ParsedFilter parsed = ParseFilter(c.text, c.kind, *game);
        ASSERT_FALSE(parsed.ok()) << c.text;
        EXPECT_THAT(parsed.error->reason, HasSubstr(c.reason)) << c.text;
        EXPECT_EQ(parsed.error->start, c.start) << c.text;
        EXPECT_EQ(parsed.error->length, c.length) << c.text;
        EXPECT_EQ(MatchingRecords(parsed.filter, *game, Today).size(), c.kind == P ? 6u : 3u);
    }
}

}  // namespace
