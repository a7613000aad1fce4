#include "data/record_titles.h"

#include "data/utf8.h"

std::string PlayerLabel(const PlayerRecord& player)
{
    const std::string name = player.initials.empty() ? player.surname : player.initials + " " + player.surname;
    return Utf8FromCp1252(name);
}

std::string PlayerTitle(const Game& game, int number)
{
    return "player " + std::to_string(number) + " (" + PlayerLabel(game.Players[number]) + ")";
}

std::string TeamTitle(const Game& game, int number)
{
    return "team " + std::to_string(number) + " (" + Utf8FromCp1252(game.Teams[number].teamName) + ")";
}
