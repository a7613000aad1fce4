#include "mainwindow/changed_files_bar.h"

#include <QLabel>
#include <QPushButton>

ChangedFilesBar::ChangedFilesBar(QWidget* parent)
    : NoticeBar("changedFilesBar", QStyle::SP_MessageBoxInformation, parent)
{
    message->setText(QStringLiteral("players.dat and teams.dat were changed by another program"));
    reloadButton = new QPushButton(QStringLiteral("&Reload"), this);
    keepMineButton = new QPushButton(QStringLiteral("&Keep mine"), this);
    addWidget(reloadButton);
    addWidget(keepMineButton);
    connect(reloadButton, &QPushButton::clicked, this, &ChangedFilesBar::reloadRequested);
    connect(keepMineButton, &QPushButton::clicked, this, &ChangedFilesBar::keepMineRequested);
}
