#include "searchwindow/squad_messages.h"

#include "data/records.h"
#include "forms/list_box.h"
#include "forms/message_box.h"
#include "mainwindow/main_form.h"

bool RefuseFullSquad(const ListBox& squadList)
{
    if (squadList.ListCount() < SquadSize)
        return false;
    MsgBox(QStringLiteral("You already have the maximum of 20 players in the squad."), MbInformation,
           QStringLiteral("Maximum Players"));
    return true;
}

std::optional<int> TeamOrRefuse(const MainForm& main, const QString& title)
{
    const std::optional<int> team = main.CurrentTeam();
    if (!team)
        MsgBox(QStringLiteral("A team must be selected first."), MbInformation, title);
    return team;
}

void RefuseNoPlayer(const QString& title)
{
    MsgBox(QStringLiteral("No Player Selected"), MbInformation, title);
}
