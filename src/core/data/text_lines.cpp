#include "data/text_lines.h"

void TextLines::Line(std::string_view text)
{
    bytes_.append(text);
    bytes_.append("\r\n");
}

void TextLines::Number(int value)
{
    Line(std::to_string(value));
}

void TextLines::EmptyLines(int count)
{
    for (int i = 0; i < count; ++i)
        bytes_.append("\r\n");
}

std::string TrimBlanks(std::string_view text)
{
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    const auto last = text.find_last_not_of(' ');
    return std::string(text.substr(first, last - first + 1));
}
