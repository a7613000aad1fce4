#pragma once

#include <string>
#include <type_traits>

#include "bulkedit/bulk_edit.h"

// What the bulk edits share: records by kind, refusals, and the change.

template <class Record>
const Record& RecordIn(const Game& game, int number)
{
    if constexpr (std::is_same_v<Record, PlayerRecord>)
        return game.Players[static_cast<std::size_t>(number)];
    else
        return game.Teams[static_cast<std::size_t>(number)];
}

// Whether `number` is a row of the table: players 1 to PlayerCount, or a loaded team.
bool IsTableRecord(const Game& game, RecordKind kind, int number);

// "there is no player 2500"
std::string NoSuchRecord(RecordKind kind, int number);
// "player 12 (A Neskerly)", "team 4 (Perth Pelicans)"
std::string RecordTitle(const Game& game, RecordKind kind, int number);
// "3 players", "1 team"
std::string Counted(int count, RecordKind kind);

BulkEdit Refused(std::string reason, int faultRecord = 0);

// The column called `name` when its values can be set; otherwise nothing,
// and `refusal` says why.
const TableColumn* EditableColumn(RecordKind kind, std::string_view name, std::string& refusal);

// A change that leaves the counts as the game has them, and no record yet.
RecordChange NoChange(const Game& game);

// The copies of the change that hold records of this kind.
template <class Record>
auto& CopiesOf(RecordChange& change)
{
    if constexpr (std::is_same_v<Record, PlayerRecord>)
        return change.players;
    else
        return change.teams;
}

// Adds `after` to the change when it differs from the game's record;
// records must come in ascending number.
void AddCopy(RecordChange& change, const Game& game, int number, const PlayerRecord& after);
void AddCopy(RecordChange& change, const Game& game, int number, const TeamRecord& after);

// "3 players now hold a value outside ...", or empty when `outside` is 0.
std::string RangeNote(int outside, RecordKind kind);
