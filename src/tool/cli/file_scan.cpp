#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "cli/problems.h"
#include "cli/record_fields.h"
#include "cli/utf8.h"
#include "data/field_reader.h"
#include "data/text_number.h"

// A read-only pass over the bytes that follows the editor's readers record by
// record and notes where they pass over, replace or stop short of a record.

namespace {

constexpr const char* PlayersFile = "players.dat";
constexpr const char* TeamsFile = "teams.dat";
constexpr int LinesPerPlayer = 21;
constexpr int LinesPerTeam = 30;
constexpr int TeamHeaderLines = 10;

void AddError(std::vector<Problem>& problems, const char* file, int record, std::string field, std::string message)
{
    problems.push_back({Severity::Error, file, record, std::move(field), std::move(message)});
}

// A number field as the player reader takes it: empty gives 0.
std::optional<int> NumberIn(const std::string& field)
{
    if (field.empty())
        return 0;
    return TextAsNumber(field);
}

std::string PlayerLineName(int line)
{
    if (line == 0)
        return "playerNumber";
    if (line == 1)
        return "line 2";
    if (line <= 3)
        return std::string(PlayerTextFields[line - 2].name);
    return std::string(PlayerNumberFields[line - 4].name);
}

std::string TeamLineName(int line)
{
    constexpr std::array<std::string_view, TeamHeaderLines> header{
        "line 1", "teamName", "abbreviation", "homeCountry", "reputation",
        "wealth", "support",  "teamNumber",   "line 9",      "line 10"};
    if (line < TeamHeaderLines)
        return std::string(header[line]);
    return SquadColumn(line - TeamHeaderLines + 1);
}

// The readers split a line at a comma and read a line that opens with a
// double quote up to the next one, so such a line puts every value after it
// out of place. Records are counted by their place in the file.
void FindUncarriableLines(std::string_view bytes, const char* file, int linesPerRecord,
                          std::string (*lineName)(int), std::vector<Problem>& problems)
{
    // A file of nothing but such lines would list a million of them; past the
    // first hundred they are only counted.
    constexpr int Listed = 100;
    int found = 0;
    int index = 0;
    for (std::size_t start = 0; start < bytes.size(); ++index) {
        std::size_t end = bytes.find_first_of("\r\n", start);
        end = end == std::string_view::npos ? bytes.size() : end;
        const std::string_view line = bytes.substr(start, end - start);
        start = end + (bytes.substr(end, 2) == "\r\n" ? 2 : 1);

        const auto firstChar = line.find_first_not_of(' ');
        const char* reason = nullptr;
        if (line.find(',') != std::string_view::npos)
            reason = "holds a comma, which ends the value early";
        else if (firstChar != std::string_view::npos && line[firstChar] == '"')
            reason = "begins with a double quote, which makes the value run on to the next one";
        if (reason && ++found <= Listed)
            AddError(problems, file, index / linesPerRecord + 1, lineName(index % linesPerRecord),
                     "line " + std::to_string(index + 1) + " \"" + Utf8FromCp1252(line) + "\" " + reason +
                         ": the format cannot carry it, and the values after it are read out of place");
    }
    if (found > Listed)
        AddError(problems, file, index / linesPerRecord + 1, "lines",
                 std::to_string(found - Listed) + " more lines like these, not listed");
}

enum class LineKind { Dropped, Name, Number };

LineKind PlayerLineKind(int line)
{
    return line <= 1 ? LineKind::Dropped : line <= 3 ? LineKind::Name : LineKind::Number;
}

LineKind TeamLineKind(int line)
{
    if (line == 1 || line == 2)
        return LineKind::Name;
    return (line >= 3 && line <= 6) || line >= TeamHeaderLines ? LineKind::Number : LineKind::Dropped;
}

// A number line that is no 16-bit number leaves its field as it was, and a
// name line without its closing "#" loses a character of the name instead.
void CheckRecordLines(const std::vector<std::string>& lines, const char* file, int record,
                      LineKind (*kindOf)(int), std::string (*lineName)(int), std::vector<Problem>& problems)
{
    for (int line = 0; line < static_cast<int>(lines.size()); ++line) {
        const std::string& text = lines[line];
        if (text.empty())
            continue;
        const LineKind kind = kindOf(line);
        if (kind == LineKind::Name && text.back() != '#')
            problems.push_back({Severity::Warning, file, record, lineName(line),
                                "\"" + Utf8FromCp1252(text) + "\" does not end in \"#\", so it is read as \"" +
                                    Utf8FromCp1252(text.substr(0, text.size() - 1)) + "\""});
        if (kind == LineKind::Number && !TextAsNumber(text))
            AddError(problems, file, record, lineName(line),
                     "\"" + Utf8FromCp1252(text) + "\" is no 16-bit number, so the field keeps whatever it held");
    }
}

std::vector<std::string> ReadRecord(FieldReader& reader, int lineCount)
{
    std::vector<std::string> lines(lineCount);
    for (auto& line : lines)
        line = reader.ReadText().value_or(std::string{});
    return lines;
}

// Whatever the reader leaves unread after the record that ended its loop.
void FindRecordsAfterEnd(FieldReader& reader, const char* file, int record, std::vector<Problem>& problems)
{
    while (const auto field = reader.ReadText()) {
        if (!field->empty()) {
            AddError(problems, file, record, "end of file",
                     "\"" + Utf8FromCp1252(*field) + "\" and what follows stand after the end sign and are not read");
            return;
        }
    }
}

}  // namespace

std::vector<Problem> ProblemsInPlayersFile(std::string_view bytes)
{
    std::vector<Problem> problems;
    FindUncarriableLines(bytes, PlayersFile, LinesPerPlayer, PlayerLineName, problems);

    FieldReader reader(bytes);
    std::array<int, MaxPlayers + 1> placeOf{};  // where in the file each number was first read
    int place = 0;
    int previous = 0;
    int highest = 0;
    int loaded = 0;
    while (!reader.AtEnd()) {
        const std::vector<std::string> lines = ReadRecord(reader, LinesPerPlayer);
        ++place;
        const auto number = NumberIn(lines[0]);
        if (!number || *number < 0 || *number > MaxPlayers) {
            AddError(problems, PlayersFile, place, "playerNumber",
                     "record " + std::to_string(place) + " of the file is numbered \"" + Utf8FromCp1252(lines[0]) +
                         "\", which has no place among players 1 to 2000: the load passes over it");
            continue;
        }
        if (*number != 0)
            CheckRecordLines(lines, PlayersFile, *number, PlayerLineKind, PlayerLineName, problems);
        if (*number == 0) {
            FindRecordsAfterEnd(reader, PlayersFile, previous, problems);
            break;
        }
        if (*number == previous) {
            AddError(problems, PlayersFile, *number, "playerNumber",
                     "two records in a row have this number: the second replaces the first and the load stops "
                     "there, so nothing after it is read");
            break;
        }
        if (placeOf[*number] != 0)
            AddError(problems, PlayersFile, *number, "playerNumber",
                     "records " + std::to_string(placeOf[*number]) + " and " + std::to_string(place) +
                         " of the file have this number: the later one replaces the earlier");
        else
            placeOf[*number] = place;
        if (++loaded == MaxPlayers + 1)
            AddError(problems, PlayersFile, *number, "playerNumber",
                     "the file holds more than 2000 players, and players.dat has room for 2000");
        highest = std::max(highest, *number);
        previous = *number;
    }
    if (previous < highest)
        AddError(problems, PlayersFile, previous, "playerNumber",
                 "the last record read is player " + std::to_string(previous) + ", below player " +
                     std::to_string(highest) + " read before it: a save writes players 1 to " +
                     std::to_string(previous) + " only");
    return problems;
}

std::vector<Problem> ProblemsInTeamsFile(std::string_view bytes)
{
    std::vector<Problem> problems;
    FindUncarriableLines(bytes, TeamsFile, LinesPerTeam, TeamLineName, problems);

    FieldReader reader(bytes);
    std::array<int, MaxTeams + 1> placeOf{};
    for (int place = 1;; ++place) {
        const std::vector<std::string> lines = ReadRecord(reader, LinesPerTeam);
        if (lines[TeamHeaderLines - 1].empty()) {
            const auto filled = [](const std::string& line) { return !line.empty(); };
            // The closing pass reads ten lines past the 20 empty ones as squad places.
            const auto squadLines = lines.begin() + TeamHeaderLines;
            if (std::any_of(lines.begin() + 1, squadLines, filled))
                AddError(problems, TeamsFile, place, "line 10",
                         "is empty, which the load takes for the end of the file: this team is read but not "
                         "counted, so a save drops it and everything after it");
            else if (const auto after = std::find_if(squadLines, lines.end(), filled); after != lines.end())
                AddError(problems, TeamsFile, place - 1, "end of file",
                         "\"" + Utf8FromCp1252(*after) + "\" and what follows stand after the end sign and are not read");
            else
                FindRecordsAfterEnd(reader, TeamsFile, place - 1, problems);
            break;
        }
        if (place > MaxTeams) {
            AddError(problems, TeamsFile, place, "teamNumber",
                     "the file holds more than 500 teams: teams.dat has room for 500, and this team and those "
                     "after it are not read");
            break;
        }
        CheckRecordLines(lines, TeamsFile, place, TeamLineKind, TeamLineName, problems);
        if (!lines[0].empty() && lines[0] != "0" && place > 1)
            AddError(problems, TeamsFile, place - 1, "squad",
                     "the record runs on past its 30 lines (a squad of more than 20 places, or a comma in a "
                     "name), so the team after it is read out of place");
        const auto number = TextAsNumber(lines[7]);
        if (number && *number >= 1 && *number <= MaxTeams) {
            if (placeOf[*number] != 0)
                AddError(problems, TeamsFile, place, "teamNumber",
                         "teams " + std::to_string(placeOf[*number]) + " and " + std::to_string(place) +
                             " of the file are both numbered " + std::to_string(*number));
            else
                placeOf[*number] = place;
        }
    }
    return problems;
}
