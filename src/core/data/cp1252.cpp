#include "data/cp1252.h"

#include <algorithm>
#include <array>

namespace {

// Bytes 0x80 to 0x9F; the others equal their Latin-1 code point.
constexpr std::array<char16_t, 32> HighControls{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

bool EncodeUnit(char16_t unit, unsigned char& byte)
{
    if (unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF)) {
        byte = static_cast<unsigned char>(unit);
        return true;
    }
    const auto* found = std::find(HighControls.begin(), HighControls.end(), unit);
    if (found == HighControls.end())
        return false;
    byte = static_cast<unsigned char>(0x80 + (found - HighControls.begin()));
    return true;
}

}  // namespace

char16_t Cp1252ToUnicode(unsigned char byte)
{
    if (byte >= 0x80 && byte <= 0x9F)
        return HighControls[byte - 0x80];
    return byte;
}

std::u16string DecodeCp1252(std::string_view bytes)
{
    std::u16string text(bytes.size(), u'\0');
    std::transform(bytes.begin(), bytes.end(), text.begin(),
                   [](char c) { return Cp1252ToUnicode(static_cast<unsigned char>(c)); });
    return text;
}

bool FitsCp1252(char16_t unit)
{
    unsigned char ignored = 0;
    return EncodeUnit(unit, ignored);
}

std::string EncodeCp1252(std::u16string_view text, bool& ok)
{
    std::string bytes(text.size(), '\0');
    for (std::size_t i = 0; i < text.size(); ++i) {
        unsigned char byte = 0;
        if (!EncodeUnit(text[i], byte)) {
            ok = false;
            return {};
        }
        bytes[i] = static_cast<char>(byte);
    }
    ok = true;
    return bytes;
}

int CompareCp1252(std::string_view a, std::string_view b)
{
    const std::size_t common = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < common; ++i) {
        const char16_t x = Cp1252ToUnicode(static_cast<unsigned char>(a[i]));
        const char16_t y = Cp1252ToUnicode(static_cast<unsigned char>(b[i]));
        if (x != y)
            return x < y ? -1 : 1;
    }
    if (a.size() == b.size())
        return 0;
    return a.size() < b.size() ? -1 : 1;
}
