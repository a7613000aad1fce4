#include "forms/clickable_picture.h"

#include <QMouseEvent>

ClickablePicture::ClickablePicture(const QPixmap& picture, QWidget* parent) : QLabel(parent)
{
    setPixmap(picture);
    setScaledContents(true);
    setCursor(Qt::PointingHandCursor);
}

void ClickablePicture::mouseReleaseEvent(QMouseEvent* event)
{
    QLabel::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        emit clicked();
}
