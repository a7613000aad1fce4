#pragma once

#include <QListWidget>

// A list of which one row at a time is chosen, such as a squad or the
// results of a search. Each row carries a record's number under Qt::UserRole.
// rowChosen comes when the user picks a row with the mouse or the keys, also
// the row already chosen; the program's own changes bring no signal.
class ChoiceList : public QListWidget {
    Q_OBJECT
public:
    explicit ChoiceList(QWidget* parent = nullptr);

    // The chosen row, -1 when none is.
    int ChosenRow() const;
    // The number the row carries, 0 outside the list.
    int NumberAt(int row) const;
    // The first row that carries `number`, -1 when none does.
    int RowOf(int number) const;
    // Adds a row for the record `number`, shown as `text`.
    void AddRow(const QString& text, int number);

signals:
    void rowChosen(int row);

protected:
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool pressChangedRow_ = false;
};
