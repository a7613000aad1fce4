#include "bulkedit/plan_steps.h"

#include "data/record_titles.h"

bool IsTableRecord(const Game& game, RecordKind kind, int number)
{
    return number >= 1 && number <= (kind == RecordKind::Player ? LoadedPlayerCount(game) : LoadedTeamCount(game));
}

std::string NoSuchRecord(RecordKind kind, int number)
{
    return std::string("there is no ") + (kind == RecordKind::Player ? "player " : "team ") + std::to_string(number);
}

std::string RecordTitle(const Game& game, RecordKind kind, int number)
{
    return kind == RecordKind::Player ? PlayerTitle(game, number) : TeamTitle(game, number);
}

std::string Counted(int count, RecordKind kind)
{
    return std::to_string(count) + (kind == RecordKind::Player ? " player" : " team") + (count == 1 ? "" : "s");
}

BulkEdit Refused(std::string reason, int faultRecord)
{
    BulkEdit plan;
    plan.refusal = std::move(reason);
    plan.faultRecord = faultRecord;
    return plan;
}

const TableColumn* EditableColumn(RecordKind kind, std::string_view name, std::string& refusal)
{
    const TableColumn* column = FindColumn(kind, name);
    if (!column)
        refusal = "no column is called \"" + std::string(name) + "\"";
    else if (!column->Editable())
        refusal = column->name + " cannot be changed here";
    return refusal.empty() ? column : nullptr;
}

RecordChange NoChange(const Game& game)
{
    RecordChange change;
    change.playerCountBefore = change.playerCountAfter = game.PlayerCount;
    change.teamCountBefore = change.teamCountAfter = game.TeamCount;
    return change;
}

void AddCopy(RecordChange& change, const Game& game, int number, const PlayerRecord& after)
{
    const PlayerRecord& before = game.Players[static_cast<std::size_t>(number)];
    if (!(after == before))
        change.players.push_back({static_cast<std::int16_t>(number), before, after});
}

void AddCopy(RecordChange& change, const Game& game, int number, const TeamRecord& after)
{
    const TeamRecord& before = game.Teams[static_cast<std::size_t>(number)];
    if (!(after == before))
        change.teams.push_back({static_cast<std::int16_t>(number), before, after});
}

std::string RangeNote(int outside, RecordKind kind)
{
    if (outside == 0)
        return {};
    return Counted(outside, kind) + (outside == 1 ? " now holds" : " now hold") +
           " a value outside the range the game gives it (see Help); it is stored all the same";
}
