#include "data/squad.h"
#include "forms/game_text.h"
#include "forms/list_box.h"
#include "forms/message_box.h"
#include "forms/modal.h"
#include "mainwindow/main_form.h"
#include "newplayerwindow/nplayer_form.h"
#include "searchwindow/playeradd_form.h"
#include "searchwindow/squad_messages.h"

void MainForm::Command1_Click()
{
    if (RefuseFullSquad(*List1) || !TeamOrRefuse(*this, QStringLiteral("Add Player")))
        return;
    PlayerAddForm search(game, *this);
    search.FillSelectors();
    ShowModal(search, this);
}

void MainForm::Command2_Click()
{
    const QString title = QStringLiteral("Delete Player");
    const int row = List1->ListIndex();
    if (row < 0)
        return RefuseNoPlayer(title);
    const auto team = CurrentTeam();
    const int slot = team ? SlotOfRow(game.Teams[std::size_t(*team)], row) : 0;
    if (slot == 0)
        return RefuseNoPlayer(title);

    const TeamRecord& squad = game.Teams[std::size_t(*team)];
    const PlayerRecord& player = game.Players[std::size_t(squad.squad[std::size_t(slot)])];
    const QString prompt = QStringLiteral("Are you sure you want to delete ") + FromGame(player.initials) +
                           QLatin1Char(' ') + FromGame(player.surname) + QStringLiteral(" from ") +
                           FromGame(squad.teamName) + QStringLiteral(" Squad ?");
    if (MsgBox(prompt, MbCritical | MbYesNo, title) == IdNo)
        return;

    DeleteFromSquad(game, *team, slot);
    ReselectCurrentTeam();
    // The player who followed the deleted one now stands in his row.
    if (List1->ListCount() != 0)
        List1->SetText(List1->List(row));
}

void MainForm::Command3_Click()
{
    if (RefuseFullSquad(*List1) || !TeamOrRefuse(*this, QStringLiteral("Add New Player")))
        return;
    OpenNewPlayerWindow(game, *this);
}

void MainForm::Command4_Click()
{
    const QString title = QStringLiteral("Replace Player");
    if (!TeamOrRefuse(*this, title))
        return;
    if (List1->ListIndex() < 0)
        return RefuseNoPlayer(title);
    PlayerAddForm search(game, *this);
    search.ShowReplaceMode();
    search.FillSelectors();
    ShowModal(search, this);
}
