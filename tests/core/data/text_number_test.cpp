#include "data/text_number.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace {

TEST(TextAsNumber, RoundsHalvesToEvenAndKeepsToSixteenBits)
{
    const std::optional<int> no;
    const struct {
        std::string text;
        std::optional<int> expected;
    } cases[] = {
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
    for (const auto& c : cases)
        EXPECT_EQ(TextAsNumber(c.text), c.expected) << "text \"" << c.text << "\"";
}

}  // namespace
