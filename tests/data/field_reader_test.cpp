#include "data/field_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

// Every text field of `bytes`, in order.
std::vector<std::string> Fields(std::string_view bytes)
{
    FieldReader reader(bytes);
    std::vector<std::string> fields;
    while (auto field = reader.ReadText())
        fields.push_back(*field);
    return fields;
}

using FieldList = std::vector<std::string>;

TEST(FieldReader, TakesOneFieldALineWhateverTheLineEnd)
{
    EXPECT_EQ(Fields("a\r\nb\nc\rd"), (FieldList{"a", "b", "c", "d"}));
    EXPECT_EQ(Fields("a\r\n\r\n\r\nb\r\n"), (FieldList{"a", "", "", "b"}));
    EXPECT_EQ(Fields(""), FieldList{});
}

TEST(FieldReader, SkipsBlanksBeforeAFieldButKeepsThemAfter)
{
    EXPECT_EQ(Fields("   Smith #  \r\n   \r\n"), (FieldList{"Smith #  ", ""}));
}

TEST(FieldReader, EndsAFieldAtACommaAndStartsTheNextAfterIt)
{
    EXPECT_EQ(Fields("Smith, J#\r\n12\r\n"), (FieldList{"Smith", "J#", "12"}));
    // A comma at the end of a line leaves an empty field behind it.
    EXPECT_EQ(Fields("a,\r\nb\r\n"), (FieldList{"a", "", "b"}));
}

TEST(FieldReader, RunsAQuotedFieldToTheNextQuoteAcrossLinesAndCommas)
{
    EXPECT_EQ(Fields("\"O, Neil\r\nX\"dropped\r\nnext\r\n"), (FieldList{"O, Neil\r\nX", "next"}));
    EXPECT_EQ(Fields("  \"ab\"  , c\r\n"), (FieldList{"ab", "c"}));
    // A quote inside a plain field is an ordinary character.
    EXPECT_EQ(Fields("O\"Neil#\r\n"), (FieldList{"O\"Neil#"}));
    // An unclosed quote takes the rest of the input.
    EXPECT_EQ(Fields("\"open\r\n1\r\n2"), (FieldList{"open\r\n1\r\n2"}));
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

TEST(FieldReader, KeepsWindows1252BytesAsTheyAre)
{
    const std::string name = "Br\xE9mont \x80\xFF#";
    EXPECT_EQ(Fields(name + "\r\n"), FieldList{name});
}

}  // namespace
