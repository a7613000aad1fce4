#pragma once

#include <QListWidget>
#include <QString>

// A single-choice list with the same conventions as ComboBox: item data on
// rows, selection by text that always runs Click, clearing and adding that
// run nothing.
class ListBox : public QListWidget {
    Q_OBJECT
public:
    explicit ListBox(QWidget* parent = nullptr);

    int ListIndex() const;                 // -1 when nothing is chosen
    int ListCount() const;
    QString List(int index) const;         // empty outside the list
    int ItemData(int index) const;
    void SetItemData(int index, int value);
    void AddItem(const QString& text);
    void Clear();
    bool SetText(const QString& text);

signals:
    // A user's pick (mouse or keys), or SetText.
    void Click();

protected:
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool pressChangedRow_ = false;
};
