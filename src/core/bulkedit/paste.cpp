#include <algorithm>
#include <map>
#include <vector>

#include "bulkedit/bulk_edit.h"
#include "bulkedit/field_value.h"
#include "bulkedit/plan_steps.h"

namespace {

using Block = std::vector<std::vector<std::string_view>>;

// Rows end in CR LF, LF or CR; the line end after the last row, which
// spreadsheets add, makes no row of its own.
Block SplitBlock(std::string_view text)
{
    Block rows;
    while (!text.empty()) {
        const std::size_t end = text.find_first_of("\r\n");
        const std::string_view line = text.substr(0, end);
        std::vector<std::string_view> cells;
        for (std::size_t start = 0;;) {
            const std::size_t tab = line.find('\t', start);
            cells.push_back(line.substr(start, tab == std::string_view::npos ? std::string_view::npos : tab - start));
            if (tab == std::string_view::npos)
                break;
            start = tab + 1;
        }
        rows.push_back(std::move(cells));
        if (end == std::string_view::npos)
            break;
        text.remove_prefix(end + (text.substr(end).starts_with("\r\n") ? 2 : 1));
    }
    return rows;
}

template <class Record>
BulkEdit Paste(const Game& game, RecordKind kind, std::span<const int> rows,
               const std::vector<const TableColumn*>& columns, const Block& block)
{
    std::map<int, Record> changed;
    for (std::size_t r = 0; r < rows.size(); ++r) {
        const int number = rows[r];
        if (!IsTableRecord(game, kind, number))
            return Refused(NoSuchRecord(kind, number), number);
        Record& after = changed.try_emplace(number, RecordIn<Record>(game, number)).first->second;
        const auto& cells = block[r % block.size()];
        for (std::size_t c = 0; c < columns.size(); ++c) {
            const FieldValue value = ReadFieldValue(*columns[c], cells[c % cells.size()], false);
            if (!value.refusal.empty())
                return Refused(RecordTitle(game, kind, number) + ": " + value.refusal, number);
            PutFieldValue(value, after);  // an absolute value fits every record
        }
    }
    BulkEdit plan;
    plan.change = NoChange(game);
    int outside = 0;
    for (const auto& [number, record] : changed) {
        const Record& after = record;  // clang cannot capture a structured binding
        const bool anyOutside = std::any_of(columns.begin(), columns.end(),
                                            [&after](const TableColumn* column) { return OutsideRange(*column, after); });
        outside += anyOutside ? 1 : 0;
        AddCopy(plan.change, game, number, after);
    }
    plan.note = RangeNote(outside, kind);
    plan.summary = "paste into " + Counted(static_cast<int>(changed.size()), kind);
    return plan;
}

std::string Size(std::size_t rows, std::size_t columns)
{
    return std::to_string(rows) + (rows == 1 ? " row" : " rows") + " by " + std::to_string(columns) +
           (columns == 1 ? " column" : " columns");
}

}  // namespace

BulkEdit PlanPaste(const Game& game, RecordKind kind, std::span<const int> rows, std::span<const std::string> columns,
                   std::string_view block)
{
    if (rows.empty() || columns.empty())
        return Refused("no cell is chosen to paste into");
    const Block cells = SplitBlock(block);
    if (cells.empty())
        return Refused("there is nothing to paste");
    const std::size_t width = cells.front().size();
    if (std::any_of(cells.begin(), cells.end(), [width](const auto& row) { return row.size() != width; }))
        return Refused("the pasted rows hold different numbers of cells");
    if (rows.size() % cells.size() != 0 || columns.size() % width != 0)
        return Refused("a block of " + Size(cells.size(), width) + " does not fit the " +
                       Size(rows.size(), columns.size()) + " chosen: choose its size or a whole multiple of it");
    std::vector<const TableColumn*> fields;
    for (const std::string& name : columns) {
        std::string refusal;
        const TableColumn* column = EditableColumn(kind, name, refusal);
        if (!column)
            return Refused(refusal);
        fields.push_back(column);
    }
    return kind == RecordKind::Player ? Paste<PlayerRecord>(game, kind, rows, fields, cells)
                                      : Paste<TeamRecord>(game, kind, rows, fields, cells);
}
