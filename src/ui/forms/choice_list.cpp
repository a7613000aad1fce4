#include "forms/choice_list.h"

#include <QKeyEvent>
#include <QMouseEvent>

ChoiceList::ChoiceList(QWidget* parent) : QListWidget(parent)
{
    setSelectionMode(QAbstractItemView::SingleSelection);
    // A press that changed the row has already chosen it; a click on the row
    // that was chosen before chooses it again on release.
    connect(this, &QListWidget::itemClicked, this, [this](QListWidgetItem* clicked) {
        if (!pressChangedRow_ && row(clicked) == ChosenRow())
            emit rowChosen(ChosenRow());
    });
}

int ChoiceList::ChosenRow() const
{
    const int current = currentRow();
    return current >= 0 && item(current)->isSelected() ? current : -1;
}

int ChoiceList::NumberAt(int row) const
{
    return row >= 0 && row < count() ? item(row)->data(Qt::UserRole).toInt() : 0;
}

int ChoiceList::RowOf(int number) const
{
    for (int row = 0; row < count(); ++row) {
        if (NumberAt(row) == number)
            return row;
    }
    return -1;
}

void ChoiceList::AddRow(const QString& text, int number)
{
    auto* row = new QListWidgetItem(text, this);
    row->setData(Qt::UserRole, number);
}

QItemSelectionModel::SelectionFlags ChoiceList::selectionCommand(const QModelIndex& index, const QEvent*) const
{
    // Exactly one row stays chosen: no Ctrl+click to unchoose it, no
    // clearing by a click below the last row.
    return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

void ChoiceList::mousePressEvent(QMouseEvent* event)
{
    const int before = ChosenRow();
    QListWidget::mousePressEvent(event);
    pressChangedRow_ = ChosenRow() != before;
    if (pressChangedRow_)
        emit rowChosen(ChosenRow());
}

void ChoiceList::mouseMoveEvent(QMouseEvent* event)
{
    const int before = ChosenRow();
    QListWidget::mouseMoveEvent(event);
    if (ChosenRow() != before) {
        pressChangedRow_ = true;
        emit rowChosen(ChosenRow());
    }
}

void ChoiceList::keyPressEvent(QKeyEvent* event)
{
    const int before = ChosenRow();
    QListWidget::keyPressEvent(event);
    if (ChosenRow() != before && ChosenRow() >= 0)
        emit rowChosen(ChosenRow());
}
