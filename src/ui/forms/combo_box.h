#pragma once

#include <QComboBox>
#include <QString>

// A drop-down list as the windows use it: rows carry an integer beside their
// text, and choosing a row by its text runs the click handler at once, also
// when that row was chosen already. Clearing and adding run no handler.
class ComboBox : public QComboBox {
    Q_OBJECT
public:
    explicit ComboBox(QWidget* parent = nullptr);

    int ListIndex() const;                 // -1 when nothing is chosen
    int ListCount() const;
    QString List(int index) const;         // empty outside the list
    int ItemData(int index) const;         // 0 outside the list or when never set
    void SetItemData(int index, int value);
    void AddItem(const QString& text);
    void Clear();

    // Chooses the first row with exactly `text` and runs Click. False, with
    // the choice left as it was and no handler run, when no row has the text.
    bool SetText(const QString& text);

signals:
    // A user's pick, or SetText.
    void Click();
};
