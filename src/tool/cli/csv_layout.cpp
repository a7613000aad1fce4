#include "cli/csv_layout.h"

#include <charconv>

#include "cli/record_fields.h"
#include "cli/utf8.h"
#include "data/text_lines.h"

namespace {

template <class Record, class Texts, class Numbers>
void AppendColumns(CsvRow& row, const Texts& textFields, const Numbers& numberFields)
{
    for (const auto& field : textFields)
        row.emplace_back(field.name);
    for (const auto& field : numberFields) {
        row.emplace_back(field.name);
        if (field.codes)
            row.push_back(WordColumn(field.name));
    }
}

template <class Record, class Texts, class Numbers>
void AppendValues(CsvRow& row, const Record& record, const Texts& textFields, const Numbers& numberFields)
{
    for (const auto& field : textFields)
        row.push_back(Utf8FromCp1252(record.*field.member));
    for (const auto& field : numberFields) {
        const int value = record.*field.member;
        row.push_back(std::to_string(value));
        if (field.codes)
            row.emplace_back(field.codes->WordFor(value).value_or(""));
    }
}

}  // namespace

CsvRow PlayerColumns()
{
    CsvRow row{std::string(PlayerKeyColumn)};
    AppendColumns<PlayerRecord>(row, PlayerTextFields, PlayerNumberFields);
    return row;
}

CsvRow TeamColumns()
{
    CsvRow row{std::string(TeamKeyColumn)};
    AppendColumns<TeamRecord>(row, TeamTextFields, TeamNumberFields);
    for (int place = 1; place <= SquadSize; ++place)
        row.push_back(SquadColumn(place));
    return row;
}

CsvRow PlayerRow(const Game& game, int number)
{
    CsvRow row{std::to_string(number)};
    AppendValues(row, game.Players[number], PlayerTextFields, PlayerNumberFields);
    return row;
}

CsvRow TeamRow(const Game& game, int number)
{
    const TeamRecord& team = game.Teams[number];
    CsvRow row{std::to_string(number)};
    AppendValues(row, team, TeamTextFields, TeamNumberFields);
    for (int place = 1; place <= SquadSize; ++place)
        row.push_back(std::to_string(team.squad[place]));
    return row;
}

std::optional<std::int16_t> WholeNumber(std::string_view text)
{
    std::string trimmed = TrimBlanks(text);
    std::string_view digits = trimmed;
    // One sign at most: from_chars reads a minus itself but no plus.
    const bool plus = digits.starts_with('+');
    if (plus)
        digits.remove_prefix(1);
    if (digits.empty() || digits.starts_with('+') || (plus && digits.starts_with('-')))
        return std::nullopt;
    std::int16_t value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error != std::errc{} || end != digits.data() + digits.size())
        return std::nullopt;
    return value;
}
