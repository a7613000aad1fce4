#pragma once

#include <QStyledItemDelegate>

class RecordTableModel;

// Edits a cell with the box the main window has for its field: a list of
// the field's words for a code, a text box for a name or a number. A name
// box refuses what the files cannot carry, a number box is tinted by what
// its field makes of the text, and `said` tells why, for the status line.
// What the box holds goes to the record as one step when the edit ends.
class CellEditor : public QStyledItemDelegate {
    Q_OBJECT
public:
    explicit CellEditor(RecordTableModel& model, QObject* parent = nullptr);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

signals:
    void said(const QString& text) const;

private:
    RecordTableModel& model_;
};
