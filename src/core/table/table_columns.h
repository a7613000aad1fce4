#pragma once

#include <span>
#include <string>
#include <string_view>

#include "data/fields.h"

// The players table and the teams table: one row a record, a column for the
// record's number, one for every field of the field table, and a few worked
// out from the game. The filter names its columns, and the bulk edits their
// fields, by these names.

enum class RecordKind { Player, Team };

// Where a column's value comes from.
enum class ColumnSource {
    Key,           // the record's number: playerNumber, teamNumber
    Field,         // a field of the field table, under its own name
    Age,           // a player's age in whole years, as Find Player counts it: "age"
    Club,          // the team whose squad holds a player, 0 for none: "club"
    SquadSize,     // the players in a team's squad: "squadSize"
    SquadAverage,  // one skill averaged over a team's squad: "averageBatSkill", ...
};

struct TableColumn {
    RecordKind kind;
    std::string name;
    ColumnSource source;
    const PlayerField* playerField = nullptr;  // a player's Field, or the skill of a SquadAverage
    const TeamField* teamField = nullptr;      // a team's Field

    // A field whose box a window shows takes typed values; the record's
    // number, the fields no window shows (a player's teamNumber, which the
    // squads decide, and carriedValue) and the worked-out columns do not.
    bool Editable() const;
    // Name fields hold text; every other column a number.
    bool IsName() const;
    // The code list of a coded field, else nothing.
    const CodeList* Codes() const;
};

// In the order of the CSV columns, the worked-out ones last.
std::span<const TableColumn> TableColumns(RecordKind kind);

// The column called `name`, letter case ignored; the word column of a coded
// field ("homeCountryName") names the field itself. Nothing for a name no
// column has.
const TableColumn* FindColumn(RecordKind kind, std::string_view name);

// `text` as Find Player compares names, and the tables compare words and
// names with what is typed: letter case, blanks and dots ignored.
std::string NameKey(std::string_view text);
