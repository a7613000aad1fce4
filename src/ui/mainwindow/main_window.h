#pragma once

#include <QMainWindow>
#include <QMessageBox>
#include <array>
#include <memory>
#include <optional>

#include "data/fields.h"
#include "data/folder_lock.h"
#include "data/game.h"
#include "options/setting_places.h"

class FittedLayout;
class GameTools;
class GameHistory;
class ChoiceList;
class ClickablePicture;
class PlayerColumn;
class QAction;
class QComboBox;
class QLabel;
class QPushButton;
class QTimer;
struct StepPlace;

// The editor's one working window: a country and its teams on the left, the
// chosen team's squad in the middle, one player on the right. Every value of
// the team and the player is edited in place; the ten-a-second tick carries
// what the boxes hold into the records. The other windows open over it with
// what they need and say by their signals what they changed.
class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    MainWindow(Game& game, SettingPlaces places, QWidget* parent = nullptr);
    ~MainWindow() override;

    // Reads the setting and both files and brings the window to its first
    // team and player. False when no game directory is known and the program
    // must end without showing the window.
    bool Start();
    // After a load: forgets the steps of undo, selects the first country,
    // team and player in turn, then starts the tick.
    void ShowFirstEntries();

    // The edit write-back, ten times a second: every value of the shown player
    // and team goes into its record, changed or not.
    void CarryEditsIntoRecords();
    // Before anything reads or writes the records: what the boxes hold goes
    // into them as a tick would take it, and the box being typed in closes
    // its undo step.
    void CarryPendingEdits();
    // After a squad changed: the team's entry is chosen again, which rebuilds
    // the squad list; the current player's row stays chosen if he is in it.
    void RefreshSquad();

    // Whether the game differs from the files as last loaded or saved.
    bool HasUnsavedChanges() const;

    // The player whose values the column shows and writes back.
    std::optional<int> CurrentPlayer() const { return currentPlayer_; }
    // The team of the team list's chosen entry; the squad commands work on it.
    std::optional<int> CurrentTeam() const;

    // Brings a player into view as picks would: his country, his team, his
    // row. A player without a club is shown with no team chosen.
    void GoToPlayer(int number);
    // Brings a team into view: its country, then its entry, no row chosen.
    void GoToTeam(int number);
    // After records changed behind the boxes: the current player and team
    // are shown again from their records, before a tick can write the old
    // values back.
    void ShowRecordsAgain();

signals:
    // The squad list's chosen row, -1 when none is: a pick, or a rebuild.
    void squadRowChanged(int row);

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

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
    // Chooses the country of `team`, then its entry; false when no entry lists it.
    bool ChooseTeamEntry(int team);
    // The right-hand column with no player in it, empty and disabled.
    void ShowNoPlayer();
    // Chooses the row of the current player, if the list holds him, without
    // showing him again.
    void KeepCurrentRow();
    // The first entry of the team list, or of the squad list, as a pick would.
    void ChooseFirstTeam();
    void ChooseFirstPlayer();
    // After an undo or redo: the team and player it touched, shown afresh.
    void BringIntoView(const StepPlace& place);
    // Tints the number boxes by what their fields made of them; the status
    // bar tells about the box being typed in.
    void MarkNumberBoxes();
    void SayInStatusBar(const QString& text);

    // The player and team in the detail boxes, as records (null when none).
    PlayerRecord* ShownPlayer();
    TeamRecord* ShownTeam();
    void ShowTeam();
    void FillTeamBoxes(const TeamRecord& team);
    void WriteBackTeam(TeamRecord& team);

    // Squad buttons.
    void OnAddNewPlayer();
    void OnAddExistingPlayer();
    void OnReplacePlayer();
    void OnDeletePlayer();
    // The search window moved `candidate` into the squad of `team`.
    void RecordTransfer(int team, int candidate);

    // Menu and pictures.
    void OnOptions();
    void OnSave();
    void OnExit();
    void OnHelp();
    void OnAbout();
    void OnUserGuidePicture();
    void OnFileFormatsPicture();

    bool ChooseFirstDirectory();
    // Loads the game's directory, says what became of a save cut off there
    // and whether another editor has it open. Returns why a file that is
    // there could not be read, if one could not.
    std::optional<QString> LoadGameDirectory();
    void LoadNewDirectory();
    // A game folder that cannot be opened at start, or a file in it that was
    // `refused`, is told, with the offer to choose another folder.
    void OfferOtherFolder(const std::optional<QString>& refused);
    bool SaveAll();
    // The question on leaving the game: Yes, No or Cancel.
    QMessageBox::StandardButton AskToSave();
    // With unsaved changes, asks whether to save them first; false when the
    // user cancels or the save fails.
    bool MayLeaveGame();
    void SetTitle(const QString& caption);

    Game& game_;
    SettingPlaces places_;
    std::unique_ptr<FolderPresence> presence_;

    QComboBox* countryList_ = nullptr;
    QComboBox* teamList_ = nullptr;
    QLabel* teamNumberLabel_ = nullptr;
    std::array<QWidget*, TeamFields.size()> teamBoxes_{};  // one to each field of the team table
    ClickablePicture* userGuidePicture_ = nullptr;
    ClickablePicture* fileFormatsPicture_ = nullptr;

    ChoiceList* squadList_ = nullptr;
    QPushButton* addNewPlayerButton_ = nullptr;
    QPushButton* addExistingPlayerButton_ = nullptr;
    QPushButton* replacePlayerButton_ = nullptr;
    QPushButton* deletePlayerButton_ = nullptr;

    PlayerColumn* playerColumn_ = nullptr;
    QTimer* editTimer_ = nullptr;
    GameTools* tools_ = nullptr;

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

    GameHistory* history_ = nullptr;
    bool bringingIntoView_ = false;
    bool leaveAnswered_ = false;   // Exit has asked already; the close box need not
    QString statusSaid_;           // what the status bar says about a box
};
