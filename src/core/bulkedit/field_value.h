#pragma once

#include <string>
#include <string_view>

#include "data/records.h"
#include "table/table_columns.h"

// A value for one editable field, read once from what was typed or pasted
// and then put into each record.
struct FieldValue {
    const TableColumn* column = nullptr;
    std::string text;       // for a name field
    int number = 0;         // a number, a code, or the step of a relative change
    bool relative = false;  // "+2", "-3": added to what each record holds
    std::string refusal;    // why the field cannot take it; empty when it can
};

// `column` is editable; `relativeAllowed` lets a number field take "+2" and
// "-3" ("=-3" sets -3).
FieldValue ReadFieldValue(const TableColumn& column, std::string_view typed, bool relativeAllowed);

// Why `record` cannot take the value (a relative change past 16 bits), or
// empty when it can.
std::string ValueProblem(const FieldValue& value, const PlayerRecord& record);
std::string ValueProblem(const FieldValue& value, const TeamRecord& record);

// Puts into `record` a value it can take.
void PutFieldValue(const FieldValue& value, PlayerRecord& record);
void PutFieldValue(const FieldValue& value, TeamRecord& record);

// Whether the field of `record` lies outside the range the game gives it.
bool OutsideRange(const TableColumn& column, const PlayerRecord& record);
bool OutsideRange(const TableColumn& column, const TeamRecord& record);
