#include "csv/csv_export.h"

#include <algorithm>
#include <vector>

#include "csv/csv.h"
#include "csv/csv_layout.h"
#include "data/squad.h"

namespace {

std::string CsvOf(const Game& game, const CsvRow& header, CsvRow (*row)(const Game&, int), int last,
                  std::span<const int> numbers)
{
    std::string text = CsvLine(header);
    for (const int number : numbers) {
        if (number >= 1 && number <= last)
            text += CsvLine(row(game, number));
    }
    return text;
}

}  // namespace

std::string PlayersCsv(const Game& game, const CsvSelection& selection)
{
    std::vector<int> numbers;
    const auto holders = TeamsHoldingEachPlayer(game);
    for (int number = 1; number <= LoadedPlayerCount(game); ++number) {
        const auto& teams = holders[number];
        if (selection.team && std::find(teams.begin(), teams.end(), *selection.team) == teams.end())
            continue;
        if (selection.country && game.Players[number].homeCountry != *selection.country)
            continue;
        numbers.push_back(number);
    }
    return PlayersCsvOf(game, numbers);
}

std::string TeamsCsv(const Game& game, const CsvSelection& selection)
{
    std::vector<int> numbers;
    for (int number = 1; number <= LoadedTeamCount(game); ++number) {
        if ((selection.team && number != *selection.team) ||
            (selection.country && game.Teams[number].homeCountry != *selection.country))
            continue;
        numbers.push_back(number);
    }
    return TeamsCsvOf(game, numbers);
}

std::string PlayersCsvOf(const Game& game, std::span<const int> numbers)
{
    return CsvOf(game, PlayerColumns(), PlayerRow, LoadedPlayerCount(game), numbers);
}

std::string TeamsCsvOf(const Game& game, std::span<const int> numbers)
{
    return CsvOf(game, TeamColumns(), TeamRow, LoadedTeamCount(game), numbers);
}
