#include "data/text_lines.h"

#include <algorithm>
#include <charconv>

void TextLines::EmptyLines(int count)
{
    for (int i = 0; i < count; ++i)
        EndLine(Room(2));
}

void TextLines::AnyNumber(int value)
{
    char* at = Room(LongestNumber + 2);
    EndLine(std::to_chars(at, at + LongestNumber, value).ptr);
}

std::string TextLines::Take()
{
    bytes_.resize(used_);
    used_ = 0;
    return std::move(bytes_);
}

void TextLines::Grow(std::size_t count)
{
    bytes_.resize(std::max(2 * bytes_.size(), used_ + count + 4096));
}

std::string TrimBlanks(std::string_view text)
{
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    const auto last = text.find_last_not_of(' ');
    return std::string(text.substr(first, last - first + 1));
}
