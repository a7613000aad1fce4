#include "data/text_number.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <string>

namespace {

bool IsBlank(char c)
{
    return c == ' ';
}

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

std::size_t SkipDigits(std::string_view text, std::size_t pos)
{
    while (pos < text.size() && IsDigit(text[pos]))
        ++pos;
    return pos;
}

// True when the whole of `text` is [sign] digits [. digits] [e [sign] digits],
// with at least one digit before the exponent.
bool IsDecimalSyntax(std::string_view text)
{
    std::size_t pos = 0;
    if (pos < text.size() && (text[pos] == '+' || text[pos] == '-'))
        ++pos;
    const std::size_t intStart = pos;
    pos = SkipDigits(text, pos);
    std::size_t mantissaDigits = pos - intStart;
    if (pos < text.size() && text[pos] == '.') {
        const std::size_t fracStart = ++pos;
        pos = SkipDigits(text, pos);
        mantissaDigits += pos - fracStart;
    }
    if (mantissaDigits == 0)
        return false;
    if (pos < text.size() && (text[pos] == 'e' || text[pos] == 'E')) {
        ++pos;
        if (pos < text.size() && (text[pos] == '+' || text[pos] == '-'))
            ++pos;
        const std::size_t expStart = pos;
        pos = SkipDigits(text, pos);
        if (pos == expStart)
            return false;
    }
    return pos == text.size();
}

// When a decimal is beyond what a double holds, tells a tiny one (which rounds
// to 0) from a huge one: the order of its first significant digit decides.
// `text` has passed IsDecimalSyntax and carries no sign.
bool IsBelowOne(std::string_view text)
{
    const std::size_t exponentAt = text.find_first_of("eE");
    const std::string_view mantissa = text.substr(0, exponentAt);
    const std::size_t point = mantissa.find('.');
    const std::size_t firstSignificant = mantissa.find_first_of("123456789");
    if (firstSignificant == std::string_view::npos)
        return true;
    const std::size_t pointAt = point == std::string_view::npos ? mantissa.size() : point;
    long long order = firstSignificant < pointAt
                          ? static_cast<long long>(pointAt - firstSignificant)
                          : -static_cast<long long>(firstSignificant - pointAt - 1);
    if (exponentAt != std::string_view::npos) {
        std::string_view exponent = text.substr(exponentAt + 1);
        const bool negative = exponent.front() == '-';
        if (exponent.front() == '+' || negative)
            exponent.remove_prefix(1);
        long long value = 0;
        for (char digit : exponent)
            value = std::min(value * 10 + (digit - '0'), 1'000'000'000LL);
        order += negative ? -value : value;
    }
    return order <= 0;
}

}  // namespace

std::optional<double> TextAsDecimal(std::string_view text)
{
    while (!text.empty() && IsBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && IsBlank(text.back()))
        text.remove_suffix(1);
    if (!IsDecimalSyntax(text))
        return std::nullopt;

    // from_chars takes no leading plus sign.
    const bool negative = text.front() == '-';
    if (text.front() == '+' || negative)
        text.remove_prefix(1);
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error == std::errc::result_out_of_range && IsBelowOne(text))
        value = 0;
    else if (error != std::errc{} || end != text.data() + text.size())
        return std::nullopt;
    return negative ? -value : value;
}

namespace {

// Nearly every number in the game's files is a bare whole number of a few
// digits; those are read straight, without a detour through a double.
std::optional<std::int16_t> BareWholeNumber(std::string_view text)
{
    const bool negative = !text.empty() && text.front() == '-';
    if (negative || (!text.empty() && text.front() == '+'))
        text.remove_prefix(1);
    if (text.empty() || text.size() > 5 || !std::all_of(text.begin(), text.end(), IsDigit))
        return std::nullopt;
    int value = 0;
    for (char digit : text)
        value = value * 10 + (digit - '0');
    value = negative ? -value : value;
    if (value < -32768 || value > 32767)
        return std::nullopt;
    return static_cast<std::int16_t>(value);
}

}  // namespace

std::optional<std::int16_t> TextAsNumber(std::string_view text)
{
    if (const auto whole = BareWholeNumber(text))
        return whole;
    const std::optional<double> value = TextAsDecimal(text);
    if (!value)
        return std::nullopt;
    const double rounded = std::nearbyint(*value);  // ties to even in the default mode
    if (rounded < -32768.0 || rounded > 32767.0)
        return std::nullopt;
    return static_cast<std::int16_t>(rounded);
}
