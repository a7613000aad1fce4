#include "data/teams_file.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>

#include "data/field_reader.h"
#include "data/record_lines.h"
#include "data/text_number.h"

namespace {

// The lines of a team before its squad; the last of them, empty, ends the file.
constexpr int HeaderLines = TeamLayout.firstSquadLine - 1;
using HeaderValues = std::array<std::optional<std::string>, HeaderLines>;

// A number line gives 0 when empty and leaves the field alone when it is no number.
void TakeNumber(const std::optional<std::string>& line, std::int16_t& field)
{
    if (!line || line->empty()) {
        field = 0;
        return;
    }
    if (const auto value = TextAsNumber(*line))
        field = *value;
}

void TakeFields(const HeaderValues& header, TeamRecord& team)
{
    for (const TeamField& field : TeamFields) {
        const std::optional<std::string>& line = header[field.line - 1];
        if (field.text)
            TakeName(line, field, team);
        else
            TakeNumber(line, team.*field.number);
    }
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
            const std::string value = reader.ReadText().value_or(std::string{});
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
    std::string marker = "2";
    int slot = 1;
    while (!marker.empty()) {
        if (slot > MaxTeams) {
            // The table is full: whatever follows is not read.
            game.TeamCount = TeamCountFor(MaxTeams);
            report.teamsPastLimit = CountTeamsLeft(reader);
            break;
        }
        // Past the end of the file every line reads as empty, so a file that
        // stops right after a team still ends with the closing pass. The key
        // line plays no part: a team is numbered by its place.
        HeaderValues header;
        for (auto& line : header)
            line = reader.ReadText();
        marker = header.back().value_or(std::string{});

        TeamRecord& team = game.Teams[slot];
        TakeFields(header, team);
        team.teamNumber = static_cast<std::int16_t>(slot);
        for (int place = 1; place <= SquadSize; ++place) {
            if (const auto player = reader.ReadNumber())
                team.squad[place] = *player;
        }
        ++slot;
        game.TeamCount = static_cast<std::int16_t>(slot);
    }
    report.valuesAfterEnd = CountValuesLeft(reader);
    return report;
}

std::string WriteTeams(const Game& game)
{
    TextLines out;
    const int count = LoadedTeamCount(game);
    for (int i = 1; i <= count; ++i)
        WriteRecordLines(out, TeamLayout, game.Teams[i], i);
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
