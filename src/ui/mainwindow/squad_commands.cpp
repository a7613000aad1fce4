// The four buttons under the squad list.
#include "data/squad.h"
#include "document/game_document.h"
#include "document/squad_steps.h"
#include "forms/choice_list.h"
#include "forms/game_text.h"
#include "forms/message_box.h"
#include "forms/modal.h"
#include "forms/squad_messages.h"
#include "mainwindow/main_window.h"
#include "newplayerwindow/new_player_window.h"
#include "searchwindow/search_window.h"

void MainWindow::OnAddExistingPlayer()
{
    if (RefuseFullSquad(squadList_->count()))
        return;
    const auto team = CurrentTeam();
    if (!team)
        return RefuseNoTeam(QStringLiteral("Add Player"));
    SearchWindow search(document_, *team, SearchWindow::Mode::Add, squadList_->ChosenRow());
    ShowModal(search, this);
}

void MainWindow::OnReplacePlayer()
{
    const QString title = QStringLiteral("Replace Player");
    const auto team = CurrentTeam();
    if (!team)
        return RefuseNoTeam(title);
    if (squadList_->ChosenRow() < 0)
        return RefuseNoPlayer(title);
    SearchWindow search(document_, *team, SearchWindow::Mode::Replace, squadList_->ChosenRow());
    ShowModal(search, this);
}

void MainWindow::OnAddNewPlayer()
{
    if (RefuseFullSquad(squadList_->count()))
        return;
    const auto team = CurrentTeam();
    if (!team)
        return RefuseNoTeam(QStringLiteral("Add New Player"));
    if (RefuseFullGame(document_.Records()))
        return;
    NewPlayerWindow form(document_, *team);
    ShowModal(form, this);
}

void MainWindow::OnDeletePlayer()
{
    const QString title = QStringLiteral("Delete Player");
    const int row = squadList_->ChosenRow();
    if (row < 0)
        return RefuseNoPlayer(title);
    const auto team = CurrentTeam();
    const Game& game = document_.Records();
    const int slot = team ? SlotOfRow(game.Teams[std::size_t(*team)], row) : 0;
    if (slot == 0)
        return RefuseNoPlayer(title);

    const TeamRecord& squad = game.Teams[std::size_t(*team)];
    const PlayerRecord& player = game.Players[std::size_t(squad.squad[std::size_t(slot)])];
    const QString prompt = QStringLiteral("Are you sure you want to delete ") + FromGame(player.initials) +
                           QLatin1Char(' ') + FromGame(player.surname) + QStringLiteral(" from ") +
                           FromGame(squad.teamName) + QStringLiteral(" Squad ?");
    if (ShowMessage(QMessageBox::Critical, title, prompt, QMessageBox::Yes | QMessageBox::No) == QMessageBox::No)
        return;

    DeleteFromSquad(document_, *team, slot);
    // The player who followed the deleted one now stands in his row; chosen
    // by its text, so of two players of one name the first is chosen.
    if (row < squadList_->count()) {
        squadList_->setCurrentItem(squadList_->findItems(squadList_->item(row)->text(), Qt::MatchExactly).front());
        OnPlayerChosen();
    }
}
