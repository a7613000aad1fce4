#include "forms/listed_name.h"

#include "forms/game_text.h"

QString ListedName(const PlayerRecord& player)
{
    return FromGame(player.initials) + QLatin1Char(' ') + FromGame(player.surname);
}
