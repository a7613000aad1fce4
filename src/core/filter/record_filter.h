#pragma once

#include <bitset>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "data/game.h"
#include "table/row_values.h"
#include "table/table_columns.h"

// The filter box of the players and teams tables.
//
//   smith                 plain words find names as Find Player does: part of
//   a j smi               the initials and surname run together, case and
//   A. J.                 blanks and dots ignored; digits alone find the
//   12                    players whose number begins with them. Teams: part
//                         of the name or abbreviation, or the number.
//   batSkill>=42          a column, a comparison (= != < <= > >=) and a value;
//   homeCountry=England   columns are named as in the CSV header, letter case
//   bowlType!=None        ignored; coded fields take their words or codes,
//   club=none             club a team's name or number or "none", names are
//   club=Perth Pelicans   compared as Find Player compares them. A value runs
//   age<25                over as many words as make a word of its list or a
//   surname="van Dyke"    name some record holds; any value can be quoted.
//   batSkill>40 potential>15 or age<20
//                         terms side by side must all hold; "or" between
//                         them means either side (side by side binds first).
//
// Players have the columns playerNumber, the fields, age and club; teams
// teamNumber, the fields, squadSize and the squad's average of each skill
// (averageBatSkill, ...). A record without a value for a column (an age whose
// birth date cannot be, the average of an empty squad) passes no comparison
// on it, != included.
//
// The text is Windows-1252, as the names in the records, so that its byte
// offsets are the character offsets of the box it came from.

enum class Comparison { Equal, NotEqual, Less, LessOrEqual, Greater, GreaterOrEqual };

// One test of a record.
struct FilterTerm {
    enum class Test {
        Name,    // plain words: the record's names hold `key`, or its number begins with `key`'s digits
        Number,  // the column's number against `number`
        Text,    // a name field against `key`
        Codes,   // a coded field is (=) or is not (!=) one of `codes`
        Teams,   // a player's club is (=) or is not (!=) one of `teams`; place 0 is no club
    };
    Test test = Test::Name;
    const TableColumn* column = nullptr;  // none for Name
    Comparison comparison = Comparison::Equal;
    double number = 0;
    std::string key;  // folded as Find Player folds names
    bool digits = false;
    std::uint64_t codes = 0;  // bit c for code c
    std::bitset<MaxTeams + 1> teams;
};

// Any group whose terms all hold lets a record through; with no group at
// all (an empty box) every record passes.
struct RecordFilter {
    RecordKind kind = RecordKind::Player;
    std::vector<std::vector<FilterTerm>> groups;
};

// Why a text is no filter, for the status line (UTF-8), and the stretch of
// the text at fault: `length` characters from `start`.
struct FilterError {
    std::string reason;
    int start = 0;
    int length = 0;
};

struct ParsedFilter {
    RecordFilter filter;  // lets every record through when the text could not be read
    std::optional<FilterError> error;

    bool ok() const { return !error; }
};

// Reads a filter for the table of `kind`. The game gives the team names a
// club may be called by and the names a value may run over; read the text
// again after teams are renamed.
ParsedFilter ParseFilter(std::string_view text, RecordKind kind, const Game& game);

// Tests records against a filter with the values of one pass over the rows.
// Matching a record allocates nothing once the first few have been tested.
class FilterMatcher {
public:
    FilterMatcher(const RecordFilter& filter, const RowValues& values);

    // Whether record `number` passes; a number outside the table never does.
    bool Matches(int number);

private:
    bool Holds(const FilterTerm& term, int number);
    bool NameHolds(const FilterTerm& term, int number);

    const RecordFilter& filter_;
    const RowValues& values_;
    std::string scratch_;
};

// The records of the table the filter is for that pass it, in number order:
// players 1 to PlayerCount, or the loaded teams.
std::vector<int> MatchingRecords(const RecordFilter& filter, const Game& game, CalendarDay today);
