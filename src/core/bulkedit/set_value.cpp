#include <algorithm>
#include <vector>

#include "bulkedit/bulk_edit.h"
#include "bulkedit/field_value.h"
#include "bulkedit/plan_steps.h"

namespace {

template <class Record>
BulkEdit SetValue(const Game& game, RecordKind kind, const FieldValue& value, std::span<const int> numbers)
{
    // Checked in the order shown, so that the first at fault is the one named.
    for (const int number : numbers) {
        if (!IsTableRecord(game, kind, number))
            return Refused(NoSuchRecord(kind, number), number);
        if (std::string reason = ValueProblem(value, RecordIn<Record>(game, number)); !reason.empty())
            return Refused(RecordTitle(game, kind, number) + ": " + reason, number);
    }
    std::vector<int> chosen(numbers.begin(), numbers.end());
    std::sort(chosen.begin(), chosen.end());
    chosen.erase(std::unique(chosen.begin(), chosen.end()), chosen.end());

    BulkEdit plan;
    plan.change = NoChange(game);
    auto& copies = CopiesOf<Record>(plan.change);
    copies.reserve(chosen.size());
    int outside = 0;
    for (const int number : chosen) {
        const Record& before = RecordIn<Record>(game, number);
        auto& copy = copies.emplace_back();
        copy.number = static_cast<std::int16_t>(number);
        copy.before = before;
        copy.after = before;
        PutFieldValue(value, copy.after);
        outside += OutsideRange(*value.column, copy.after) ? 1 : 0;
        if (copy.after == before)
            copies.pop_back();
    }
    plan.note = RangeNote(outside, kind);
    plan.summary = "set " + value.column->name + " on " + Counted(static_cast<int>(chosen.size()), kind);
    return plan;
}

}  // namespace

BulkEdit PlanSetValue(const Game& game, RecordKind kind, std::string_view column, std::span<const int> numbers,
                      std::string_view value)
{
    std::string refusal;
    const TableColumn* field = EditableColumn(kind, column, refusal);
    if (!field)
        return Refused(refusal);
    if (numbers.empty())
        return Refused("no record is chosen");
    const FieldValue read = ReadFieldValue(*field, value, true);
    if (!read.refusal.empty())
        return Refused(read.refusal, numbers.front());
    return kind == RecordKind::Player ? SetValue<PlayerRecord>(game, kind, read, numbers)
                                      : SetValue<TeamRecord>(game, kind, read, numbers);
}
