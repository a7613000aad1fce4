#pragma once

#include "forms/notice_bar.h"

class QPushButton;

// The strip under the menu that says another program has saved the game's
// files while the editor has them open, and offers to read them again or to
// keep what the editor holds.
class ChangedFilesBar : public NoticeBar {
    Q_OBJECT
public:
    explicit ChangedFilesBar(QWidget* parent = nullptr);

    QPushButton* reloadButton = nullptr;
    QPushButton* keepMineButton = nullptr;

signals:
    void reloadRequested();
    void keepMineRequested();
};
