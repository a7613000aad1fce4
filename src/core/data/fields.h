#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "data/code_lists.h"
#include "data/records.h"

// Every field of a player and a team, with its place in the game's files, its
// kind, its range and its caption. The readers and writers, the CSV columns,
// the checks, the comparison of two games and the windows walk these tables;
// adding a field to the game is one line here.

struct CodeList {
    std::span<const std::string_view> words;
    int firstCode;  // the code of the first word: 1, or 0 for the hands

    std::optional<std::string_view> WordFor(int code) const;
    int LastCode() const { return firstCode + static_cast<int>(words.size()) - 1; }
};

inline constexpr CodeList Countries{CountryList, 1};
inline constexpr CodeList TeamCountries{TeamCountryList, 1};
inline constexpr CodeList BatPositions{BatPositionList, 1};
inline constexpr CodeList Hands{HandList, 0};
inline constexpr CodeList BowlTypes{BowlTypeList, 1};
inline constexpr CodeList FieldPositions{FieldPositionList, 1};

// The game's stated range of a skill, both ends included. Only a new player
// is held to it; the files and the edits in place take any 16-bit number.
struct Range {
    int low;
    int high;
};

// "0 - 60", as the Help window and the checks write a range.
std::string RangeText(const Range& range);

enum class FieldKind {
    Name,    // text, stored with a closing "#" that guards trailing blanks
    Number,  // a 16-bit number
    Code,    // a 16-bit number standing for a word of its list
};

template <class Record>
struct Field {
    std::string_view name;  // the column of the CSV files and the name `check` and `diff` use
    int line;               // its line in the record of the file, from 1
    FieldKind kind;
    std::string Record::*text = nullptr;     // Name
    std::int16_t Record::*number = nullptr;  // Number and Code
    const CodeList* codes = nullptr;         // Code
    std::optional<Range> range;
    // The caption beside the field's box in the windows. Fields that share a
    // row share it ("Player Name", "Date of birth"); empty for a field no
    // window shows.
    std::string_view label;
    std::string_view rangeLabel;  // how the Help window names a field with a range
    bool trimmed = false;         // the game's reader drops blanks around it
};

template <class Record>
constexpr Field<Record> NameField(std::string_view name, int line, std::string Record::*text,
                                  std::string_view label, bool trimmed = false)
{
    return {name, line, FieldKind::Name, text, nullptr, nullptr, std::nullopt, label, {}, trimmed};
}

template <class Record>
constexpr Field<Record> NumberField(std::string_view name, int line, std::int16_t Record::*number,
                                    std::string_view label, std::optional<Range> range = std::nullopt,
                                    std::string_view rangeLabel = {})
{
    return {name, line, FieldKind::Number, nullptr, number, nullptr, range, label, rangeLabel, false};
}

template <class Record>
constexpr Field<Record> CodeField(std::string_view name, int line, std::int16_t Record::*number,
                                  const CodeList& codes, std::string_view label)
{
    return {name, line, FieldKind::Code, nullptr, number, &codes, std::nullopt, label, {}, false};
}

using PlayerField = Field<PlayerRecord>;
using TeamField = Field<TeamRecord>;

// In the order of the file. The captions are the windows' own words.
inline constexpr std::array PlayerFields{
    NameField("initials", 3, &PlayerRecord::initials, "Player Name", true),
    NameField("surname", 4, &PlayerRecord::surname, "Player Name"),
    NumberField("birthDay", 5, &PlayerRecord::birthDay, "Date of birth"),
    NumberField("birthMonth", 6, &PlayerRecord::birthMonth, "Date of birth"),
    NumberField("birthYear", 7, &PlayerRecord::birthYear, "Date of birth"),
    CodeField("homeCountry", 8, &PlayerRecord::homeCountry, Countries, "Home Country"),
    NumberField("teamNumber", 9, &PlayerRecord::teamNumber, ""),
    CodeField("batPosition", 10, &PlayerRecord::batPosition, BatPositions, "Bat position"),
    CodeField("bats", 11, &PlayerRecord::bats, Hands, "Bats"),
    NumberField("batSkill", 12, &PlayerRecord::batSkill, "Bat skill", Range{0, 60}, "Bat Skill"),
    NumberField("batAggression", 13, &PlayerRecord::batAggression, "Bat aggr.", Range{0, 20}, "Bat Aggression"),
    CodeField("bowlType", 14, &PlayerRecord::bowlType, BowlTypes, "Bowl Type"),
    CodeField("bowls", 15, &PlayerRecord::bowls, Hands, "Bowls"),
    NumberField("bowlSkill", 16, &PlayerRecord::bowlSkill, "Bowl Skill", Range{0, 60}, "Bowl Skill"),
    NumberField("bowlEconomy", 17, &PlayerRecord::bowlEconomy, "Bowl Economy", Range{0, 20}, "Bowl Econ."),
    NumberField("fieldAbility", 18, &PlayerRecord::fieldAbility, "Field ability", Range{10, 40}, "Field Skill"),
    CodeField("fieldsAt", 19, &PlayerRecord::fieldsAt, FieldPositions, "Fields at"),
    NumberField("potential", 20, &PlayerRecord::potential, "Potential", Range{0, 20}, "Potential"),
    // The game keeps a value here that no window shows; it is carried as read.
    NumberField("carriedValue", 21, &PlayerRecord::carriedValue, ""),
};

inline constexpr std::array TeamFields{
    NameField("teamName", 2, &TeamRecord::teamName, "Team Name"),
    NameField("abbreviation", 3, &TeamRecord::abbreviation, "Abbr."),
    CodeField("homeCountry", 4, &TeamRecord::homeCountry, TeamCountries, "Home Country"),
    NumberField("reputation", 5, &TeamRecord::reputation, "Reputation"),
    NumberField("wealth", 6, &TeamRecord::wealth, "Wealth"),
    NumberField("support", 7, &TeamRecord::support, "Support"),
};

// A line the editor drops when it reads and writes as a constant.
struct ConstantLine {
    int line;
    std::string_view text;
};

// How one record lies in its file: the key line, the constant lines, the
// fields and, for a team, the squad, which fill the record's lines between them.
template <class Record>
struct RecordLayout {
    std::string_view file;          // "players.dat"
    int lines;                      // lines of one record
    int closingEmptyLines;          // the empty lines after the last record
    std::string_view key;           // the record's number, as the CSV column and `check` name it
    std::string_view keyLabel;      // its caption in the windows
    int keyLine;
    std::span<const ConstantLine> constants;
    std::span<const Field<Record>> fields;
    int firstSquadLine = 0;         // squad places 1 to 20 stand from here on; 0 for no squad
};

inline constexpr std::array<ConstantLine, 1> PlayerConstantLines{{{2, "#"}}};
inline constexpr std::array<ConstantLine, 3> TeamConstantLines{{{1, "0"}, {9, "0"}, {10, "0"}}};

inline constexpr RecordLayout<PlayerRecord> PlayerLayout{
    "players.dat", 21, 21, "playerNumber", "Player number", 1, PlayerConstantLines, PlayerFields};
// A team is numbered by its place in the file, whatever its key line says;
// an empty line 10 is the sign that ends the file.
inline constexpr RecordLayout<TeamRecord> TeamLayout{
    "teams.dat", 30, 20, "teamNumber", "Team number", 8, TeamConstantLines, TeamFields, 11};

// "squad7" for place 7, as the CSV column and `check` name it.
std::string SquadPlaceName(int place);

// The field that stores `member`.
template <class Record>
const Field<Record>* FieldOf(std::span<const Field<Record>> fields, std::int16_t Record::*member)
{
    for (const Field<Record>& field : fields) {
        if (field.number == member)
            return &field;
    }
    return nullptr;
}

// What a line of a record holds.
enum class LineKind { Key, Constant, Name, Number, Squad };

template <class Record>
constexpr LineKind KindOfLine(const RecordLayout<Record>& layout, int line)
{
    if (line == layout.keyLine)
        return LineKind::Key;
    for (const ConstantLine& constant : layout.constants) {
        if (constant.line == line)
            return LineKind::Constant;
    }
    for (const Field<Record>& field : layout.fields) {
        if (field.line == line)
            return field.kind == FieldKind::Name ? LineKind::Name : LineKind::Number;
    }
    return LineKind::Squad;
}

// The name `check` gives a line: the field's name, the key, "squad3" for a
// squad place, "line 2" for a constant line.
template <class Record>
std::string NameOfLine(const RecordLayout<Record>& layout, int line)
{
    if (line == layout.keyLine)
        return std::string(layout.key);
    for (const Field<Record>& field : layout.fields) {
        if (field.line == line)
            return std::string(field.name);
    }
    if (layout.firstSquadLine != 0 && line >= layout.firstSquadLine)
        return SquadPlaceName(line - layout.firstSquadLine + 1);
    return "line " + std::to_string(line);
}
