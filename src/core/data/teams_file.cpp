#include "data/teams_file.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "data/field_reader.h"
#include "data/record_lines.h"
#include "data/text_number.h"

namespace {

// The lines of a team before its squad; the last of them, empty, ends the file.
constexpr int HeaderLines = TeamLayout.firstSquadLine - 1;

// A number line gives 0 when empty and leaves the field alone when it is no number.
void TakeNumber(const std::optional<std::string_view>& line, std::int16_t& field)
{
    if (!line || line->empty()) {
        field = 0;
        return;
    }
    if (const auto value = TextAsNumber(*line))
        field = *value;
}

// Reads the lines before the squad into the team's fields and gives the last,
// the sign that ends the file when it is empty. The key line plays no part: a
// team is numbered by its place.
std::string_view ReadHeader(FieldReader& reader, TeamRecord& team)
{
    std::string_view last;
    ForEachLine<1, HeaderLines>([&](auto lineConstant) {
        constexpr int line = decltype(lineConstant)::value;
        constexpr LineKind kind = KindOfLine(TeamLayout, line);
        const auto text = reader.ReadView();
        if constexpr (kind == LineKind::Name)
            TakeName(text, FieldOnLine(TeamLayout, line), team);
        else if constexpr (kind == LineKind::Number)
            TakeNumber(text, team.*FieldOnLine(TeamLayout, line).number);
        if constexpr (line == HeaderLines)
            last = text.value_or(std::string_view{});
    });
    return last;
}

// Teams past the table's end, read only to be counted: records up to the one
// whose line 10 is empty, leaving out the empty records that close the file.
int CountTeamsLeft(FieldReader& reader)
{
    int count = 0;
    bool ended = false;
    while (!ended && !reader.AtEnd()) {
        bool anything = false;
        for (int line = 1; line <= TeamLayout.lines; ++line) {
            const std::string_view value = reader.ReadView().value_or(std::string_view{});
            anything = anything || !value.empty();
            if (line == HeaderLines)
                ended = value.empty();
        }
        count += anything;
    }
    return count;
}

}  // namespace

LoadReport ReadTeams(Game& game, std::string_view bytes)
{
    LoadReport report = LoadReport::For(std::string(TeamLayout.file));
    FieldReader reader(bytes);
    for (int slot = 1;; ++slot) {
        if (slot > MaxTeams) {
            // The table is full: whatever follows is not read.
            game.TeamCount = TeamCountFor(MaxTeams);
            report.teamsPastLimit = CountTeamsLeft(reader);
            break;
        }
        // Past the end of the file every line reads as empty, so a file that
        // stops right after a team still ends with the closing pass.
        TeamRecord& team = game.Teams[slot];
        const bool ended = ReadHeader(reader, team).empty();
        team.teamNumber = static_cast<std::int16_t>(slot);
        for (int place = 1; place <= SquadSize; ++place)
            reader.ReadNumberInto(team.squad[place]);
        game.TeamCount = static_cast<std::int16_t>(slot + 1);
        if (ended)
            break;
    }
    report.valuesAfterEnd = CountValuesLeft(reader);
    return report;
}

std::string WriteTeams(const Game& game)
{
    const int count = LoadedTeamCount(game);
    TextLines out(ExpectedBytes(TeamLayout, count));
    for (int i = 1; i <= count; ++i)
        WriteRecordLines<TeamLayout>(out, game.Teams[i], i);
    out.EmptyLines(TeamLayout.closingEmptyLines);
    return out.Take();
}

LoadReport ReadTeamsFile(Game& game)
{
    FileBytes file = ReadFileBytes(game.TeamsPath);
    if (!file.ok()) {
        // A missing file reads like an empty one.
        ReadTeams(game, {});
        return LoadReport::Unread(std::string(TeamLayout.file), std::move(file.reason));
    }
    return ReadTeams(game, file.bytes);
}

FileResult WriteTeamsFile(const Game& game)
{
    return ReplaceFile(game.TeamsPath, WriteTeams(game));
}
