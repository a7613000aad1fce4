#include "data/field_reader.h"

#include "data/text_number.h"

FieldReader::FieldReader(std::string_view bytes) : bytes_(bytes) {}

bool FieldReader::AtEnd() const
{
    return pos_ >= bytes_.size();
}

bool FieldReader::AtLineEnd() const
{
    return !AtEnd() && (bytes_[pos_] == '\r' || bytes_[pos_] == '\n');
}

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
    while (!AtEnd() && bytes_[pos_] != ',' && !AtLineEnd())
        ++pos_;
    if (!AtEnd() && bytes_[pos_] == ',')
        ++pos_;
    else
        ConsumeLineEnd();
}

std::string FieldReader::ReadQuoted()
{
    ++pos_;  // the opening quote
    const std::size_t close = bytes_.find('"', pos_);
    const std::size_t end = close == std::string_view::npos ? bytes_.size() : close;
    std::string field(bytes_.substr(pos_, end - pos_));
    pos_ = close == std::string_view::npos ? bytes_.size() : close + 1;
    DropRestOfField();
    return field;
}

std::string FieldReader::ReadPlain()
{
    const std::size_t start = pos_;
    while (!AtEnd() && bytes_[pos_] != ',' && !AtLineEnd())
        ++pos_;
    std::string field(bytes_.substr(start, pos_ - start));
    DropRestOfField();
    return field;
}

std::optional<std::string> FieldReader::ReadText()
{
    if (AtEnd())
        return std::nullopt;
    SkipBlanks();
    if (!AtEnd() && bytes_[pos_] == '"')
        return ReadQuoted();
    return ReadPlain();
}

std::optional<std::int16_t> FieldReader::ReadNumber()
{
    const std::optional<std::string> field = ReadText();
    if (!field)
        return std::nullopt;
    if (field->empty())
        return std::int16_t{0};
    return TextAsNumber(*field);
}

int CountValuesLeft(FieldReader& reader)
{
    int count = 0;
    while (const auto field = reader.ReadText())
        count += !field->empty();
    return count;
}
