#include "data/field_reader.h"

#include "data/text_number.h"

void FieldReader::ConsumeLineEnd()
{
    if (AtEnd())
        return;
    if (bytes_[pos_] == '\r') {
        ++pos_;
        if (!AtEnd() && bytes_[pos_] == '\n')
            ++pos_;
    } else if (bytes_[pos_] == '\n') {
        ++pos_;
    }
}

void FieldReader::SkipBlanks()
{
    while (!AtEnd() && bytes_[pos_] == ' ')
        ++pos_;
}

// Consumes up to and including the comma or line end that closes a field.
void FieldReader::DropRestOfField()
{
    while (!AtEnd() && !EndsField(bytes_[pos_]))
        ++pos_;
    if (!AtEnd() && bytes_[pos_] == ',')
        ++pos_;
    else
        ConsumeLineEnd();
}

std::string_view FieldReader::ReadQuoted()
{
    ++pos_;  // the opening quote
    const std::size_t close = bytes_.find('"', pos_);
    const std::size_t end = close == std::string_view::npos ? bytes_.size() : close;
    const std::string_view field = bytes_.substr(pos_, end - pos_);
    pos_ = close == std::string_view::npos ? bytes_.size() : close + 1;
    DropRestOfField();
    return field;
}

bool FieldReader::ReadAnyNumberInto(std::int16_t& field)
{
    const auto text = ReadView();
    if (!text)
        return false;
    const std::optional<std::int16_t> number = text->empty() ? std::int16_t{0} : TextAsNumber(*text);
    if (number)
        field = *number;
    return number.has_value();
}

int CountValuesLeft(FieldReader& reader)
{
    int count = 0;
    while (const auto field = reader.ReadView())
        count += !field->empty();
    return count;
}
