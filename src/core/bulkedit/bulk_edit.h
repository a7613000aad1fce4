#pragma once

#include <span>
#include <string>
#include <string_view>

#include "data/game.h"
#include "data/record_changes.h"
#include "table/table_columns.h"

// The bulk edits of the players and teams tables. Each plans a step without
// touching the game: either every record it would change, before and after,
// or why it cannot be taken, with the first record at fault. Nothing is ever
// half done: apply an accepted plan whole with `change.Redo(game)` and keep
// it as one step of the history; `change.Undo(game)` takes it back.
//
// Values are held to what the records and files can carry, as in the main
// window: a number is a whole number from -32768 to 32767, a coded field
// takes a word of its list (letter case ignored) or one of its codes, a name
// must be one the files can store, and a surname may not be empty. A value
// outside a skill's range in the game is taken, and `note` says so. Only the
// fields a window shows can be set (TableColumn::Editable).
//
// Texts typed or pasted are Windows-1252, as the names in the records; the
// texts of a plan are UTF-8, for a person.
struct BulkEdit {
    RecordChange change;   // empty when refused, or when every record already held the value
    std::string refusal;   // why nothing may change; empty when the step can be taken
    int faultRecord = 0;   // the first player or team whose value is refused, in the order given;
                           // 0 when the column or the shape of a paste is
    std::string note;      // worth saying about an accepted step, or empty
    std::string summary;   // the step, for Undo and Redo: "set potential on 3 players"

    bool ok() const { return refusal.empty(); }
};

// Set Value: `value` into field `column` (a name as the CSV header has it)
// of the records `numbers` (players or teams by number, as shown). A number
// field also takes a change relative to what each record holds: "+2", "-3";
// "=-3" sets -3. A record that would leave -32768 to 32767 refuses the whole
// step.
BulkEdit PlanSetValue(const Game& game, RecordKind kind, std::string_view column, std::span<const int> numbers,
                      std::string_view value);

// A block of tab-separated text from a spreadsheet (a row a line) pasted onto
// the cells of `rows` (record numbers, top to bottom) and `columns` (names,
// left to right). The block repeats over the cells when they are a whole
// multiple of its size, so one cell fills them all; any other shape is
// refused. Every cell is checked, each value as Set Value takes an absolute
// one; the first cell at fault, row by row, refuses them all.
BulkEdit PlanPaste(const Game& game, RecordKind kind, std::span<const int> rows, std::span<const std::string> columns,
                   std::string_view block);

// Move Selected to Team: the players join the end of the squad of `team` in
// the order given, each as Add Existing moves him: he leaves every squad that
// held him and takes `team` as his teamNumber. Players already in that squad
// stay where they are. Refused when the squad would pass 20 players, the
// first player with no room being the one at fault.
BulkEdit PlanMoveToTeam(const Game& game, std::span<const int> players, int team);
