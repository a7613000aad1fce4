#include "forms/list_box.h"

#include <QKeyEvent>
#include <QMouseEvent>

ListBox::ListBox(QWidget* parent)
    : QListWidget(parent)
{
    setSelectionMode(QAbstractItemView::SingleSelection);
    // A press that changed the row has already clicked; a click on the row
    // that was chosen before clicks on release.
    connect(this, &QListWidget::itemClicked, this, [this](QListWidgetItem* clicked) {
        if (!pressChangedRow_ && row(clicked) == ListIndex())
            emit Click();
    });
}

int ListBox::ListIndex() const
{
    const int current = currentRow();
    return current >= 0 && item(current)->isSelected() ? current : -1;
}

int ListBox::ListCount() const
{
    return count();
}

QString ListBox::List(int index) const
{
    return index >= 0 && index < count() ? item(index)->text() : QString();
}

int ListBox::ItemData(int index) const
{
    return index >= 0 && index < count() ? item(index)->data(Qt::UserRole).toInt() : 0;
}

void ListBox::SetItemData(int index, int value)
{
    if (index >= 0 && index < count())
        item(index)->setData(Qt::UserRole, value);
}

void ListBox::AddItem(const QString& text)
{
    addItem(text);
}

void ListBox::Clear()
{
    clear();
}

bool ListBox::SetText(const QString& text)
{
    for (int row = 0; row < count(); ++row) {
        if (item(row)->text() == text) {
            setCurrentRow(row);
            scrollToItem(item(row));
            emit Click();
            return true;
        }
    }
    return false;
}

QItemSelectionModel::SelectionFlags ListBox::selectionCommand(const QModelIndex& index,
                                                              const QEvent*) const
{
    // Exactly one row stays chosen: no Ctrl+click to unchoose it, no
    // clearing by a click below the last row.
    return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

void ListBox::mousePressEvent(QMouseEvent* event)
{
    const int before = ListIndex();
    QListWidget::mousePressEvent(event);
    pressChangedRow_ = ListIndex() != before;
    if (pressChangedRow_)
        emit Click();
}

void ListBox::mouseMoveEvent(QMouseEvent* event)
{
    const int before = ListIndex();
    QListWidget::mouseMoveEvent(event);
    if (ListIndex() != before) {
        pressChangedRow_ = true;
        emit Click();
    }
}

void ListBox::keyPressEvent(QKeyEvent* event)
{
    const int before = ListIndex();
    QListWidget::keyPressEvent(event);
    if (ListIndex() != before && ListIndex() >= 0)
        emit Click();
}
