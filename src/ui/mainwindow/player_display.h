#pragma once

#include <array>

#include "data/records.h"
#include "forms/control_indexes.h"

class ComboBox;
class QString;
class TextBox;

// The controls that show one player, field by field. The main window edits
// through them; the search window shows a candidate in its own read-only set.
struct PlayerControls {
    std::array<TextBox*, TextBoxCount> text{};  // indexed like Text1; team boxes unused
    ComboBox* country = nullptr;                // CountryList
    std::array<ComboBox*, 5> codes{};           // indexed like Combo4: bat position to fields at
};

// Fills the controls from the record, in a fixed order: the six code lists,
// the date of birth, the skills, then initials and surname. A code is shown
// by its place in the list, so the second "Namibia" stays the second; a code
// with no entry leaves its box with nothing chosen. No Click runs.
void ShowPlayer(const PlayerRecord& player, const PlayerControls& controls);

// Chooses entry `index` of a code list without running its Click; an index
// outside the list leaves nothing chosen.
void ShowCodeEntry(ComboBox& box, int index);

// Puts a value into a box with its beginning in view, as a long name reads
// from the left.
void ShowText(TextBox& box, const QString& text);
