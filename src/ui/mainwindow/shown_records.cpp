#include <QLabel>

#include <QStatusBar>

#include "data/squad.h"
#include "forms/box_marks.h"
#include "forms/choice_list.h"
#include "forms/game_text.h"
#include "forms/player_column.h"
#include "forms/text_box.h"
#include "forms/value_boxes.h"
#include "history/game_history.h"
#include "mainwindow/main_window.h"

PlayerRecord* MainWindow::ShownPlayer()
{
    if (!currentPlayer_ || *currentPlayer_ < 1 || *currentPlayer_ > MaxPlayers)
        return nullptr;
    return &game_.Players[std::size_t(*currentPlayer_)];
}

TeamRecord* MainWindow::ShownTeam()
{
    if (!shownTeam_ || *shownTeam_ < 1 || *shownTeam_ > MaxTeams)
        return nullptr;
    return &game_.Teams[std::size_t(*shownTeam_)];
}

void MainWindow::OnPlayerChosen()
{
    CarryPendingEdits();
    // The player is named first: he stays current even if his record cannot
    // be shown.
    const int row = squadList_->ChosenRow();
    if (row >= 0)
        currentPlayer_ = squadList_->NumberAt(row);
    if (const PlayerRecord* player = ShownPlayer()) {
        playerColumn_->setEnabled(true);
        playerColumn_->Show(*player);
    }
    emit squadRowChanged(row);
}

void MainWindow::ShowNoPlayer()
{
    currentPlayer_.reset();
    playerColumn_->ShowNothing();
    playerColumn_->setEnabled(false);
}

void MainWindow::KeepCurrentRow()
{
    if (const int row = currentPlayer_ ? squadList_->RowOf(*currentPlayer_) : -1; row >= 0) {
        squadList_->setCurrentRow(row);
        emit squadRowChanged(row);
    }
}

void MainWindow::ShowTeam()
{
    const auto index = CurrentTeam();
    if (!index || *index < 1 || *index > MaxTeams)
        return;
    // The team written back is the one the record's own number names.
    const TeamRecord& team = game_.Teams[std::size_t(*index)];
    shownTeam_ = team.teamNumber;
    FillTeamBoxes(team);
}

void MainWindow::FillTeamBoxes(const TeamRecord& team)
{
    teamNumberLabel_->setText(QString::number(team.teamNumber));
    for (std::size_t i = 0; i < TeamFields.size(); ++i)
        ShowField(*teamBoxes_[i], TeamFields[i], team);
}

void MainWindow::CarryEditsIntoRecords()
{
    // Only a new name costs more, as it rebuilds the squad list. No box is
    // written, so the caret and the focus stay where the user has them.
    if (PlayerRecord* player = ShownPlayer()) {
        if (playerColumn_->WriteBack(*player)) {
            ClearSquadList();
            FillSquadList();
            KeepCurrentRow();
        }
    }
    if (TeamRecord* team = ShownTeam())
        WriteBackTeam(*team);
    history_->RecordTyping(currentPlayer_.value_or(0), shownTeam_.value_or(0));
    MarkNumberBoxes();
}

void MainWindow::CarryPendingEdits()
{
    // An undo has just put records back; the boxes are being refilled from them.
    if (bringingIntoView_)
        return;
    CarryEditsIntoRecords();
    history_->EndTyping();
}

void MainWindow::MarkNumberBoxes()
{
    QString said;
    if (const PlayerRecord* player = ShownPlayer())
        said = playerColumn_->MarkNumberBoxes(*player);
    if (const TeamRecord* team = ShownTeam()) {
        for (std::size_t i = 0; i < TeamFields.size(); ++i) {
            if (TeamFields[i].kind != FieldKind::Number)
                continue;
            auto& box = static_cast<TextBox&>(*teamBoxes_[i]);
            const QString boxSays = MarkNumberBox(box, TeamFields[i], *team);
            if (box.hasFocus())
                said = boxSays;
        }
    }
    if (!said.isEmpty())
        SayInStatusBar(said);
    else if (!statusSaid_.isEmpty() && statusBar()->currentMessage() == statusSaid_)
        SayInStatusBar(QString());
}

void MainWindow::SayInStatusBar(const QString& text)
{
    statusSaid_ = text;
    if (text.isEmpty())
        statusBar()->clearMessage();
    else
        statusBar()->showMessage(text);
}

void MainWindow::BringIntoView(const StepPlace& step)
{
    bringingIntoView_ = true;
    // A player the step moved is shown at the club that holds him now.
    StepPlace place = step;
    const auto player = std::int16_t(place.player);
    const bool inTeam = IsTeamIndex(place.team) && IsInSquad(game_, place.team, player);
    if (IsPlayerNumber(player) && !inTeam && PresentClub(game_, player) != 0)
        place.team = PresentClub(game_, player);
    const bool isTeam = IsTeamIndex(place.team);
    const auto entryOfTeam = [this, &place] { return teamList_->findData(place.team); };
    if (isTeam && entryOfTeam() < 0) {
        // A team of another country, or one whose country the step changed:
        // its country's list is built afresh.
        const int country = game_.Teams[std::size_t(place.team)].homeCountry;
        if (country >= 1 && country <= countryList_->count()) {
            countryList_->setCurrentIndex(country - 1);
            OnCountryChosen();
        }
    }
    if (const int entry = isTeam ? entryOfTeam() : -1; entry >= 0) {
        teamList_->setCurrentIndex(entry);
        OnTeamChosen();
    } else {
        RefreshSquad();
    }
    ShowNoPlayer();
    if (const int row = squadList_->RowOf(place.player); row >= 0) {
        squadList_->setCurrentRow(row);
        OnPlayerChosen();
    }
    bringingIntoView_ = false;
}

void MainWindow::WriteBackTeam(TeamRecord& team)
{
    // A new name or country shows in the team list only when the country is
    // picked again.
    for (std::size_t i = 0; i < TeamFields.size(); ++i)
        StoreField(*teamBoxes_[i], TeamFields[i], team);
}
