#pragma once

#include <QDialog>
#include <QString>
#include <vector>

#include "check/problems.h"

class QLabel;
class QTableWidget;

// Check Game: every problem of the game in a table, in the order given
// (errors first). A double click or Enter on a row goes to its player or
// team; the window stays open beside the main window so that one problem
// after another can be looked at.
class ProblemsWindow : public QDialog {
    Q_OBJECT
public:
    explicit ProblemsWindow(QWidget* parent = nullptr);

    void ShowProblems(const std::vector<Problem>& problems);

    QLabel* summary = nullptr;
    QTableWidget* problemTable = nullptr;

signals:
    void playerChosen(int number);
    void teamChosen(int number);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void GoToRow(int row);

    std::vector<Problem> problems_;
};
