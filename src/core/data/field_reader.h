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
class FieldReader {
public:
    explicit FieldReader(std::string_view bytes);

    bool AtEnd() const;

    // The next field as text; nothing once the input is used up.
    std::optional<std::string> ReadText();

    // The next field as a 16-bit number: an empty field gives 0. Nothing when
    // the input is used up or the field is no 16-bit number; either way the
    // field has been consumed.
    std::optional<std::int16_t> ReadNumber();

private:
    void SkipBlanks();
    bool AtLineEnd() const;
    void ConsumeLineEnd();
    std::string ReadQuoted();
    std::string ReadPlain();
    void DropRestOfField();

    std::string_view bytes_;
    std::size_t pos_ = 0;
};

// Reads the rest of the input and counts the fields that are not empty.
int CountValuesLeft(FieldReader& reader);
