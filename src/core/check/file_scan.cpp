#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "check/problems.h"
#include "data/fields.h"
#include "data/utf8.h"
#include "data/field_reader.h"
#include "data/text_number.h"

// A read-only pass over the bytes that follows the editor's readers record by
// record and notes where they pass over, replace or stop short of a record.

namespace {

constexpr std::string_view PlayersFile = PlayerLayout.file;
constexpr std::string_view TeamsFile = TeamLayout.file;
// Lines of a team before its squad; the last of them ends the file when empty.
constexpr int TeamHeaderLines = TeamLayout.firstSquadLine - 1;

void AddError(std::vector<Problem>& problems, std::string_view file, int record, std::string field,
              std::string message)
{
    problems.push_back({Severity::Error, std::string(file), record, std::move(field), std::move(message)});
}

// A number field as the player reader takes it: empty gives 0.
std::optional<int> NumberIn(const std::string& field)
{
    if (field.empty())
        return 0;
    return TextAsNumber(field);
}

// The readers split a line at a comma and read a line that opens with a
// double quote up to the next one, so such a line puts every value after it
// out of place. Records are counted by their place in the file.
template <class Record>
void FindUncarriableLines(std::string_view bytes, const RecordLayout<Record>& layout, std::vector<Problem>& problems)
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
            AddError(problems, layout.file, index / layout.lines + 1, NameOfLine(layout, index % layout.lines + 1),
                     "line " + std::to_string(index + 1) + " \"" + Utf8FromCp1252(line) + "\" " + reason +
                         ": the format cannot carry it, and the values after it are read out of place");
    }
    if (found > Listed)
        AddError(problems, layout.file, index / layout.lines + 1, "lines",
                 std::to_string(found - Listed) + " more lines like these, not listed");
}

// A number line that is no 16-bit number leaves its field as it was, and a
// name line without its closing "#" loses a character of the name instead.
// The key line is looked at on its own.
template <class Record>
void CheckRecordLines(const std::vector<std::string>& lines, const RecordLayout<Record>& layout, int record,
                      std::vector<Problem>& problems)
{
    for (int line = 1; line <= static_cast<int>(lines.size()); ++line) {
        const std::string& text = lines[line - 1];
        if (text.empty())
            continue;
        const LineKind kind = KindOfLine(layout, line);
        if (kind == LineKind::Name && text.back() != '#')
            problems.push_back({Severity::Warning, std::string(layout.file), record, NameOfLine(layout, line),
                                "\"" + Utf8FromCp1252(text) + "\" does not end in \"#\", so it is read as \"" +
                                    Utf8FromCp1252(text.substr(0, text.size() - 1)) + "\""});
        if ((kind == LineKind::Number || kind == LineKind::Squad) && !TextAsNumber(text))
            AddError(problems, layout.file, record, NameOfLine(layout, line),
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
void FindRecordsAfterEnd(FieldReader& reader, std::string_view file, int record, std::vector<Problem>& problems)
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
    FindUncarriableLines(bytes, PlayerLayout, problems);

    FieldReader reader(bytes);
    std::array<int, MaxPlayers + 1> placeOf{};  // where in the file each number was first read
    int place = 0;
    int previous = 0;
    int highest = 0;
    int loaded = 0;
    while (!reader.AtEnd()) {
        const std::vector<std::string> lines = ReadRecord(reader, PlayerLayout.lines);
        ++place;
        const std::string& key = lines[PlayerLayout.keyLine - 1];
        const auto number = NumberIn(key);
        if (!number || *number < 0 || *number > MaxPlayers) {
            AddError(problems, PlayersFile, place, std::string(PlayerLayout.key),
                     "record " + std::to_string(place) + " of the file is numbered \"" + Utf8FromCp1252(key) +
                         "\", which has no place among players 1 to 2000: the load passes over it");
            continue;
        }
        if (*number != 0)
            CheckRecordLines(lines, PlayerLayout, *number, problems);
        if (*number == 0) {
            FindRecordsAfterEnd(reader, PlayersFile, previous, problems);
            break;
        }
        if (*number == previous) {
            AddError(problems, PlayersFile, *number, std::string(PlayerLayout.key),
                     "two records in a row have this number: the second replaces the first and the load stops "
                     "there, so nothing after it is read");
            break;
        }
        if (placeOf[*number] != 0)
            AddError(problems, PlayersFile, *number, std::string(PlayerLayout.key),
                     "records " + std::to_string(placeOf[*number]) + " and " + std::to_string(place) +
                         " of the file have this number: the later one replaces the earlier");
        else
            placeOf[*number] = place;
        if (++loaded == MaxPlayers + 1)
            AddError(problems, PlayersFile, *number, std::string(PlayerLayout.key),
                     "the file holds more than 2000 players, and players.dat has room for 2000");
        highest = std::max(highest, *number);
        previous = *number;
    }
    if (previous < highest)
        AddError(problems, PlayersFile, previous, std::string(PlayerLayout.key),
                 "the last record read is player " + std::to_string(previous) + ", below player " +
                     std::to_string(highest) + " read before it: a save writes players 1 to " +
                     std::to_string(previous) + " only");
    return problems;
}

std::vector<Problem> ProblemsInTeamsFile(std::string_view bytes)
{
    std::vector<Problem> problems;
    FindUncarriableLines(bytes, TeamLayout, problems);

    FieldReader reader(bytes);
    std::array<int, MaxTeams + 1> placeOf{};
    for (int place = 1;; ++place) {
        const std::vector<std::string> lines = ReadRecord(reader, TeamLayout.lines);
        if (lines[TeamHeaderLines - 1].empty()) {
            const auto filled = [](const std::string& line) { return !line.empty(); };
            // The closing pass reads ten lines past the 20 empty ones as squad places.
            const auto squadLines = lines.begin() + TeamHeaderLines;
            if (std::any_of(lines.begin() + 1, squadLines, filled))
                AddError(problems, TeamsFile, place, NameOfLine(TeamLayout, TeamHeaderLines),
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
            AddError(problems, TeamsFile, place, std::string(TeamLayout.key),
                     "the file holds more than 500 teams: teams.dat has room for 500, and this team and those "
                     "after it are not read");
            break;
        }
        CheckRecordLines(lines, TeamLayout, place, problems);
        if (!lines[0].empty() && lines[0] != "0" && place > 1)
            AddError(problems, TeamsFile, place - 1, "squad",
                     "the record runs on past its 30 lines (a squad of more than 20 places, or a comma in a "
                     "name), so the team after it is read out of place");
        const auto number = TextAsNumber(lines[TeamLayout.keyLine - 1]);
        if (number && *number >= 1 && *number <= MaxTeams) {
            if (placeOf[*number] != 0)
                AddError(problems, TeamsFile, place, std::string(TeamLayout.key),
                         "teams " + std::to_string(placeOf[*number]) + " and " + std::to_string(place) +
                             " of the file are both numbered " + std::to_string(*number));
            else
                placeOf[*number] = place;
        }
    }
    return problems;
}
