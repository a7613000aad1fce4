#pragma once

#include <QMainWindow>
#include <array>
#include <optional>

#include "data/fields.h"
#include "data/game.h"
#include "options/setting_places.h"

class ComboBox;
class FittedLayout;
class ListBox;
class PictureBox;
class PlayerColumn;
class QAction;
class QLabel;
class QPushButton;
class QTimer;

// The editor's one working window: a country and its teams on the left, the
// chosen team's squad in the middle, one player on the right. Every value of
// the team and the player is edited in place; the ten-a-second tick carries
// what the boxes hold into the records. The other windows open over it with
// what they need and say by their signals what they changed.
class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    MainWindow(Game& game, SettingPlaces places, QWidget* parent = nullptr);

    // Reads the setting and both files and brings the window to its first
    // team and player. False when no game directory is known and the program
    // must end without showing the window.
    bool Start();
    // Selects the first country, team and player in turn, then starts the tick.
    void ShowFirstEntries();

    // The edit write-back, ten times a second: every value of the shown player
    // and team goes into its record, changed or not.
    void CarryEditsIntoRecords();
    // After a squad changed: the team's entry is chosen again, which rebuilds
    // the squad list with no row chosen.
    void RefreshSquad();

    // The player whose values the column shows and writes back.
    std::optional<int> CurrentPlayer() const { return currentPlayer_; }
    // The team of the team list's chosen entry; the squad commands work on it.
    std::optional<int> CurrentTeam() const;

signals:
    // The squad list's chosen row, -1 when none is: a pick, or a rebuild.
    void squadRowChanged(int row);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void BuildTeamColumn(FittedLayout& at, QWidget* area);
    void BuildSquadColumn(FittedLayout& at, QWidget* area);
    void BuildPlayerColumn(FittedLayout& at, QWidget* area);
    void BuildMenu();
    void SetTabOrder();
    void ConnectHandlers();

    // Navigation.
    void OnCountryChosen();
    void OnTeamChosen();
    void OnPlayerChosen();
    void ClearSquadList();
    void FillSquadList();

    // The player and team in the detail boxes, as records (null when none).
    PlayerRecord* ShownPlayer();
    TeamRecord* ShownTeam();
    void ShowTeam();
    void WriteBackTeam(TeamRecord& team);

    // Squad buttons.
    void OnAddNewPlayer();
    void OnAddExistingPlayer();
    void OnReplacePlayer();
    void OnDeletePlayer();

    // Menu and pictures.
    void OnOptions();
    void OnSave();
    void OnExit();
    void OnHelp();
    void OnAbout();
    void OnUserGuidePicture();
    void OnFileFormatsPicture();

    bool ChooseFirstDirectory();
    void LoadNewDirectory();
    bool SaveAll();

    Game& game_;
    SettingPlaces places_;

    ComboBox* countryList_ = nullptr;
    ComboBox* teamList_ = nullptr;
    QLabel* teamNumberLabel_ = nullptr;
    std::array<QWidget*, TeamFields.size()> teamBoxes_{};  // one to each field of the team table
    PictureBox* userGuidePicture_ = nullptr;
    PictureBox* fileFormatsPicture_ = nullptr;

    ListBox* squadList_ = nullptr;
    QPushButton* addNewPlayerButton_ = nullptr;
    QPushButton* addExistingPlayerButton_ = nullptr;
    QPushButton* replacePlayerButton_ = nullptr;
    QPushButton* deletePlayerButton_ = nullptr;

    PlayerColumn* playerColumn_ = nullptr;
    QTimer* editTimer_ = nullptr;

    QAction* optionsAction_ = nullptr;
    QAction* saveAction_ = nullptr;
    QAction* exitAction_ = nullptr;
    QAction* helpAction_ = nullptr;
    QAction* aboutAction_ = nullptr;

    // The shown player and team, by number. The team is the one its record's
    // own number names; it is set once a team has been shown.
    std::optional<int> currentPlayer_;
    std::optional<int> shownTeam_;
    bool centred_ = false;
};
