#include "table/table_columns.h"

#include <algorithm>
#include <vector>

#include "csv/csv_layout.h"
#include "search/player_find.h"

namespace {

bool SameLetters(std::string_view a, std::string_view b)
{
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; };
    return a.size() == b.size() &&
           std::equal(a.begin(), a.end(), b.begin(), [&](char x, char y) { return lower(x) == lower(y); });
}

// "batSkill" gives "averageBatSkill".
std::string AverageName(std::string_view skill)
{
    std::string name = "average" + std::string(skill);
    name[7] = static_cast<char>(name[7] - ('a' - 'A'));
    return name;
}

std::vector<TableColumn> MakePlayerColumns()
{
    std::vector<TableColumn> columns{{RecordKind::Player, std::string(PlayerLayout.key), ColumnSource::Key}};
    for (const PlayerField& field : PlayerFields)
        columns.push_back({RecordKind::Player, std::string(field.name), ColumnSource::Field, &field});
    columns.push_back({RecordKind::Player, "age", ColumnSource::Age});
    columns.push_back({RecordKind::Player, "club", ColumnSource::Club});
    return columns;
}

std::vector<TableColumn> MakeTeamColumns()
{
    std::vector<TableColumn> columns{{RecordKind::Team, std::string(TeamLayout.key), ColumnSource::Key}};
    for (const TeamField& field : TeamFields)
        columns.push_back({RecordKind::Team, std::string(field.name), ColumnSource::Field, nullptr, &field});
    columns.push_back({RecordKind::Team, "squadSize", ColumnSource::SquadSize});
    // The skills are the fields with a range in the game.
    for (const PlayerField& field : PlayerFields) {
        if (field.range)
            columns.push_back({RecordKind::Team, AverageName(field.name), ColumnSource::SquadAverage, &field});
    }
    return columns;
}

}  // namespace

bool TableColumn::Editable() const
{
    if (source != ColumnSource::Field)
        return false;
    return !(playerField ? playerField->label : teamField->label).empty();
}

bool TableColumn::IsName() const
{
    return source == ColumnSource::Field && (playerField ? playerField->kind : teamField->kind) == FieldKind::Name;
}

const CodeList* TableColumn::Codes() const
{
    if (source != ColumnSource::Field)
        return nullptr;
    return playerField ? playerField->codes : teamField->codes;
}

std::span<const TableColumn> TableColumns(RecordKind kind)
{
    static const std::vector<TableColumn> players = MakePlayerColumns();
    static const std::vector<TableColumn> teams = MakeTeamColumns();
    return kind == RecordKind::Player ? players : teams;
}

const TableColumn* FindColumn(RecordKind kind, std::string_view name)
{
    for (const TableColumn& column : TableColumns(kind)) {
        if (SameLetters(name, column.name) || (column.Codes() && SameLetters(name, WordColumn(column.name))))
            return &column;
    }
    return nullptr;
}

std::string NameKey(std::string_view text)
{
    std::string key;
    AppendNameKey(key, text);
    return key;
}
