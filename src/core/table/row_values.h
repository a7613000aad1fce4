#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "data/game.h"
#include "table/table_columns.h"

// A day of the calendar: "today" for the ages, handed in so that a result
// does not depend on the clock.
struct CalendarDay {
    int year = 0;
    int month = 0;
    int day = 0;
};

// The values the table rows show, for one pass over them: the clubs are
// found in one walk over the squads when this is made, so make it afresh
// after the squads change. Asking for a value allocates nothing.
class RowValues {
public:
    RowValues(const Game& game, CalendarDay today);

    const Game& GameShown() const { return game_; }

    // The number `column` holds for record `number` (a code as its code, the
    // club as its team number, 0 for none). Nothing for a name field, an age
    // whose birth date cannot be, the average of an empty squad, or a record
    // number outside the table.
    std::optional<double> Number(const TableColumn& column, int number) const;
    // The text of a name field (Windows-1252); empty for any other column.
    std::string_view Text(const TableColumn& column, int number) const;
    // The team whose squad holds player `number`, as PresentClub names it.
    int Club(int number) const;

private:
    std::optional<double> SquadAverage(const PlayerField& skill, int team) const;

    const Game& game_;
    CalendarDay today_;
    std::vector<std::int16_t> clubs_;
};

// Whether `number` is a row of the table of `kind`: a slot of Players or Teams.
bool IsRecordNumber(RecordKind kind, int number);
