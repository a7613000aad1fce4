#pragma once

#include "forms/notice_bar.h"

class QPushButton;

// The strip under the menu that says a loaded game has errors, with a button
// that opens the list. A game without errors never shows it.
class ProblemsBar : public NoticeBar {
    Q_OBJECT
public:
    explicit ProblemsBar(QWidget* parent = nullptr);

    // Shows the bar with the count, or hides it for 0.
    void SetErrorCount(int errors);

    QPushButton* showProblemsButton = nullptr;

signals:
    void showProblemsRequested();
};
