#pragma once

#include <QDate>
#include <QDialog>
#include <cstdint>
#include <vector>

#include "data/game.h"

class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

// Find Player: one box and the players it matches, listed afresh at every
// keystroke with their name, club, nationality and age. Enter, or a double
// click on a row, chooses a player and closes the window; the arrow keys move
// from the box into the list.
class FindWindow : public QDialog {
    Q_OBJECT
public:
    // Ages are counted on `today`.
    FindWindow(const Game& game, QDate today, QWidget* parent = nullptr);

    QLineEdit* findBox = nullptr;
    QTreeWidget* matchList = nullptr;

signals:
    void playerChosen(int number);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ListMatches();
    void ChooseRow(QTreeWidgetItem* row);
    QString ClubName(std::int16_t player) const;

    const Game& game_;
    QDate today_;
    // Each player's club, 0 for none; the game does not change while the window is open.
    std::vector<std::int16_t> clubs_;
};
