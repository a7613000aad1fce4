#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "data/field_walk.h"
#include "data/fields.h"
#include "data/text_lines.h"

// Line `line` of a record as the game writes it: the record's number on its
// key line, a constant, a field or, for a team, a squad place.
template <const auto& layout, int line, class Record>
void WriteRecordLine(TextLines& out, const Record& record, int number)
{
    constexpr LineKind kind = KindOfLine(layout, line);
    if constexpr (kind == LineKind::Key) {
        out.Number(number);
    } else if constexpr (kind == LineKind::Constant) {
        out.Line(ConstantOnLine(layout, line));
    } else if constexpr (kind == LineKind::Name) {
        out.Append(record.*FieldOnLine(layout, line).text);
        out.Line("#");
    } else if constexpr (kind == LineKind::Number) {
        out.Number(record.*FieldOnLine(layout, line).number);
    } else {
        out.Number(record.squad[line - layout.firstSquadLine + 1]);
    }
}

// The lines of one record, walked from the layout.
template <const auto& layout, class Record>
void WriteRecordLines(TextLines& out, const Record& record, int number)
{
    ForEachLine<1, layout.lines>([&](auto line) { WriteRecordLine<layout, line()>(out, record, number); });
}

// About the size of a file of `count` records: most lines hold a few digits.
template <class Record>
constexpr std::size_t ExpectedBytes(const RecordLayout<Record>& layout, int count)
{
    constexpr std::size_t usualLine = 5;
    return (static_cast<std::size_t>(count) * layout.lines + layout.closingEmptyLines) * usualLine;
}

// A stored name keeps the line but for its last character, which the game
// writes as "#" to guard trailing blanks; an empty line leaves the name alone.
template <class Record>
void TakeName(const std::optional<std::string_view>& line, const Field<Record>& field, Record& record)
{
    if (!line || line->empty())
        return;
    const std::string_view name = line->substr(0, line->size() - 1);
    if (field.trimmed)
        record.*field.text = TrimBlanks(name);
    else
        record.*field.text = name;
}
