#include "forms/picture_box.h"

#include <QMouseEvent>

PictureBox::PictureBox(const QPixmap& picture, QWidget* parent)
    : QLabel(parent)
{
    setPixmap(picture);
    setScaledContents(true);
    setCursor(Qt::PointingHandCursor);
}

void PictureBox::mouseReleaseEvent(QMouseEvent* event)
{
    QLabel::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        emit Click();
}
