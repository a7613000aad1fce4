#pragma once

#include <QDialog>
#include <QString>
#include <vector>

#include "diff/differences.h"

class QLabel;
class QTreeWidget;
class QTreeWidgetItem;

// What changed, grouped into players, teams and squad moves, each group in
// the order given. A double click or Enter on a change goes to its player or
// team (a rearranged squad to its team); the window stays open beside the
// main window.
class ChangesWindow : public QDialog {
    Q_OBJECT
public:
    explicit ChangesWindow(QWidget* parent = nullptr);

    // `since` says against what: "since the last save", ...
    void ShowChanges(const QString& since, const std::vector<Difference>& changes);

    QLabel* summary = nullptr;
    QTreeWidget* changeTree = nullptr;

signals:
    void playerChosen(int number);
    void teamChosen(int number);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void GoTo(const QTreeWidgetItem* item);

    std::vector<Difference> changes_;
};
