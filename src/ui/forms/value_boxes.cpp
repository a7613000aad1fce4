#include "forms/value_boxes.h"

#include "data/text_number.h"
#include "forms/text_box.h"

void ShowText(TextBox& box, const QString& text)
{
    box.setText(text);
    box.setCursorPosition(0);
}

void StoreNumber(const TextBox& box, std::int16_t& field)
{
    if (const auto value = TextAsNumber(box.text().toStdString()))
        field = *value;
}

void StoreCode(const QComboBox& box, std::int16_t& field, int firstCode)
{
    if (const int entry = box.currentIndex(); entry >= 0)
        field = std::int16_t(entry + firstCode);
}

void MakeReadOnly(QWidget& box)
{
    if (auto* text = qobject_cast<TextBox*>(&box))
        text->setReadOnly(true);
    QPalette readable = box.palette();
    for (QPalette::ColorRole role : {QPalette::Text, QPalette::ButtonText})
        readable.setColor(QPalette::Disabled, role, readable.color(QPalette::Active, role));
    box.setEnabled(false);
    box.setPalette(readable);
}
