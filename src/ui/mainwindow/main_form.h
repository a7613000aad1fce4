#pragma once

#include <QMainWindow>
#include <array>
#include <memory>
#include <optional>

#include "data/folder_lock.h"
#include "data/game.h"
#include "forms/control_indexes.h"
#include "mainwindow/player_display.h"
#include "mainwindow/setting_places.h"

class ComboBox;
class FittedLayout;
class ListBox;
class PictureBox;
class QAction;
class QFrame;
class QLabel;
class QMenu;
class QPushButton;
class QTimer;
class TextBox;

// The editor's one working window: a country and its teams on the left, the
// chosen team's squad in the middle, one player on the right. Every value of
// the team and the player is edited in place; the ten-a-second tick carries
// what the boxes hold into the records.
//
// Handlers keep the names of the controls and events they answer to. The
// current player is the number in the hidden Label3, the current team the
// number in lblteamno.
class MainForm : public QMainWindow {
    Q_OBJECT
public:
    MainForm(Game& game, SettingPlaces places, QWidget* parent = nullptr);

    // Reads the setting and both files and brings the window to its first
    // team and player. False when no game directory is known and the program
    // must end without showing the window.
    bool Form_Load();
    // Selects the first country, team and player in turn, then starts the tick.
    void RunStartupChain();
    // Asks a first-time user for the game's directory; true when one was set.
    bool ChooseFirstDirectory();
    // Loads the game's directory, says what became of a save cut off there
    // and whether another editor has it open.
    void LoadGameDirectory();

    // Navigation.
    void Combo1_Click();
    void Combo2_Click();
    void List1_Click();
    void FillSquadList();
    // Selects Combo2's own entry again, which rebuilds the squad list.
    void ReselectCurrentTeam();
    // The team of Combo2's selected entry; the squad commands work on it.
    std::optional<int> CurrentTeam() const;

    // The edit write-back, ten times a second.
    void Timer1_Timer();

    // Menu.
    void opt_Click();
    void updf_Click();
    void exit_Click();
    void hoe_Click();
    void abt_Click();

    // Squad buttons.
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    void Command4_Click();

    // Pictures.
    void Image1_Click();
    void Image2_Click();

    Game& game;
    SettingPlaces places;
    std::unique_ptr<FolderPresence> presence;

    ComboBox* Combo1 = nullptr;
    ComboBox* Combo2 = nullptr;
    ListBox* List1 = nullptr;
    std::array<TextBox*, TextBoxCount> Text1{};
    ComboBox* Combo3 = nullptr;
    std::array<ComboBox*, 6> Combo4{};
    QLabel* lblteamno = nullptr;
    QLabel* Label3 = nullptr;
    std::array<QLabel*, 23> Label2{};  // captions; 0 and 21 are unused
    QLabel* Label1 = nullptr;
    QLabel* Label4 = nullptr;
    QFrame* Line1 = nullptr;
    QFrame* Line2 = nullptr;
    QPushButton* Command1 = nullptr;
    QPushButton* Command2 = nullptr;
    QPushButton* Command3 = nullptr;
    QPushButton* Command4 = nullptr;
    PictureBox* Image1 = nullptr;
    PictureBox* Image2 = nullptr;
    QTimer* Timer1 = nullptr;

    QMenu* file = nullptr;
    QAction* opt = nullptr;
    QAction* updf = nullptr;
    QAction* exit = nullptr;
    QMenu* help = nullptr;
    QAction* hoe = nullptr;
    QAction* abt = nullptr;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void BuildTeamColumn(FittedLayout& at, QWidget* area);
    void BuildSquadColumn(FittedLayout& at, QWidget* area);
    void BuildPlayerColumn(FittedLayout& at, QWidget* area);
    void BuildMenu();
    void SetTabOrder();
    void ConnectHandlers();

    // The player and team in the detail controls, as records (null when none).
    PlayerRecord* ShownPlayer();
    TeamRecord* ShownTeam();
    PlayerControls PlayerEditors() const;
    void ShowTeam();
    void WriteBackPlayer(PlayerRecord& player);
    void WriteBackTeam(TeamRecord& team);
    bool SaveAll();

    // lblteamno starts with a made-up number; it names a team only once
    // a team has been shown.
    bool teamShown_ = false;
    bool centred_ = false;
};
