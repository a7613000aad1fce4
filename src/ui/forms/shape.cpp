#include "forms/shape.h"

Shape::Shape(const QColor& fill, QWidget* parent)
    : QWidget(parent)
{
    setAutoFillBackground(true);
    SetFill(fill);
}

void Shape::SetFill(const QColor& fill)
{
    QPalette colours = palette();
    colours.setColor(QPalette::Window, fill);
    setPalette(colours);
}
