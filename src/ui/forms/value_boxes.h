#pragma once

#include <cstdint>

#include "data/fields.h"
#include "forms/drop_down.h"
#include "forms/game_text.h"
#include "forms/text_box.h"

class QString;
class QWidget;

// How a record's value goes into its box and comes back, for the player's
// column and the team's boxes alike.

// Puts a value into a box with its beginning in view, as a long name reads
// from the left.
void ShowText(TextBox& box, const QString& text);

// A box that holds no 16-bit number leaves the field as it was, and the
// user's text stays in the box.
void StoreNumber(const TextBox& box, std::int16_t& field);

// A list with nothing chosen shows a code with no entry; the field keeps it.
void StoreCode(const QComboBox& box, std::int16_t& field, int firstCode);

// A box that only shows: it takes no input and no focus, yet its value reads
// as plainly as that of a box the user edits.
void MakeReadOnly(QWidget& box);

// A field of the game's table in the box its kind calls for: a text box for a
// name or a number, a list for a code.
template <class Record>
void ShowField(QWidget& box, const Field<Record>& field, const Record& record)
{
    switch (field.kind) {
    case FieldKind::Name:
        return ShowText(static_cast<TextBox&>(box), FromGame(record.*field.text));
    case FieldKind::Number:
        return ShowText(static_cast<TextBox&>(box), QString::number(record.*field.number));
    case FieldKind::Code:
        return ShowEntry(static_cast<QComboBox&>(box), record.*field.number - field.codes->firstCode);
    }
}

// Carries the box back into the record's field; true when that changed a name.
template <class Record>
bool StoreField(const QWidget& box, const Field<Record>& field, Record& record)
{
    switch (field.kind) {
    case FieldKind::Name: {
        std::string typed = ToGame(static_cast<const TextBox&>(box).text());
        if (typed == record.*field.text)
            return false;
        record.*field.text = std::move(typed);
        return true;
    }
    case FieldKind::Number:
        StoreNumber(static_cast<const TextBox&>(box), record.*field.number);
        return false;
    case FieldKind::Code:
        StoreCode(static_cast<const QComboBox&>(box), record.*field.number, field.codes->firstCode);
        return false;
    }
    return false;
}
