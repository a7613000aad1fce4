#pragma once

#include <QComboBox>

#include "data/fields.h"
#include "data/number_entry.h"
#include "forms/drop_down.h"
#include "forms/game_text.h"
#include "forms/text_box.h"
#include "forms/typed_value.h"

// How a record's value goes into its box and comes back, for the player's
// column and the team's boxes alike: a text box for a name or a number, a
// list of its words for a code.

// A box that only shows: it takes no input and no focus, yet its value reads
// as plainly as that of a box the user edits.
void MakeReadOnly(QWidget& box);

template <class Record>
void ShowField(QWidget& box, const Field<Record>& field, const Record& record)
{
    switch (field.kind) {
    case FieldKind::Name:
        return static_cast<TextBox&>(box).ShowText(FromGame(record.*field.text));
    case FieldKind::Number:
        return static_cast<TextBox&>(box).ShowText(QString::number(record.*field.number));
    case FieldKind::Code:
        // A code with no entry leaves the list with nothing chosen.
        return ShowEntry(static_cast<QComboBox&>(box), record.*field.number - field.codes->firstCode);
    }
}

template <class Record>
TypedValue TypedValueOf(const QWidget& box, const Field<Record>& field)
{
    switch (field.kind) {
    case FieldKind::Name:
        return ToGame(static_cast<const TextBox&>(box).text());
    case FieldKind::Number:
        if (const auto number = ExactNumber(static_cast<const TextBox&>(box).text().toStdString()))
            return *number;
        return {};
    case FieldKind::Code:
        if (const int entry = static_cast<const QComboBox&>(box).currentIndex(); entry >= 0)
            return std::int16_t(entry + field.codes->firstCode);
        return {};
    }
    return {};
}
