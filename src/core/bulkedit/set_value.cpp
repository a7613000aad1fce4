#include <algorithm>
#include <utility>
#include <vector>

#include "bulkedit/bulk_edit.h"
#include "bulkedit/field_value.h"
#include "bulkedit/plan_steps.h"

namespace {

template <class Record>
BulkEdit SetValue(const Game& game, RecordKind kind, const FieldValue& value, std::span<const int> numbers)
{
    std::vector<std::pair<int, Record>> changed;
    changed.reserve(numbers.size());
    // Checked in the order shown, so that the first at fault is the one named.
    for (const int number : numbers) {
        if (!IsTableRecord(game, kind, number))
            return Refused(NoSuchRecord(kind, number), number);
        Record after = RecordIn<Record>(game, number);
        if (std::string reason = PutFieldValue(value, after); !reason.empty())
            return Refused(RecordTitle(game, kind, number) + ": " + reason, number);
        changed.emplace_back(number, std::move(after));
    }
    std::stable_sort(changed.begin(), changed.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    changed.erase(std::unique(changed.begin(), changed.end(),
                              [](const auto& a, const auto& b) { return a.first == b.first; }),
                  changed.end());

    BulkEdit plan;
    plan.change = NoChange(game);
    int outside = 0;
    for (const auto& [number, after] : changed) {
        outside += OutsideRange(*value.column, after) ? 1 : 0;
        AddCopy(plan.change, game, number, after);
    }
    plan.note = RangeNote(outside, kind);
    plan.summary = "set " + value.column->name + " on " + Counted(static_cast<int>(changed.size()), kind);
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
