#pragma once

#include <optional>
#include <string>

#include "data/fields.h"
#include "data/text_lines.h"

// The lines of one record as the game writes them, walked from the layout:
// the record's number on its key line, the constants, each field and, for a
// team, the squad places.
template <class Record>
void WriteRecordLines(TextLines& out, const RecordLayout<Record>& layout, const Record& record, int number)
{
    auto field = layout.fields.begin();
    auto constant = layout.constants.begin();
    for (int line = 1; line <= layout.lines; ++line) {
        if (line == layout.keyLine) {
            out.Number(number);
        } else if (constant != layout.constants.end() && constant->line == line) {
            out.Line((constant++)->text);
        } else if (field != layout.fields.end() && field->line == line) {
            if (field->text)
                out.Line(record.*field->text + "#");
            else
                out.Number(record.*field->number);
            ++field;
        } else if constexpr (requires { record.squad; }) {
            out.Number(record.squad[line - layout.firstSquadLine + 1]);
        }
    }
}

// A stored name keeps the line but for its last character, which the game
// writes as "#" to guard trailing blanks; an empty line leaves the name alone.
template <class Record>
void TakeName(const std::optional<std::string>& line, const Field<Record>& field, Record& record)
{
    if (line && !line->empty())
        record.*field.text = field.trimmed ? TrimBlanks(line->substr(0, line->size() - 1))
                                           : line->substr(0, line->size() - 1);
}
