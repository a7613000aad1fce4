#include "data/field_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using FieldList = std::vector<std::string>;

TEST(FieldReader, SplitsTextIntoFields)
{
    const struct {
        std::string_view bytes;
        FieldList fields;
    } cases[] = {
        {"a\r\nb\nc\rd", {"a", "b", "c", "d"}},
        {"a\r\n\r\n\r\nb\r\n", {"a", "", "", "b"}},
        {"", {}},
        {"   Smith #  \r\n   \r\n", {"Smith #  ", ""}},  // blanks go before a field, not after
        {"Smith, J#\r\n12\r\n", {"Smith", "J#", "12"}},
        {"a,\r\nb\r\n", {"a", "", "b"}},
        {"\"O, Neil\r\nX\"dropped\r\nnext\r\n", {"O, Neil\r\nX", "next"}},
        {"  \"ab\"  , c\r\n", {"ab", "c"}},
        {"O\"Neil#\r\n", {"O\"Neil#"}},           // a quote inside a field is an ordinary character
        {"\"open\r\n1\r\n2", {"open\r\n1\r\n2"}},  // an unclosed quote takes the rest
        {"Br\xE9mont \x80\xFF#\r\n", {"Br\xE9mont \x80\xFF#"}},
    };
    for (const auto& c : cases) {
        FieldReader reader(c.bytes);
        FieldList fields;
        while (auto field = reader.ReadText())
            fields.push_back(*field);
        EXPECT_EQ(fields, c.fields) << "bytes \"" << c.bytes << "\"";
    }
}

TEST(FieldReader, ReadsNumbersWithEmptyAsZeroAndConsumesTheBadOnes)
{
    FieldReader reader("12\r\n\r\nabc\r\n 3.5 \r\n40000\r\n-7");
    EXPECT_EQ(reader.ReadNumber(), std::int16_t{12});
    EXPECT_EQ(reader.ReadNumber(), std::int16_t{0});
    EXPECT_EQ(reader.ReadNumber(), std::nullopt);
    EXPECT_EQ(reader.ReadNumber(), std::int16_t{4});
    EXPECT_EQ(reader.ReadNumber(), std::nullopt);
    EXPECT_EQ(reader.ReadNumber(), std::int16_t{-7});
    EXPECT_TRUE(reader.AtEnd());
    EXPECT_EQ(reader.ReadNumber(), std::nullopt);
    EXPECT_EQ(reader.ReadText(), std::nullopt);
}

}  // namespace
