#include "tables/cell_editor.h"

#include "data/number_entry.h"
#include "document/game_document.h"
#include "forms/box_marks.h"
#include "forms/drop_down.h"
#include "forms/game_text.h"
#include "forms/text_box.h"
#include "forms/value_boxes.h"
#include "tables/record_table_model.h"

namespace {

// Calls `use` with the field of an editable column and the record of `number`.
template <class Use>
auto WithField(const TableColumn& column, const Game& game, int number, Use use)
{
    if (column.kind == RecordKind::Player)
        return use(*column.playerField, game.Players[std::size_t(number)]);
    return use(*column.teamField, game.Teams[std::size_t(number)]);
}

}  // namespace

CellEditor::CellEditor(RecordTableModel& model, QObject* parent) : QStyledItemDelegate(parent), model_(model) {}

QWidget* CellEditor::createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const
{
    const TableColumn& column = model_.ColumnAt(index.column());
    if (const CodeList* codes = column.Codes())
        return NewWordList(parent, codes->words);
    auto* box = new TextBox(parent);
    if (column.IsName()) {
        box->SetTextRule(NameRefusalOf);
        connect(box, &TextBox::refused, this, &CellEditor::said);
        return box;
    }
    const int number = model_.RecordAt(index.row());
    connect(box, &TextBox::edited, this, [this, box, &column, number](const QString& text) {
        const Game& game = model_.Document().Records();
        emit said(WithField(column, game, number, [&](const auto& field, const auto& record) {
            return MarkNumberBox(*box, JudgeNumberEntry(text.toStdString(), record, field));
        }));
    });
    return box;
}

void CellEditor::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    const TableColumn& column = model_.ColumnAt(index.column());
    WithField(column, model_.Document().Records(), model_.RecordAt(index.row()),
              [editor](const auto& field, const auto& record) { ShowField(*editor, field, record); });
}

void CellEditor::setModelData(QWidget* editor, QAbstractItemModel*, const QModelIndex& index) const
{
    const TableColumn& column = model_.ColumnAt(index.column());
    const TypedValue value = column.kind == RecordKind::Player ? TypedValueOf(*editor, *column.playerField)
                                                               : TypedValueOf(*editor, *column.teamField);
    model_.Type(index, value);
}
