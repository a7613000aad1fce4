#include "csv/import_rows.h"

#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <tuple>
#include <type_traits>

#include "check/problems.h"
#include "csv/csv_layout.h"
#include "data/fields.h"
#include "data/names.h"
#include "data/squad.h"
#include "data/text_lines.h"
#include "data/utf8.h"

namespace {

constexpr const char* PlayersCsvFile = "players.csv";
constexpr const char* TeamsCsvFile = "teams.csv";

// What a column of the header stands for.
struct Column {
    enum class Kind { Key, Field, Word, Squad } kind;
    int index = 0;  // into the record's fields, or the squad place
};

std::string Shown(const std::string& cell)
{
    return "\"" + cell + "\"";
}

// Walks one table's rows into one kind of record.
template <class Record>
class TableImport {
public:
    TableImport(const char* file, const RecordLayout<Record>& layout, std::vector<RowFault>& faults)
        : file_(file), key_(layout.key), fields_(layout.fields), squads_(layout.firstSquadLine != 0), faults_(faults)
    {
    }

    // False when the header is wrong; the rows are then not looked at.
    bool ReadHeader(const CsvTable& table)
    {
        const int line = table.lineNumbers.front();
        std::set<std::string> seen;
        for (const std::string& name : table.rows.front()) {
            if (!seen.insert(name).second)
                Fault(line, "the column " + Shown(name) + " stands twice");
            if (const auto column = Find(name))
                columns_.push_back(*column);
            else
                Fault(line, "unknown column " + Shown(name));
        }
        if (!seen.contains(std::string(key_)))
            Fault(line, "the column " + Shown(std::string(key_)) + " is missing: rows are found by it");
        return faultsBefore_ == faults_.size();
    }

    // The number of the record a row stands for; nothing when it is wrong.
    // `existing` records can be edited; `next` is the number a new one takes.
    std::optional<int> RowNumber(const CsvRow& row, int line, int existing, int& next, int limit, const char* what)
    {
        const std::string& cell = row[KeyColumn()];
        int number = next;
        if (!TrimBlanks(cell).empty()) {
            const auto value = WholeNumber(cell);
            if (!value)
                return Fault(line, std::string(key_) + " " + Shown(cell) + " is not a whole number");
            number = *value;
        }
        if (number < 1 || number > limit)
            return Fault(line, std::string(what) + " numbers run from 1 to " + std::to_string(limit) + ", not " +
                                   std::to_string(number));
        if (const auto earlier = lines_.find(number); earlier != lines_.end())
            return Fault(line, std::string(what) + " " + std::to_string(number) + " already stands on line " +
                                   std::to_string(earlier->second));
        if (number > existing && number != next)
            return Fault(line, "a new " + std::string(what) + " takes the next free number, " +
                                   std::to_string(next) + ", not " + std::to_string(number));
        if (number == next)
            ++next;
        lines_[number] = line;
        return number;
    }

    // Copies the row's cells into `record`. False when a cell is wrong.
    bool ApplyCells(const CsvRow& row, int line, Record& record, Squad* squad)
    {
        const std::size_t faultsBefore = faults_.size();
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            const Column& column = columns_[i];
            const std::string& cell = row[i];
            switch (column.kind) {
            case Column::Kind::Field: TakeField(cell, line, fields_[column.index], record); break;
            case Column::Kind::Squad: TakeSquadPlace(cell, line, column.index, squad); break;
            case Column::Kind::Key:
            case Column::Kind::Word: break;
            }
        }
        // The words are for reading; one that was changed without its code would be lost.
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            if (columns_[i].kind != Column::Kind::Word || TrimBlanks(row[i]).empty())
                continue;
            const auto& field = fields_[columns_[i].index];
            const int code = record.*field.number;
            const std::string word(field.codes->WordFor(code).value_or(""));
            if (TrimBlanks(row[i]) != word)
                Fault(line, WordColumn(field.name) + " " + Shown(row[i]) + " does not match " +
                                std::string(field.name) + " " + std::to_string(code) +
                                (word.empty() ? "" : " (" + word + ")") +
                                ": the number is what counts, so change both or empty the word");
        }
        return faults_.size() == faultsBefore;
    }

    std::size_t ColumnCount() const { return columns_.size(); }
    const std::map<int, int>& Lines() const { return lines_; }

    std::nullopt_t Fault(int line, std::string message)
    {
        faults_.push_back({file_, line, std::move(message)});
        return std::nullopt;
    }

private:
    std::optional<Column> Find(const std::string& name) const
    {
        if (name == key_)
            return Column{Column::Kind::Key};
        for (std::size_t i = 0; i < fields_.size(); ++i) {
            if (name == fields_[i].name)
                return Column{Column::Kind::Field, static_cast<int>(i)};
            if (fields_[i].codes && name == WordColumn(fields_[i].name))
                return Column{Column::Kind::Word, static_cast<int>(i)};
        }
        // squad21 and beyond are known, so that a row using them is refused as a squad over 20.
        if (squads_ && name.starts_with("squad")) {
            if (const auto place = WholeNumber(name.substr(5)); place && *place >= 1 && SquadPlaceName(*place) == name)
                return Column{Column::Kind::Squad, *place};
        }
        return std::nullopt;
    }

    std::size_t KeyColumn() const
    {
        return std::find_if(columns_.begin(), columns_.end(),
                            [](const Column& c) { return c.kind == Column::Kind::Key; }) -
               columns_.begin();
    }

    // An empty cell reads as 0, as the game reads an empty line.
    std::optional<std::int16_t> Number(const std::string& cell, int line, std::string_view name)
    {
        if (TrimBlanks(cell).empty())
            return std::int16_t{0};
        if (const auto value = WholeNumber(cell))
            return value;
        return Fault(line, std::string(name) + " " + Shown(cell) + " is not a whole number from -32768 to 32767");
    }

    void TakeField(const std::string& cell, int line, const Field<Record>& field, Record& record)
    {
        if (!field.text) {
            if (const auto value = Number(cell, line, field.name))
                record.*field.number = *value;
            return;
        }
        const std::string name(field.name);
        if (cell.find_first_of("\r\n") != std::string::npos) {
            Fault(line, name + " " + Shown(cell) + " holds a line break, which the files cannot carry");
            return;
        }
        auto bytes = Cp1252FromUtf8(cell);
        if (!bytes && !IsUtf8(cell)) {
            Fault(line, name + " " + Shown(Utf8FromCp1252(cell)) +
                            " is not UTF-8 text: save the file as UTF-8 CSV");
            return;
        }
        if (!bytes) {
            Fault(line, name + " " + Shown(cell) + " holds a character that the game's files (Windows-1252) cannot store");
            return;
        }
        // Stored as the game's reader will read it back.
        if (field.trimmed)
            bytes = TrimBlanks(*bytes);
        if (const auto problem = NameProblem(*bytes)) {
            Fault(line, name + " " + Shown(cell) + " cannot be stored: " + *problem);
            return;
        }
        record.*field.text = std::move(*bytes);
    }

    void TakeSquadPlace(const std::string& cell, int line, int place, Squad* squad)
    {
        const auto player = Number(cell, line, SquadPlaceName(place));
        if (!player || !squad)
            return;
        if (place > SquadSize) {
            if (*player != 0)
                Fault(line, "a squad holds at most 20 players, but " + SquadPlaceName(place) + " names player " +
                                std::to_string(*player));
            return;
        }
        (*squad)[place] = *player;
    }

    const char* file_;
    std::string_view key_;
    std::span<const Field<Record>> fields_;
    bool squads_;
    std::vector<RowFault>& faults_;
    std::size_t faultsBefore_ = faults_.size();
    std::vector<Column> columns_;
    std::map<int, int> lines_;  // record number -> line of its row
};

// Rows a spreadsheet leaves at the end hold nothing at all.
bool BlankRow(const CsvRow& row)
{
    return std::all_of(row.begin(), row.end(), [](const std::string& cell) { return cell.empty(); });
}

template <class Import>
bool RowFits(Import& import, const CsvRow& row, int line)
{
    if (row.size() == import.ColumnCount())
        return true;
    import.Fault(line, "the row has " + std::to_string(row.size()) + " fields, the header " +
                           std::to_string(import.ColumnCount()));
    return false;
}

bool CsvReadable(const CsvTable& table, const char* file, std::vector<RowFault>& faults)
{
    if (!table.error.empty()) {
        faults.push_back({file, table.errorLine, table.error});
        return false;
    }
    if (table.rows.empty()) {
        faults.push_back({file, 1, "the header row is missing"});
        return false;
    }
    return true;
}

// Walks the rows of one table into `records` (Players or Teams, indexed by
// number); `existing` records can be edited and the rest start blank.
// `counted` raises the table's counter for a record that came through whole.
template <class Record, class Import, std::size_t Slots>
std::map<int, int> ImportRecords(Import& import, const CsvTable& table, const char* file,
                                 std::array<Record, Slots>& records, int existing, const char* what,
                                 std::vector<RowFault>& faults, const auto& counted)
{
    if (!CsvReadable(table, file, faults) || !import.ReadHeader(table))
        return {};
    int next = existing + 1;
    for (std::size_t r = 1; r < table.rows.size(); ++r) {
        const CsvRow& row = table.rows[r];
        const int line = table.lineNumbers[r];
        if (BlankRow(row) || !RowFits(import, row, line))
            continue;
        const auto number = import.RowNumber(row, line, existing, next, static_cast<int>(Slots) - 1, what);
        if (!number)
            continue;
        Record record = *number <= existing ? records[*number] : Record{};
        Squad* squad = nullptr;
        if constexpr (std::is_same_v<Record, TeamRecord>)
            squad = &record.squad;
        if (!import.ApplyCells(row, line, record, squad))
            continue;
        records[*number] = std::move(record);
        counted(static_cast<std::int16_t>(*number));
    }
    return import.Lines();
}

std::map<int, int> ImportPlayers(Game& game, const CsvTable& table, std::vector<RowFault>& faults)
{
    TableImport<PlayerRecord> import(PlayersCsvFile, PlayerLayout, faults);
    return ImportRecords(import, table, PlayersCsvFile, game.Players, LoadedPlayerCount(game), "player", faults,
                         [&game](std::int16_t number) {
                             game.Players[number].playerNumber = number;
                             game.PlayerCount = std::max(game.PlayerCount, number);
                         });
}

std::map<int, int> ImportTeams(Game& game, const CsvTable& table, std::vector<RowFault>& faults)
{
    TableImport<TeamRecord> import(TeamsCsvFile, TeamLayout, faults);
    return ImportRecords(import, table, TeamsCsvFile, game.Teams, LoadedTeamCount(game), "team", faults,
                         [&game](std::int16_t number) {
                             game.Teams[number].teamNumber = number;
                             game.TeamCount = std::max(game.TeamCount, TeamCountFor(number));
                         });
}

// The editor's squad commands set a player's teamNumber along with the squad,
// so a player the rows moved follows his new squad, unless his own row set
// his teamNumber too.
void FollowSquadMoves(const Game& before, Game& after)
{
    const auto holdersBefore = TeamsHoldingEachPlayer(before);
    const auto holdersAfter = TeamsHoldingEachPlayer(after);
    for (int number = 1; number <= LoadedPlayerCount(after); ++number) {
        PlayerRecord& player = after.Players[number];
        if (holdersBefore[number] == holdersAfter[number] || player.teamNumber != before.Players[number].teamNumber)
            continue;
        player.teamNumber = static_cast<std::int16_t>(holdersAfter[number].empty() ? 0 : holdersAfter[number].front());
    }
}

std::tuple<std::string, int, std::string> ErrorKey(const Problem& problem)
{
    return {problem.file, problem.record, problem.field};
}

// Squad errors the rows bring in, laid at the row of the team they concern.
void FindNewErrors(const Game& before, const Game& after, const std::map<int, int>& teamLines,
                   const std::map<int, int>& playerLines, std::vector<RowFault>& faults)
{
    std::set<std::tuple<std::string, int, std::string>> old;
    for (const Problem& problem : ProblemsInGame(before)) {
        if (problem.severity == Severity::Error)
            old.insert(ErrorKey(problem));
    }
    for (const Problem& problem : ProblemsInGame(after)) {
        if (problem.severity != Severity::Error || old.contains(ErrorKey(problem)))
            continue;
        const bool team = problem.file == TeamLayout.file;
        const auto& lines = team ? teamLines : playerLines;
        const auto row = lines.find(problem.record);
        faults.push_back({team ? TeamsCsvFile : PlayersCsvFile, row == lines.end() ? 0 : row->second,
                          (team ? "team " : "player ") + std::to_string(problem.record) + ": " + problem.field +
                              ": " + problem.message});
    }
}

}  // namespace

std::vector<RowFault> ApplyImport(Game& game, const ImportTables& tables)
{
    const auto before = std::make_unique<Game>(game);
    std::vector<RowFault> faults;
    std::map<int, int> playerLines;
    std::map<int, int> teamLines;
    if (tables.players)
        playerLines = ImportPlayers(game, *tables.players, faults);
    if (tables.teams)
        teamLines = ImportTeams(game, *tables.teams, faults);
    if (faults.empty()) {
        FollowSquadMoves(*before, game);
        FindNewErrors(*before, game, teamLines, playerLines, faults);
    }
    std::stable_sort(faults.begin(), faults.end(), [](const RowFault& a, const RowFault& b) {
        return std::tie(a.file, a.line) < std::tie(b.file, b.line);
    });
    return faults;
}

std::vector<RowFault> ImportCsv(Game& game, std::optional<std::string_view> playersCsv,
                                std::optional<std::string_view> teamsCsv)
{
    const CsvTable players = ParseCsv(playersCsv.value_or(""));
    const CsvTable teams = ParseCsv(teamsCsv.value_or(""));
    return ApplyImport(game, {playersCsv ? &players : nullptr, teamsCsv ? &teams : nullptr});
}
