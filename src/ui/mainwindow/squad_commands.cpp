#include "data/squad.h"
#include "forms/game_text.h"
#include "forms/choice_list.h"
#include "forms/message_box.h"
#include "forms/modal.h"
#include "forms/squad_messages.h"
#include "history/game_history.h"
#include "mainwindow/main_window.h"
#include "newplayerwindow/new_player_window.h"
#include "searchwindow/search_window.h"

void MainWindow::OnAddExistingPlayer()
{
    CarryPendingEdits();
    if (RefuseFullSquad(squadList_->count()))
        return;
    const auto team = CurrentTeam();
    if (!team)
        return RefuseNoTeam(QStringLiteral("Add Player"));
    SearchWindow search(game_, *team, SearchWindow::Mode::Add, squadList_->ChosenRow());
    connect(&search, &SearchWindow::squadChanged, this,
            [this, &search](int changed) { RecordTransfer(changed, search.Candidate().value_or(0)); });
    connect(this, &MainWindow::squadRowChanged, &search, &SearchWindow::SetSquadRow);
    ShowModal(search, this);
}

void MainWindow::OnReplacePlayer()
{
    CarryPendingEdits();
    const QString title = QStringLiteral("Replace Player");
    const auto team = CurrentTeam();
    if (!team)
        return RefuseNoTeam(title);
    if (squadList_->ChosenRow() < 0)
        return RefuseNoPlayer(title);
    SearchWindow search(game_, *team, SearchWindow::Mode::Replace, squadList_->ChosenRow());
    connect(&search, &SearchWindow::squadChanged, this,
            [this, &search](int changed) { RecordTransfer(changed, search.Candidate().value_or(0)); });
    connect(this, &MainWindow::squadRowChanged, &search, &SearchWindow::SetSquadRow);
    ShowModal(search, this);
}

void MainWindow::OnAddNewPlayer()
{
    CarryPendingEdits();
    if (RefuseFullSquad(squadList_->count()))
        return;
    const auto team = CurrentTeam();
    if (!team)
        return RefuseNoTeam(QStringLiteral("Add New Player"));
    if (RefuseFullGame(game_))
        return;
    NewPlayerWindow form(game_, *team);
    connect(&form, &NewPlayerWindow::playerCreated, this, [this, team = *team](int player) {
        history_->RecordStep(NewPlayerStepText(game_.Players[std::size_t(player)]), {team, player});
        RefreshSquad();
    });
    ShowModal(form, this);
}

void MainWindow::OnDeletePlayer()
{
    CarryPendingEdits();
    const QString title = QStringLiteral("Delete Player");
    const int row = squadList_->ChosenRow();
    if (row < 0)
        return RefuseNoPlayer(title);
    const auto team = CurrentTeam();
    const int slot = team ? SlotOfRow(game_.Teams[std::size_t(*team)], row) : 0;
    if (slot == 0)
        return RefuseNoPlayer(title);

    const TeamRecord& squad = game_.Teams[std::size_t(*team)];
    const PlayerRecord& player = game_.Players[std::size_t(squad.squad[std::size_t(slot)])];
    const QString prompt = QStringLiteral("Are you sure you want to delete ") + FromGame(player.initials) +
                           QLatin1Char(' ') + FromGame(player.surname) + QStringLiteral(" from ") +
                           FromGame(squad.teamName) + QStringLiteral(" Squad ?");
    if (ShowMessage(QMessageBox::Critical, title, prompt, QMessageBox::Yes | QMessageBox::No) == QMessageBox::No)
        return;

    const std::int16_t deleted = DeleteFromSquad(game_, *team, slot);
    history_->RecordStep(DeleteStepText(game_.Players[std::size_t(deleted)]), {*team, deleted});
    RefreshSquad();
    // The player who followed the deleted one now stands in his row.
    // Chosen by its text: of two players of one name, the first is chosen.
    if (row < squadList_->count()) {
        const QList<QListWidgetItem*> named = squadList_->findItems(squadList_->item(row)->text(), Qt::MatchExactly);
        squadList_->setCurrentItem(named.front());
        OnPlayerChosen();
    }
}

void MainWindow::RecordTransfer(int team, int candidate)
{
    history_->RecordStep(
        [this, team](const RecordChange& change) { return TransferStepText(game_, change, team); },
        {team, candidate});
    RefreshSquad();
}
