#include "forms/value_boxes.h"

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
