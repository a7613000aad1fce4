#pragma once

#include <QDialog>
#include <QString>
#include <vector>

class QLabel;
class QTreeWidget;
class QTreeWidgetItem;

// One difference between two states of a game as the list shows it.
struct ChangeEntry {
    enum Group { Players, Teams, SquadMoves };
    Group group = Players;
    QString text;          // "player 12 (A Neskerley): bowlSkill 48 -> 65"
    bool team = false;     // the record is a team, otherwise a player
    int record = 0;
};

// What changed, grouped into players, teams and squad moves, each group in
// the order given. A double click or Enter on a change goes to its record;
// the window stays open beside the main window.
class ChangesWindow : public QDialog {
    Q_OBJECT
public:
    explicit ChangesWindow(QWidget* parent = nullptr);

    // `since` says against what: "since the last save", ...
    void ShowChanges(const QString& since, const std::vector<ChangeEntry>& changes);

    QLabel* summary = nullptr;
    QTreeWidget* changeTree = nullptr;

signals:
    void PlayerChosen(int number);
    void TeamChosen(int number);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void GoTo(const QTreeWidgetItem* item);

    std::vector<ChangeEntry> changes_;
};
