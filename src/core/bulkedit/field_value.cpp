#include "bulkedit/field_value.h"

#include <limits>

#include "csv/csv_layout.h"
#include "data/names.h"
#include "data/text_lines.h"
#include "data/utf8.h"
#include "newplayer/new_player_check.h"

namespace {

template <class Record>
const Field<Record>& ColumnField(const TableColumn& column)
{
    if constexpr (std::is_same_v<Record, PlayerRecord>)
        return *column.playerField;
    else
        return *column.teamField;
}

constexpr int Lowest = std::numeric_limits<std::int16_t>::min();
constexpr int Highest = std::numeric_limits<std::int16_t>::max();

// A word of the list, letter case ignored, or a code of it; a word that
// stands twice (Namibia) gives its first code, as the windows' lists do.
bool ReadCode(const CodeList& codes, std::string_view text, FieldValue& value)
{
    if (const auto code = WholeNumber(text)) {
        value.number = *code;
        return *code >= codes.firstCode && *code <= codes.LastCode();
    }
    const std::string key = NameKey(text);
    for (std::size_t i = 0; i < codes.words.size(); ++i) {
        if (NameKey(codes.words[i]) == key) {
            value.number = codes.firstCode + static_cast<int>(i);
            return !key.empty();
        }
    }
    return false;
}

template <class Record>
int Result(const FieldValue& value, const Record& record)
{
    const Field<Record>& field = ColumnField<Record>(*value.column);
    return value.relative ? record.*field.number + value.number : value.number;
}

// Only a relative change can leave the 16 bits; an absolute value was read into them.
template <class Record>
std::string Problem(const FieldValue& value, const Record& record)
{
    if (!value.relative)
        return {};
    const int result = Result(value, record);
    if (result >= Lowest && result <= Highest)
        return {};
    return value.column->name + " would be " + std::to_string(result) + ", beyond what the record holds (" +
           std::to_string(Lowest) + " to " + std::to_string(Highest) + ")";
}

template <class Record>
void Put(const FieldValue& value, Record& record)
{
    if constexpr (std::is_same_v<Record, PlayerRecord>) {
        if (value.column->source == ColumnSource::BirthDate) {
            record.birthDay = static_cast<std::int16_t>(value.date.day);
            record.birthMonth = static_cast<std::int16_t>(value.date.month);
            record.birthYear = static_cast<std::int16_t>(value.date.year);
            return;
        }
    }
    const Field<Record>& field = ColumnField<Record>(*value.column);
    if (field.text)
        record.*field.text = value.text;
    else
        record.*field.number = static_cast<std::int16_t>(Result(value, record));
}

template <class Record>
bool IsOutside(const TableColumn& column, const Record& record)
{
    if (column.source != ColumnSource::Field)
        return false;
    const Field<Record>& field = ColumnField<Record>(column);
    if (!field.range)
        return false;
    const int held = record.*field.number;
    return held < field.range->low || held > field.range->high;
}

}  // namespace

FieldValue ReadFieldValue(const TableColumn& column, std::string_view typed, bool relativeAllowed)
{
    FieldValue value;
    value.column = &column;
    const std::string& name = column.name;
    if (column.IsName()) {
        value.text = std::string(typed);
        if (const auto problem = NameProblem(typed))
            value.refusal = name + " " + QuotedUtf8(typed) + " cannot be saved because " + *problem;
        else if (column.playerField && column.playerField->text == &PlayerRecord::surname && TrimBlanks(typed).empty())
            value.refusal = "a surname cannot be empty: the search would end its listing there";
        return value;
    }
    if (column.source == ColumnSource::BirthDate) {
        BirthDateEntry date = ReadBirthDate(typed);
        value.date = date.date;
        value.refusal = std::move(date.fault).value_or("");
        return value;
    }
    std::string text = TrimBlanks(typed);
    std::string_view rest = text;
    if (rest.starts_with('='))
        rest.remove_prefix(1);
    else if (relativeAllowed && (rest.starts_with('+') || rest.starts_with('-')))
        value.relative = true;
    if (value.relative && column.Codes()) {
        value.refusal = name + " takes a word of its list: only numbers can be raised or lowered";
        return value;
    }
    if (const CodeList* codes = column.Codes()) {
        if (!ReadCode(*codes, rest, value))
            value.refusal = name + " takes a word of its list or a code from " + std::to_string(codes->firstCode) +
                            " to " + std::to_string(codes->LastCode()) + ", not " + QuotedUtf8(typed);
        return value;
    }
    const auto number = WholeNumber(rest);
    if (!number)
        value.refusal = name + " takes a whole number from " + std::to_string(Lowest) + " to " +
                        std::to_string(Highest) + ", not " + QuotedUtf8(typed);
    value.number = number.value_or(0);
    return value;
}

std::string ValueProblem(const FieldValue& value, const PlayerRecord& record)
{
    return Problem(value, record);
}

std::string ValueProblem(const FieldValue& value, const TeamRecord& record)
{
    return Problem(value, record);
}

void PutFieldValue(const FieldValue& value, PlayerRecord& record)
{
    Put(value, record);
}

void PutFieldValue(const FieldValue& value, TeamRecord& record)
{
    Put(value, record);
}

bool OutsideRange(const TableColumn& column, const PlayerRecord& record)
{
    return IsOutside(column, record);
}

bool OutsideRange(const TableColumn& column, const TeamRecord& record)
{
    return IsOutside(column, record);
}
