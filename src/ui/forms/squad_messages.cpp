#include "forms/squad_messages.h"

#include "data/records.h"
#include "forms/message_box.h"

bool RefuseFullSquad(int playersInSquad)
{
    if (playersInSquad < SquadSize)
        return false;
    MsgBox(QStringLiteral("You already have the maximum of 20 players in the squad."), MbInformation,
           QStringLiteral("Maximum Players"));
    return true;
}

void RefuseNoTeam(const QString& title)
{
    MsgBox(QStringLiteral("A team must be selected first."), MbInformation, title);
}

void RefuseNoPlayer(const QString& title)
{
    MsgBox(QStringLiteral("No Player Selected"), MbInformation, title);
}
