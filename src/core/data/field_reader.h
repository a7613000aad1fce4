#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Reads the game's files field by field, the way its old sequential-file
// runtime did, rather than line by line:
//  - blanks before a field are skipped;
//  - a field ends at a comma (consumed with it) or at the end of the line;
//  - an empty line is an empty field;
//  - a field that opens with a double quote runs to the next double quote,
//    line ends and commas included, and the rest up to the next comma or
//    line end is dropped.
// A line ends at CR LF, a lone LF or a lone CR.
//
// A load reads some 57,000 fields, so the common ones (a few digits or a name
// up to its line end) are read here in the header, without a copy.
class FieldReader {
public:
    explicit FieldReader(std::string_view bytes) : bytes_(bytes) {}

    bool AtEnd() const { return pos_ >= bytes_.size(); }

    // The next field, as a view into the bytes; nothing once the input is used up.
    std::optional<std::string_view> ReadView();

    // The same, copied.
    std::optional<std::string> ReadText();

    // The next field as a 16-bit number: an empty field gives 0. Nothing when
    // the input is used up or the field is no 16-bit number; either way the
    // field has been consumed.
    std::optional<std::int16_t> ReadNumber()
    {
        std::int16_t number = 0;
        return ReadNumberInto(number) ? std::optional(number) : std::nullopt;
    }

    // The same into a record's field, which keeps its value when there is no
    // number; says whether it stored one.
    bool ReadNumberInto(std::int16_t& field);

private:
    static bool EndsField(char c) { return c == ',' || c == '\r' || c == '\n'; }
    static bool IsDigit(char c) { return c >= '0' && c <= '9'; }
    bool ReadAnyNumberInto(std::int16_t& field);
    void SkipBlanks();
    void ConsumeLineEnd();
    std::string_view ReadQuoted();
    void DropRestOfField();

    std::string_view bytes_;
    std::size_t pos_ = 0;
};

inline std::optional<std::string_view> FieldReader::ReadView()
{
    if (AtEnd())
        return std::nullopt;
    if (bytes_[pos_] == ' ')
        SkipBlanks();
    if (!AtEnd() && bytes_[pos_] == '"')
        return ReadQuoted();
    const std::size_t start = pos_;
    while (!AtEnd() && !EndsField(bytes_[pos_]))
        ++pos_;
    const std::string_view field = bytes_.substr(start, pos_ - start);
    if (!AtEnd() && bytes_[pos_] == ',')
        ++pos_;
    else
        ConsumeLineEnd();
    return field;
}

inline std::optional<std::string> FieldReader::ReadText()
{
    if (const auto field = ReadView())
        return std::string(*field);
    return std::nullopt;
}

inline bool FieldReader::ReadNumberInto(std::int16_t& field)
{
    // The usual line, one to four digits and CR LF, is read here; with six
    // bytes left every byte looked at is there.
    const char* at = bytes_.data() + pos_;
    if (bytes_.size() - pos_ >= 6) {
        int value = 0;
        int digits = 0;
        for (; digits < 4 && IsDigit(at[digits]); ++digits)
            value = value * 10 + (at[digits] - '0');
        if (digits > 0 && at[digits] == '\r' && at[digits + 1] == '\n') {
            field = static_cast<std::int16_t>(value);
            pos_ += static_cast<std::size_t>(digits) + 2;
            return true;
        }
    }
    return ReadAnyNumberInto(field);
}

// Reads the rest of the input and counts the fields that are not empty.
int CountValuesLeft(FieldReader& reader);
