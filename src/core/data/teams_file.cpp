#include "data/teams_file.h"

#include <algorithm>

#include "data/field_reader.h"
#include "data/text_lines.h"
#include "data/text_number.h"

namespace {

constexpr int ClosingEmptyLines = 20;
constexpr int LinesPerTeam = 30;

// Lines 4 to 7 give 0 when empty and leave the field alone when they are no number.
void TakeNumber(const std::optional<std::string>& line, std::int16_t& field)
{
    if (!line || line->empty()) {
        field = 0;
        return;
    }
    if (const auto value = TextAsNumber(*line))
        field = *value;
}

void TakeName(const std::optional<std::string>& line, std::string& name)
{
    if (line && !line->empty())
        name = line->substr(0, line->size() - 1);
}

// Teams past the table's end, read only to be counted: records up to the one
// whose line 10 is empty, leaving out the empty records that close the file.
int CountTeamsLeft(FieldReader& reader)
{
    int count = 0;
    bool ended = false;
    while (!ended && !reader.AtEnd()) {
        bool anything = false;
        for (int line = 1; line <= LinesPerTeam; ++line) {
            const std::string value = reader.ReadText().value_or(std::string{});
            anything = anything || !value.empty();
            if (line == 10)
                ended = value.empty();
        }
        count += anything;
    }
    return count;
}

}  // namespace

LoadReport ReadTeams(Game& game, std::string_view bytes)
{
    LoadReport report = LoadReport::For("teams.dat");
    FieldReader reader(bytes);
    std::string marker = "2";
    int slot = 1;
    while (!marker.empty()) {
        if (slot > MaxTeams) {
            // The table is full: whatever follows is not read.
            game.TeamCount = MaxTeams + 2;
            report.teamsPastLimit = CountTeamsLeft(reader);
            break;
        }
        // Past the end of the file every line reads as empty, so a file that
        // stops right after a team still ends with the closing pass.
        marker = reader.ReadText().value_or(std::string{});
        const auto name = reader.ReadText();
        const auto abbreviation = reader.ReadText();
        const auto country = reader.ReadText();
        const auto reputation = reader.ReadText();
        const auto wealth = reader.ReadText();
        const auto support = reader.ReadText();
        reader.ReadText();  // line 8: the team is numbered by its place instead
        marker = reader.ReadText().value_or(std::string{});
        marker = reader.ReadText().value_or(std::string{});

        TeamRecord& team = game.Teams[slot];
        TakeNumber(country, team.homeCountry);
        TakeName(name, team.teamName);
        TakeName(abbreviation, team.abbreviation);
        team.teamNumber = static_cast<std::int16_t>(slot);
        TakeNumber(reputation, team.reputation);
        TakeNumber(wealth, team.wealth);
        TakeNumber(support, team.support);
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
    for (int i = 1; i <= count; ++i) {
        const TeamRecord& team = game.Teams[i];
        out.Line("0");
        out.Line(team.teamName + "#");
        out.Line(team.abbreviation + "#");
        out.Number(team.homeCountry);
        out.Number(team.reputation);
        out.Number(team.wealth);
        out.Number(team.support);
        out.Number(i);
        out.Line("0");
        out.Line("0");
        for (int place = 1; place <= SquadSize; ++place)
            out.Number(team.squad[place]);
    }
    out.EmptyLines(ClosingEmptyLines);
    return out.Take();
}

LoadReport ReadTeamsFile(Game& game)
{
    FileBytes file = ReadFileBytes(game.TeamsPath);
    if (!file.ok()) {
        // A missing file reads like an empty one.
        ReadTeams(game, {});
        return LoadReport::Unread("teams.dat", std::move(file.reason));
    }
    return ReadTeams(game, file.bytes);
}

FileResult WriteTeamsFile(const Game& game)
{
    return ReplaceFile(game.TeamsPath, WriteTeams(game));
}
