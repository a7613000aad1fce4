#include "forms/value_boxes.h"

#include <QSignalBlocker>

#include "data/text_number.h"
#include "forms/combo_box.h"
#include "forms/text_box.h"

void ShowCodeEntry(ComboBox& box, int index)
{
    const QSignalBlocker quiet(box);
    box.setCurrentIndex(index >= 0 && index < box.ListCount() ? index : -1);
}

void ShowText(TextBox& box, const QString& text)
{
    box.SetText(text);
    box.setCursorPosition(0);
}

void StoreNumber(const TextBox& box, std::int16_t& field)
{
    if (const auto value = TextAsNumber(box.Text().toStdString()))
        field = *value;
}

void StoreCode(const ComboBox& box, std::int16_t& field, int firstCode)
{
    if (const int entry = box.ListIndex(); entry >= 0)
        field = std::int16_t(entry + firstCode);
}

void MakeReadOnly(QWidget& box)
{
    if (auto* text = qobject_cast<TextBox*>(&box))
        text->SetLocked(true);
    QPalette readable = box.palette();
    for (QPalette::ColorRole role : {QPalette::Text, QPalette::ButtonText})
        readable.setColor(QPalette::Disabled, role, readable.color(QPalette::Active, role));
    box.setEnabled(false);
    box.setPalette(readable);
}
