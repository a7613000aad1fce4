#include "csv/csv_export.h"

#include <algorithm>

#include "csv/csv.h"
#include "csv/csv_layout.h"
#include "data/squad.h"

std::string PlayersCsv(const Game& game, const CsvSelection& selection)
{
    std::string text = CsvLine(PlayerColumns());
    const auto holders = TeamsHoldingEachPlayer(game);
    for (int number = 1; number <= LoadedPlayerCount(game); ++number) {
        const auto& teams = holders[number];
        if (selection.team && std::find(teams.begin(), teams.end(), *selection.team) == teams.end())
            continue;
        if (selection.country && game.Players[number].homeCountry != *selection.country)
            continue;
        text += CsvLine(PlayerRow(game, number));
    }
    return text;
}

std::string TeamsCsv(const Game& game, const CsvSelection& selection)
{
    std::string text = CsvLine(TeamColumns());
    for (int number = 1; number <= LoadedTeamCount(game); ++number) {
        if ((selection.team && number != *selection.team) ||
            (selection.country && game.Teams[number].homeCountry != *selection.country))
            continue;
        text += CsvLine(TeamRow(game, number));
    }
    return text;
}
