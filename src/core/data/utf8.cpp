#include "data/utf8.h"

#include "data/cp1252.h"

namespace {

void AppendUtf8(char16_t unit, std::string& out)
{
    if (unit < 0x80) {
        out += static_cast<char>(unit);
    } else if (unit < 0x800) {
        out += static_cast<char>(0xC0 | (unit >> 6));
        out += static_cast<char>(0x80 | (unit & 0x3F));
    } else {
        out += static_cast<char>(0xE0 | (unit >> 12));
        out += static_cast<char>(0x80 | ((unit >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (unit & 0x3F));
    }
}

// Decodes one character at `pos` and moves past it; nothing on a bad sequence.
std::optional<char32_t> NextCodePoint(std::string_view text, std::size_t& pos)
{
    const auto lead = static_cast<unsigned char>(text[pos++]);
    if (lead < 0x80)
        return lead;
    int extra = 0;
    char32_t point = 0;
    if ((lead & 0xE0) == 0xC0) {
        extra = 1;
        point = lead & 0x1F;
    } else if ((lead & 0xF0) == 0xE0) {
        extra = 2;
        point = lead & 0x0F;
    } else if ((lead & 0xF8) == 0xF0) {
        extra = 3;
        point = lead & 0x07;
    } else {
        return std::nullopt;
    }
    for (int i = 0; i < extra; ++i) {
        if (pos >= text.size() || (static_cast<unsigned char>(text[pos]) & 0xC0) != 0x80)
            return std::nullopt;
        point = (point << 6) | (static_cast<unsigned char>(text[pos++]) & 0x3F);
    }
    constexpr char32_t smallest[] = {0, 0x80, 0x800, 0x10000};
    if (point < smallest[extra] || point > 0x10FFFF || (point >= 0xD800 && point <= 0xDFFF))
        return std::nullopt;
    return point;
}

}  // namespace

std::string Utf8FromCp1252(std::string_view bytes)
{
    std::string out;
    out.reserve(bytes.size());
    for (const char byte : bytes)
        AppendUtf8(Cp1252ToUnicode(static_cast<unsigned char>(byte)), out);
    return out;
}

bool IsUtf8(std::string_view text)
{
    for (std::size_t pos = 0; pos < text.size();) {
        if (!NextCodePoint(text, pos))
            return false;
    }
    return true;
}

std::optional<std::string> Cp1252FromUtf8(std::string_view text)
{
    std::u16string units;
    units.reserve(text.size());
    for (std::size_t pos = 0; pos < text.size();) {
        const auto point = NextCodePoint(text, pos);
        // Every character of the code page lies in the basic plane.
        if (!point || *point > 0xFFFF || !FitsCp1252(static_cast<char16_t>(*point)))
            return std::nullopt;
        units += static_cast<char16_t>(*point);
    }
    bool ok = false;
    std::string bytes = EncodeCp1252(units, ok);
    if (!ok)
        return std::nullopt;
    return bytes;
}

std::string OnOneLine(std::string_view text)
{
    std::string line;
    for (const char c : text) {
        if (c == '\r')
            line += "\\r";
        else if (c == '\n')
            line += "\\n";
        else
            line += c;
    }
    return line;
}

std::string QuotedUtf8(std::string_view cp1252)
{
    return "\"" + Utf8FromCp1252(cp1252) + "\"";
}
