#pragma once

#include <QDialog>
#include <QString>
#include <vector>

class QLabel;
class QTableWidget;

// One problem of a game as the list shows it.
struct ProblemEntry {
    QString file;  // "players.dat" or "teams.dat"
    int record = 0;  // the player's number, or the team's place in its file
    QString field;
    bool error = false;  // otherwise a warning
    QString message;
};

// Check Game: every problem of the game in a table, in the order given
// (errors first). A double click or Enter on a row goes to its player or
// team; the window stays open beside the main window so that one problem
// after another can be looked at.
class ProblemsWindow : public QDialog {
    Q_OBJECT
public:
    explicit ProblemsWindow(QWidget* parent = nullptr);

    void ShowProblems(const std::vector<ProblemEntry>& problems);

    QLabel* summary = nullptr;
    QTableWidget* problemTable = nullptr;

signals:
    void PlayerChosen(int number);
    void TeamChosen(int number);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void GoToRow(int row);

    std::vector<ProblemEntry> problems_;
};

// "1 error, 3 warnings"
QString ProblemCount(int errors, int warnings);
