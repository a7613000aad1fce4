#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

// Builds a file of CR LF lines, as the game writes them. A save writes some
// 57,000 lines, so each goes straight into one buffer that grows seldom.
class TextLines {
public:
    // `expectedBytes`: room made at once, so that a file of about that size
    // is written without the buffer growing on the way.
    explicit TextLines(std::size_t expectedBytes = 0) : bytes_(expectedBytes, '\0') {}

    // Text that the next line written closes.
    void Append(std::string_view text) { WrittenUpTo(std::copy(text.begin(), text.end(), Room(text.size()))); }
    void Line(std::string_view text) { EndLine(std::copy(text.begin(), text.end(), Room(text.size() + 2))); }
    void Number(int value)
    {
        // Codes and skills, most of a file, have one or two digits.
        if (value < 0 || value > 99)
            return AnyNumber(value);
        char* at = Room(4);
        if (value > 9)
            *at++ = static_cast<char>('0' + value / 10);
        *at++ = static_cast<char>('0' + value % 10);
        EndLine(at);
    }
    void EmptyLines(int count);
    std::string Take();

private:
    static constexpr std::size_t LongestNumber = 11;  // "-2147483648"

    // Where `count` more bytes can be written.
    char* Room(std::size_t count)
    {
        if (bytes_.size() - used_ < count)
            Grow(count);
        return bytes_.data() + used_;
    }
    void Grow(std::size_t count);
    void AnyNumber(int value);
    void EndLine(char* at)
    {
        at[0] = '\r';
        at[1] = '\n';
        WrittenUpTo(at + 2);
    }
    void WrittenUpTo(const char* end) { used_ = static_cast<std::size_t>(end - bytes_.data()); }

    std::string bytes_;  // written up to used_; the rest is room
    std::size_t used_ = 0;
};

std::string TrimBlanks(std::string_view text);
