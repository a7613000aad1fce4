#pragma once

#include <QMainWindow>
#include <QString>
#include <optional>

class ChangedFilesBar;
class ChoiceList;
class ClickablePicture;
class FittedLayout;
class GameDocument;
class GameFiles;
class GameTools;
class PlayerColumn;
class ProblemsBar;
class QComboBox;
class QPushButton;
class TeamColumn;
struct PlayerRecord;
struct StepPlace;
struct TeamRecord;

// The editor's one working window: a country and its teams on the left, the
// chosen team's squad in the middle, one player on the right. Every value of
// the team and the player is edited in place, each change going straight
// into the document; the window draws from what the document says changed.
// The other windows open over it with what they need.
class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    MainWindow(GameDocument& document, GameFiles& files, GameTools& tools, QWidget* parent = nullptr);
    ~MainWindow() override;

    // Selects the first country, team and player in turn, as after a load.
    void ShowFirstEntries();

    // The player whose values the column shows and edits.
    std::optional<int> CurrentPlayer() const { return currentPlayer_; }
    // The team of the team list's chosen entry; the squad commands work on it.
    std::optional<int> CurrentTeam() const;

    // Brings a player into view as picks would: his country, his team, his
    // row. A player without a club is shown with no team chosen.
    void GoToPlayer(int number);
    // Brings a team into view: its country, then its entry, no row chosen.
    void GoToTeam(int number);

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    // Building, in main_window.cpp.
    void BuildLeftColumn(FittedLayout& at, QWidget* area);
    void BuildSquadColumn(FittedLayout& at, QWidget* area);
    void BuildPlayerColumn(FittedLayout& at, QWidget* area);
    void BuildMenu();
    void SetTabOrder();
    void ConnectHandlers();
    void FollowDocument();
    void SetTitle();

    // Navigation, in navigation.cpp.
    void OnCountryChosen();
    void OnTeamChosen();
    void OnPlayerChosen();
    void ChooseFirstTeam();
    void ChooseFirstPlayer();
    void FillSquadList();
    // After a squad changed: the team's entry is chosen again, which rebuilds
    // the squad list; the current player's row stays chosen if he is in it.
    void RefreshSquad();
    // Chooses the country of `team`, then its entry; false when no entry lists it.
    bool ChooseTeamEntry(int team);
    // After an undo or redo: the team and player it touched, shown afresh.
    void BringIntoView(const StepPlace& place);
    // After an import changed records anywhere: the lists and boxes again.
    void ShowRecordsAgain();

    // The shown records, in shown_records.cpp.
    void ShowPlayer(int number);
    // The right-hand column with no player in it, empty and disabled.
    void ShowNoPlayer();
    // The team's boxes with no team in them, empty and disabled.
    void ShowNoTeam();
    // The team of a team list's entry in the team's boxes.
    void ShowTeam(int index);
    void OnPlayerChanged(int number);
    void OnTeamChanged(int number);
    // Tints the number boxes by what their fields made of them; the status
    // bar tells about the box with the focus.
    void MarkNumberBoxes();
    // What the shown player's column, then the shown team's, say when asked
    // `player` and `team`; the team's word wins.
    QString AskShownColumns(QString (PlayerColumn::*player)(const PlayerRecord&),
                            QString (TeamColumn::*team)(const TeamRecord&));
    void SayInStatusBar(const QString& text);
    // Tells why something the user did was refused; it stays until the next word.
    void Explain(const QString& why);
    // After a box was left: a number box whose text its field cannot hold
    // shows the record's value again, and the status bar says so.
    void TakeBackInexactBoxes();

    // The squad buttons, in squad_commands.cpp.
    void OnAddNewPlayer();
    void OnAddExistingPlayer();
    void OnReplacePlayer();
    void OnDeletePlayer();

    // The menu's commands and the pictures, in menu_commands.cpp.
    void OnExit();
    void OnHelp();
    void OnAbout();
    void OnUserGuidePicture();
    void OnFileFormatsPicture();

    GameDocument& document_;
    GameFiles& files_;
    GameTools& tools_;

    QComboBox* countryList_ = nullptr;
    QComboBox* teamList_ = nullptr;
    TeamColumn* teamColumn_ = nullptr;
    ClickablePicture* userGuidePicture_ = nullptr;
    ClickablePicture* fileFormatsPicture_ = nullptr;

    ChoiceList* squadList_ = nullptr;
    QPushButton* addNewPlayerButton_ = nullptr;
    QPushButton* addExistingPlayerButton_ = nullptr;
    QPushButton* replacePlayerButton_ = nullptr;
    QPushButton* deletePlayerButton_ = nullptr;

    PlayerColumn* playerColumn_ = nullptr;
    ProblemsBar* problemsBar_ = nullptr;
    ChangedFilesBar* changedFilesBar_ = nullptr;

    // The shown player and team, by number. The team is the one its record's
    // own number names; it is set once a team has been shown.
    std::optional<int> currentPlayer_;
    std::optional<int> shownTeam_;

    // The title names the editor with a small "e" for the game opened at
    // start and a capital one after a change of folder.
    QString caption_ = QStringLiteral("KOLTA editor");
    bool centred_ = false;
    bool leaveAnswered_ = false;   // Exit has asked already; the close box need not
    QString statusSaid_;           // what the status bar says about the number box with the focus
};
