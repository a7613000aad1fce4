#include "csv/csv_layout.h"

#include <charconv>
#include <span>

#include "data/fields.h"
#include "data/text_lines.h"
#include "data/utf8.h"

namespace {

template <class Record>
CsvRow Columns(const RecordLayout<Record>& layout)
{
    CsvRow row{std::string(layout.key)};
    for (const Field<Record>& field : layout.fields) {
        row.emplace_back(field.name);
        if (field.codes)
            row.push_back(WordColumn(field.name));
    }
    return row;
}

template <class Record>
CsvRow Values(int number, const Record& record, std::span<const Field<Record>> fields)
{
    CsvRow row{std::to_string(number)};
    for (const Field<Record>& field : fields) {
        if (field.text) {
            row.push_back(Utf8FromCp1252(record.*field.text));
            continue;
        }
        const int value = record.*field.number;
        row.push_back(std::to_string(value));
        if (field.codes)
            row.emplace_back(field.codes->WordFor(value).value_or(""));
    }
    return row;
}

}  // namespace

CsvRow PlayerColumns()
{
    return Columns(PlayerLayout);
}

CsvRow TeamColumns()
{
    CsvRow row = Columns(TeamLayout);
    for (int place = 1; place <= SquadSize; ++place)
        row.push_back(SquadPlaceName(place));
    return row;
}

CsvRow PlayerRow(const Game& game, int number)
{
    return Values<PlayerRecord>(number, game.Players[number], PlayerFields);
}

CsvRow TeamRow(const Game& game, int number)
{
    const TeamRecord& team = game.Teams[number];
    CsvRow row = Values<TeamRecord>(number, team, TeamFields);
    for (int place = 1; place <= SquadSize; ++place)
        row.push_back(std::to_string(team.squad[place]));
    return row;
}

std::string WordColumn(std::string_view field)
{
    return std::string(field) + "Name";
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
