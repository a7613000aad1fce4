#include <QLabel>

#include "forms/combo_box.h"
#include "forms/game_text.h"
#include "forms/list_box.h"
#include "forms/player_column.h"
#include "forms/text_box.h"
#include "forms/value_boxes.h"
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
    // The player is named first: he stays current even if his record cannot
    // be shown.
    const int row = squadList_->ListIndex();
    if (row >= 0)
        currentPlayer_ = squadList_->ItemData(row);
    if (const PlayerRecord* player = ShownPlayer())
        playerColumn_->Show(*player);
    emit squadRowChanged(row);
}

void MainWindow::ShowTeam()
{
    const auto index = CurrentTeam();
    if (!index || *index < 1 || *index > MaxTeams)
        return;
    // The team written back is the one the record's own number names.
    const TeamRecord& team = game_.Teams[std::size_t(*index)];
    shownTeam_ = team.teamNumber;
    teamNumberLabel_->setText(QString::number(team.teamNumber));
    ShowText(*teamNameBox_, FromGame(team.teamName));
    ShowText(*abbreviationBox_, FromGame(team.abbreviation));
    ShowText(*reputationBox_, QString::number(team.reputation));
    ShowText(*wealthBox_, QString::number(team.wealth));
    ShowText(*supportBox_, QString::number(team.support));
    ShowCodeEntry(*teamCountryList_, team.homeCountry - 1);
}

void MainWindow::CarryEditsIntoRecords()
{
    // Only a new name costs more, as it rebuilds the squad list. No box is
    // written, so the caret and the focus stay where the user has them.
    if (PlayerRecord* player = ShownPlayer()) {
        // The rebuilt list has no row chosen; the same player stays current.
        if (playerColumn_->WriteBack(*player)) {
            ClearSquadList();
            FillSquadList();
        }
    }
    if (TeamRecord* team = ShownTeam())
        WriteBackTeam(*team);
}

void MainWindow::WriteBackTeam(TeamRecord& team)
{
    // A new name or country shows in the team list only when the country is
    // picked again.
    StoreCode(*teamCountryList_, team.homeCountry, 1);
    StoreNumber(*reputationBox_, team.reputation);
    StoreNumber(*supportBox_, team.support);
    team.abbreviation = ToGame(abbreviationBox_->Text());
    team.teamName = ToGame(teamNameBox_->Text());
    StoreNumber(*wealthBox_, team.wealth);
}
