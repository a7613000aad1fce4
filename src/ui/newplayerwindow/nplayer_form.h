#pragma once

#include <QDialog>
#include <array>

#include "data/game.h"
#include "forms/control_indexes.h"
#include "newplayer/new_player_check.h"

class ComboBox;
class FittedLayout;
class MainForm;
class QLabel;
class QPushButton;
class TextBox;

// The window in which the user makes one new player for the squad shown on
// the main window. It is built afresh for each showing and keeps nothing.
class NPlayerForm : public QDialog {
    Q_OBJECT
public:
    NPlayerForm(Game& game, MainForm& main, QWidget* parent = nullptr);

    // Every list on its first entry, every box empty.
    void Form_Load();
    // Number boxes take digits and Backspace only; the names take any key.
    void Text1_KeyPress(int index, int& keyAscii);
    // OK: checks the entries and, when they are good, creates the player.
    void Command1_Click();
    // Cancel: closes without storing anything.
    void Command2_Click();
    // Help: the table of skill ranges.
    void Command3_Click();

    NewPlayerEntries Entries() const;

    // Indexed like the main window's boxes for the same data; the team's
    // boxes (8 to 12) are not on this form and stay null.
    std::array<TextBox*, TextBoxCount> Text1{};
    ComboBox* Combo3 = nullptr;
    std::array<ComboBox*, 5> Combo4{};
    QPushButton* Command1 = nullptr;
    QPushButton* Command2 = nullptr;
    QPushButton* Command3 = nullptr;

private:
    TextBox* AddTextBox(FittedLayout& at, int index, QRect rect, int maxLength);
    void AddCaption(FittedLayout& at, const QString& caption, QRect rect);

    Game& game_;
    MainForm& main_;
};

// "Add New Player": shows the window over the main window, or refuses with
// a message when the game already holds its maximum of players.
void OpenNewPlayerWindow(Game& game, MainForm& main);
