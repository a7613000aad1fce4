#pragma once

#include <QDialog>
#include <QStringList>
#include <functional>

class QLabel;
class QLineEdit;
class QListWidget;

// A list to choose from, with a value box beside it when the choice needs
// one: Set Value (a field and its value) and Move Selected to Team (a team).
// The list has the focus and chooses an entry as its name is typed; Tab
// goes to the value, Enter applies. `apply` is given the chosen row and the
// value and says why it could not be done (empty when it was); the dialog
// then stays open with the reason under the list.
class ChoiceDialog : public QDialog {
    Q_OBJECT
public:
    using Apply = std::function<QString(int row, const QString& value)>;

    ChoiceDialog(const QString& title, const QString& listCaption, const QStringList& entries, int chosen,
                 const QString& valueCaption, Apply apply, QWidget* parent = nullptr);

    void accept() override;

    QListWidget* choices = nullptr;
    QLineEdit* valueBox = nullptr;  // none when the choice needs no value
    QLabel* reason = nullptr;

private:
    Apply apply_;
};
