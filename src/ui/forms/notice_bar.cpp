#include "forms/notice_bar.h"

#include <QAction>
#include <QLabel>

NoticeBar::NoticeBar(const char* name, QStyle::StandardPixmap icon, QWidget* parent)
    : QToolBar(parent), iconKind_(icon)
{
    setObjectName(QString::fromLatin1(name));
    setMovable(false);
    setFloatable(false);
    toggleViewAction()->setVisible(false);
    icon_ = new QLabel(this);
    icon_->setContentsMargins(2, 0, 6, 0);
    message = new QLabel(this);
    addWidget(icon_);
    addWidget(message);
    hide();
}

void NoticeBar::showEvent(QShowEvent* event)
{
    if (icon_->pixmap().isNull()) {
        const int side = style()->pixelMetric(QStyle::PM_SmallIconSize);
        icon_->setPixmap(style()->standardIcon(iconKind_).pixmap(side, side));
    }
    QToolBar::showEvent(event);
}
