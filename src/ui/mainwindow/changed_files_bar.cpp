#include "mainwindow/changed_files_bar.h"

#include <QAction>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

ChangedFilesBar::ChangedFilesBar(QWidget* parent) : QToolBar(parent)
{
    setObjectName(QStringLiteral("changedFilesBar"));
    setMovable(false);
    setFloatable(false);
    toggleViewAction()->setVisible(false);

    auto* icon = new QLabel(this);
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize);
    icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxInformation).pixmap(side, side));
    reloadButton = new QPushButton(QStringLiteral("&Reload"), this);
    keepMineButton = new QPushButton(QStringLiteral("&Keep mine"), this);
    addWidget(icon);
    addWidget(new QLabel(QStringLiteral("players.dat and teams.dat were changed by another program"), this));
    addWidget(reloadButton);
    addWidget(keepMineButton);
    connect(reloadButton, &QPushButton::clicked, this, &ChangedFilesBar::reloadRequested);
    connect(keepMineButton, &QPushButton::clicked, this, &ChangedFilesBar::keepMineRequested);
    hide();
}
