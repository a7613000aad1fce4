#pragma once

#include <QAbstractTableModel>
#include <QString>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "filter/record_filter.h"
#include "forms/typed_value.h"
#include "table/row_values.h"
#include "table/table_columns.h"

class GameDocument;
struct RecordChange;

// The players or the teams of the document's game as a table: a row a record
// that passes the filter, a column a TableColumn. It reads the game itself,
// keeps no copy, and follows the document's signals. Rows keep their place
// while records are edited; the filter is read again when its text changes,
// when records come or go, and when another game is read.
class RecordTableModel : public QAbstractTableModel {
    Q_OBJECT
public:
    RecordTableModel(GameDocument& document, RecordKind kind, CalendarDay today, QObject* parent = nullptr);
    ~RecordTableModel() override;

    RecordKind Kind() const { return kind_; }
    GameDocument& Document() { return document_; }
    const TableColumn& ColumnAt(int column) const { return columns_[std::size_t(column)]; }
    // The record shown in `row`, and the row showing record `number` (-1 for none).
    int RecordAt(int row) const { return shown_[std::size_t(row)]; }
    int RowOf(int number) const;
    // Every record of the table, shown or not.
    int RecordCount() const { return int(order_.size()); }
    // The team whose squad holds player `number`, 0 for none.
    int ClubOf(int number) const { return values_->Club(number); }

    // Reads `text` (as typed in the filter box) and shows the records that
    // pass it. A text that is no filter leaves the rows as they were and
    // gives the reason.
    std::optional<FilterError> SetFilter(const QString& text);

    // A value typed into a cell: one step of the document's history.
    void Type(const QModelIndex& index, const TypedValue& value);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    // Stable: records that tie keep the order they had, so sorting by one
    // column and then another orders by both.
    void sort(int column, Qt::SortOrder order) override;

signals:
    // The rows shown are others now (filter, sort, records added or removed).
    void rowsShownChanged();

private:
    void FollowRecords(const RecordChange& change);
    void ReadAgain();
    void ApplyFilter();
    QString DisplayText(const TableColumn& column, int number) const;

    GameDocument& document_;
    RecordKind kind_;
    CalendarDay today_;
    std::span<const TableColumn> columns_;
    std::unique_ptr<RowValues> values_;
    QString filterText_;
    RecordFilter filter_;
    std::vector<int> order_;  // every record, in the order of the last sorts
    std::vector<int> shown_;  // those of order_ that pass the filter
};
