#include "table/row_values.h"

#include "data/squad.h"
#include "search/player_find.h"

bool IsRecordNumber(RecordKind kind, int number)
{
    return kind == RecordKind::Player ? IsPlayerNumber(number) : IsTeamIndex(number);
}

RowValues::RowValues(const Game& game, CalendarDay today) : game_(game), today_(today), clubs_(PresentClubs(game)) {}

std::optional<double> RowValues::Number(const TableColumn& column, int number) const
{
    if (!IsRecordNumber(column.kind, number) || column.IsName())
        return std::nullopt;
    switch (column.source) {
    case ColumnSource::Key:
        return number;
    case ColumnSource::Field:
        return column.playerField ? game_.Players[number].*column.playerField->number
                                  : game_.Teams[number].*column.teamField->number;
    case ColumnSource::Age:
        return AgeOn(game_.Players[number], today_.year, today_.month, today_.day);
    case ColumnSource::Club:
        return Club(number);
    case ColumnSource::SquadSize:
        return SquadCount(game_.Teams[number]);
    case ColumnSource::SquadAverage:
        return SquadAverage(*column.playerField, number);
    }
    return std::nullopt;
}

std::string_view RowValues::Text(const TableColumn& column, int number) const
{
    if (!IsRecordNumber(column.kind, number) || !column.IsName())
        return {};
    return column.playerField ? game_.Players[number].*column.playerField->text
                              : game_.Teams[number].*column.teamField->text;
}

int RowValues::Club(int number) const
{
    return IsPlayerNumber(number) ? clubs_[static_cast<std::size_t>(number)] : 0;
}

std::optional<double> RowValues::SquadAverage(const PlayerField& skill, int team) const
{
    int players = 0;
    double sum = 0;
    const Squad& squad = game_.Teams[team].squad;
    for (int place = 1; place <= SquadSize; ++place) {
        if (IsPlayerNumber(squad[place])) {
            sum += game_.Players[squad[place]].*skill.number;
            ++players;
        }
    }
    if (players == 0)
        return std::nullopt;
    return sum / players;
}
