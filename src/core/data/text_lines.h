#pragma once

#include <string>
#include <string_view>

// Builds a file of CR LF lines, as the game writes them.
class TextLines {
public:
    void Line(std::string_view text);
    void Number(int value);
    void EmptyLines(int count);
    std::string Take() { return std::move(bytes_); }

private:
    std::string bytes_;
};

std::string TrimBlanks(std::string_view text);
