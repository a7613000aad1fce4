#include "forms/combo_box.h"

#include <QSignalBlocker>

#include "forms/wheel_guard.h"

ComboBox::ComboBox(QWidget* parent)
    : QComboBox(parent)
{
    setEditable(false);
    // A pick is the user's only when he has the list in hand.
    IgnoreWheelUnlessFocused(*this);
    // `activated` comes only from the user (popup, arrow keys, typing, wheel),
    // also when the same row is picked again.
    connect(this, &QComboBox::activated, this, &ComboBox::Click);
}

int ComboBox::ListIndex() const
{
    return currentIndex();
}

int ComboBox::ListCount() const
{
    return count();
}

QString ComboBox::List(int index) const
{
    return index >= 0 && index < count() ? itemText(index) : QString();
}

int ComboBox::ItemData(int index) const
{
    return itemData(index, Qt::UserRole).toInt();
}

void ComboBox::SetItemData(int index, int value)
{
    if (index >= 0 && index < count())
        setItemData(index, value, Qt::UserRole);
}

void ComboBox::AddItem(const QString& text)
{
    const QSignalBlocker quiet(this);
    const int chosen = currentIndex();
    addItem(text);
    // QComboBox chooses the first row added to an empty box; the windows
    // expect an empty choice until they make one.
    if (currentIndex() != chosen)
        setCurrentIndex(chosen);
}

void ComboBox::Clear()
{
    const QSignalBlocker quiet(this);
    clear();
}

bool ComboBox::SetText(const QString& text)
{
    for (int row = 0; row < count(); ++row) {
        if (itemText(row) == text) {
            setCurrentIndex(row);
            emit Click();
            return true;
        }
    }
    return false;
}
