#pragma once

#include <QComboBox>
#include <span>
#include <string_view>

// A drop-down list that takes no typed entry and that the mouse wheel turns
// only while it has the focus. The user's picks come as QComboBox::activated.
QComboBox* NewDropDown(QWidget* parent);
// The same, holding the game's words in order, with nothing chosen yet.
QComboBox* NewWordList(QWidget* parent, std::span<const std::string_view> words);

// Chooses entry `index`, or nothing for one outside the list, with no signal:
// the program shows a value, the user picked nothing.
void ShowEntry(QComboBox& box, int index);
