// Any bytes split into fields: the reader always moves on, ends with the
// input, and a number is the same field as the text read in its place.
#include <cmath>
#include <cstdint>

#include "data/field_reader.h"
#include "data/text_number.h"
#include "fuzz_check.h"

namespace {

// A number by the long road: its decimal value rounded half to even, if the
// result fits in 16 bits. Whole numbers are read straight, and must agree.
std::optional<std::int16_t> ByDecimal(const std::string& text)
{
    if (text.empty())
        return 0;
    const std::optional<double> value = TextAsDecimal(text);
    if (!value)
        return std::nullopt;
    const double rounded = std::nearbyint(*value);
    if (rounded < -32768.0 || rounded > 32767.0)
        return std::nullopt;
    return static_cast<std::int16_t>(rounded);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const std::string_view bytes = AsBytes(data, size);
    FieldReader texts(bytes);
    FieldReader numbers(bytes);
    std::size_t fields = 0;
    while (const auto text = texts.ReadText()) {
        const std::optional<std::int16_t> number = numbers.ReadNumber();
        const std::optional<std::int16_t> expected =
            text->empty() ? std::optional<std::int16_t>(0) : TextAsNumber(*text);
        Require(number == expected, "a number field reads as its text converted");
        Require(expected == ByDecimal(*text), "a whole number read straight agrees with its decimal");
        ++fields;
        Require(fields <= size, "every field consumes at least one byte");
    }
    Require(texts.AtEnd(), "text reading stops only at the end");
    Require(numbers.AtEnd() && !numbers.ReadNumber(), "number reading ends with text reading");
    return 0;
}
