#pragma once

#include <cstdint>

class ComboBox;
class QString;
class QWidget;
class TextBox;

// How a record's value goes into its box and comes back, for the player's
// column and the team's boxes alike.

// Chooses entry `index` of a code list without running its Click; an index
// outside the list leaves nothing chosen.
void ShowCodeEntry(ComboBox& box, int index);

// Puts a value into a box with its beginning in view, as a long name reads
// from the left.
void ShowText(TextBox& box, const QString& text);

// A box that holds no 16-bit number leaves the field as it was, and the
// user's text stays in the box.
void StoreNumber(const TextBox& box, std::int16_t& field);

// A list with nothing chosen shows a code with no entry; the field keeps it.
void StoreCode(const ComboBox& box, std::int16_t& field, int firstCode);

// A box that only shows: it takes no input and no focus, yet its value reads
// as plainly as that of a box the user edits.
void MakeReadOnly(QWidget& box);
