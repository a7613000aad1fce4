// Text as a number, what a person typing is told the box's field ends up
// holding, and why a name box turned a key away.
#include "data/number_entry.h"

#include <gtest/gtest.h>

#include <tuple>

#include "data/names.h"
#include "data/text_number.h"

namespace {

TEST(TextAsNumber, RoundsHalvesToEvenAndKeepsToSixteenBits)
{
    const std::optional<int> no;
    // The text, and the number it is.
    const std::pair<std::string, std::optional<int>> cases[] = {
        {"  -12  ", -12}, {"+7", 7}, {"007", 7}, {"2.5e1", 25}, {"250e-1", 25}, {".5", 0}, {"5.", 5}, {"3.4", 3},
        // A fraction goes to the nearest whole number, a half to the even one.
        {"3.6", 4}, {"0.5", 0}, {"1.5", 2}, {"2.5", 2}, {"-2.5", -2}, {"-3.5", -4}, {"32767", 32767},
        {"-32768", -32768}, {"32767.4", 32767}, {"-32768.5", -32768}, {"32768", no}, {"-32769", no},
        {"32767.5", no}, {"-32768.6", no}, {"1e5", no}, {"1e400", no}, {"1" + std::string(400, '0'), no},
        // Too small for a double is still a number, and it rounds to nothing.
        {"1e-400", 0}, {"0." + std::string(400, '0') + "1", 0}, {"1" + std::string(400, '0') + "e-398", 100},
        {"", no}, {"   ", no}, {"12abc", no}, {"1,000", no}, {"1 2", no}, {"0x10", no}, {"&H10", no}, {"1e", no},
        {"-", no}, {".", no}, {"1.2.3", no}, {"--1", no}, {"inf", no}, {"nan", no}, {"1d2", no},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(TextAsNumber(text), expected) << "text \"" << text << "\"";
}

using Kind = NumberEntry::Kind;

TEST(NumberEntry, PlainWholeNumbersAreStoredAndTheRestIsRefusedWithWhatTheFieldHolds)
{
    const Field<PlayerRecord>& batSkill = *FieldOf<PlayerRecord>(PlayerFields, &PlayerRecord::batSkill);
    const Field<PlayerRecord>& birthYear = *FieldOf<PlayerRecord>(PlayerFields, &PlayerRecord::birthYear);
    PlayerRecord player;
    player.batSkill = 52;
    player.birthYear = 1980;

    // The text typed into the field's box, what becomes of it, and what the field holds then.
    const std::tuple<std::string, const Field<PlayerRecord>&, Kind, int> cases[] = {
        {"44", batSkill, Kind::Stored, 44}, {" +007 ", batSkill, Kind::Stored, 7},
        {"0", batSkill, Kind::Stored, 0}, {"60", batSkill, Kind::Stored, 60},
        // Outside the game's range but a number the file can hold.
        {"61", batSkill, Kind::Unusual, 61}, {"-1", batSkill, Kind::Unusual, -1},
        {"32767", batSkill, Kind::Unusual, 32767},
        // A date of birth has no range of its own.
        {"-32768", birthYear, Kind::Stored, -32768},
        // Texts the field does not take as they stand: it keeps its value,
        // even where a conversion would read a number nobody typed.
        {"1234567", batSkill, Kind::Refused, 52}, {"32768", batSkill, Kind::Refused, 52},
        {"0x1F", batSkill, Kind::Refused, 52}, {"1,5", batSkill, Kind::Refused, 52},
        {"", batSkill, Kind::Refused, 52}, {"-", birthYear, Kind::Refused, 1980},
        {"12.5", batSkill, Kind::Refused, 52}, {"1e1", batSkill, Kind::Refused, 52},
    };
    for (const auto& [text, field, kind, value] : cases) {
        const NumberEntry entry = JudgeNumberEntry(text, player, field);
        EXPECT_EQ(entry.kind, kind) << '"' << text << '"';
        EXPECT_EQ(entry.value, value) << '"' << text << '"';
        EXPECT_EQ(entry.message.empty(), kind == Kind::Stored) << '"' << text << '"';
    }

    EXPECT_EQ(JudgeNumberEntry("1234567", player, batSkill).message,
              "Bat skill takes a whole number from -32768 to 32767: the record holds 52.");
    EXPECT_EQ(JudgeNumberEntry("75", player, batSkill).message,
              "Bat skill runs from 0 to 60 in the game: 75 is stored all the same.");
}

TEST(NumberEntry, NameRefusalsSayWhatTheFilesCannotCarry)
{
    // A name, and why the files cannot carry it (empty: they can).
    const std::pair<std::string, std::string> cases[] = {
        {"O'Neil \"Jr\"", ""},
        {"Smith, J", "A name cannot hold a comma"},
        {"\"Quoted", "A name cannot begin with a double quote"},
        {" Leading", "A name cannot begin with a blank"},
        {"Two\r\nLines", "A name cannot hold a line break"},
    };
    for (const auto& [name, refusal] : cases)
        EXPECT_EQ(NameRefusal(name).value_or(""), refusal) << name;
}

}  // namespace
