#include "forms/drop_down.h"

#include <QSignalBlocker>

#include "forms/game_text.h"
#include "forms/wheel_guard.h"

QComboBox* NewDropDown(QWidget* parent)
{
    auto* box = new QComboBox(parent);
    IgnoreWheelUnlessFocused(*box);
    return box;
}

QComboBox* NewWordList(QWidget* parent, std::span<const std::string_view> words)
{
    QComboBox* box = NewDropDown(parent);
    for (std::string_view word : words)
        box->addItem(FromGame(word));
    ShowEntry(*box, -1);
    return box;
}

void ShowEntry(QComboBox& box, int index)
{
    const QSignalBlocker quiet(box);
    box.setCurrentIndex(index >= 0 && index < box.count() ? index : -1);
}
