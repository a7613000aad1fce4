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
    for (std::size_t i = 0; i < TeamFields.size(); ++i)
        ShowField(*teamBoxes_[i], TeamFields[i], team);
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
    for (std::size_t i = 0; i < TeamFields.size(); ++i)
        StoreField(*teamBoxes_[i], TeamFields[i], team);
}
