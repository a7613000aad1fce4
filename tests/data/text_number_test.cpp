#include "data/text_number.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace {

struct Conversion {
    std::string text;
    std::optional<int> expected;
};

void ExpectConversions(std::initializer_list<Conversion> cases)
{
    for (const Conversion& c : cases)
        EXPECT_EQ(TextAsNumber(c.text), c.expected) << "text \"" << c.text << "\"";
}

TEST(TextAsNumber, TakesDecimalsWithSignFractionExponentAndBlanks)
{
    ExpectConversions({
        {"12", 12},     {"  -12  ", -12}, {"+7", 7},     {"007", 7},     {"-0", 0},
        {"1e2", 100},   {"1E+2", 100},    {"2.5e1", 25}, {"250e-1", 25}, {".5", 0},
        {"5.", 5},      {"0.0001", 0},    {"32767", 32767}, {"-32768", -32768},
        // A fraction goes to the nearest whole number, a half to the even one.
        {"3.4", 3}, {"3.6", 4}, {"0.5", 0}, {"1.5", 2}, {"2.5", 2}, {"-2.5", -2}, {"-3.5", -4},
        {"32767.4", 32767}, {"-32768.5", -32768},
        // Too small for a double is still a number, and it rounds to nothing.
        {"1e-400", 0}, {"-7e-999999999999", 0}, {"0.0e-5000", 0}, {"0." + std::string(400, '0') + "1", 0},
        {"1" + std::string(400, '0') + "e-398", 100},
    });
}

TEST(TextAsNumber, RefusesWhatIsNoDecimalNumberOrFallsOutsideSixteenBits)
{
    ExpectConversions({
        {"", std::nullopt},     {"   ", std::nullopt},  {"abc", std::nullopt},  {"12abc", std::nullopt},
        {"1,000", std::nullopt}, {"1 2", std::nullopt},  {"0x10", std::nullopt}, {"&H10", std::nullopt},
        {"1e", std::nullopt},   {"e5", std::nullopt},   {"+", std::nullopt},    {"-", std::nullopt},
        {".", std::nullopt},    {"1.2.3", std::nullopt}, {"--1", std::nullopt}, {"inf", std::nullopt},
        {"nan", std::nullopt},  {"1d2", std::nullopt},  {"$5", std::nullopt},
        {"32768", std::nullopt}, {"-32769", std::nullopt}, {"32767.5", std::nullopt},
        {"-32768.6", std::nullopt}, {"1e5", std::nullopt}, {"1e400", std::nullopt},
        {"99999999999999999999999", std::nullopt}, {"1" + std::string(400, '0'), std::nullopt},
    });
}

}  // namespace
