#pragma once

#include <QDialog>

#include "data/game.h"

class GameDocument;
class FittedLayout;
class PlayerColumn;
class QKeyEvent;
class QPushButton;

// The window in which the user makes one new player for the squad of the
// team it was opened for, as one step of the document. It is built afresh
// for each showing and keeps nothing.
class NewPlayerWindow : public QDialog {
    Q_OBJECT
public:
    NewPlayerWindow(GameDocument& document, int team, QWidget* parent = nullptr);

private:
    // Number boxes take digits and Backspace only; the names take any key.
    static bool PassesNumberKey(const QKeyEvent& key);
    // OK: checks the entries and, when they are good, creates the player.
    void OnOk();
    // Help: the table of skill ranges.
    void OnHelp();

    GameDocument& document_;
    const int team_;
    PlayerColumn* entries_ = nullptr;
    QPushButton* okButton_ = nullptr;
    QPushButton* cancelButton_ = nullptr;
    QPushButton* helpButton_ = nullptr;
};

// When the game already holds its maximum of players, says so and gives true:
// the window is then not opened.
bool RefuseFullGame(const Game& game);
