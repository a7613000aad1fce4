#include "forms/squad_messages.h"

#include "data/records.h"
#include "forms/message_box.h"

bool RefuseFullSquad(int playersInSquad)
{
    if (playersInSquad < SquadSize)
        return false;
    ShowMessage(QMessageBox::Information, QStringLiteral("Maximum Players"),
                QStringLiteral("You already have the maximum of 20 players in the squad."));
    return true;
}

void RefuseNoTeam(const QString& title)
{
    ShowMessage(QMessageBox::Information, title, QStringLiteral("A team must be selected first."));
}

void RefuseNoPlayer(const QString& title)
{
    ShowMessage(QMessageBox::Information, title, QStringLiteral("No Player Selected"));
}
