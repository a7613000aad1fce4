#pragma once

#include <QLineEdit>
#include <functional>
#include <optional>

class QKeyEvent;

// A one-line text box. A key filter sees Enter, Backspace and each key that
// types text, and says whether it may pass; a refused key beeps and does
// nothing. A text rule says why the whole text a key or a paste would leave
// may not stand; such a change beeps, leaves the box as it was and is told
// by `refused`. Every other change is told by `edited`, but for the values
// the program shows with ShowText.
class TextBox : public QLineEdit {
    Q_OBJECT
public:
    using KeyFilter = std::function<bool(const QKeyEvent& key)>;
    using TextRule = std::function<std::optional<QString>(const QString& text)>;

    explicit TextBox(QWidget* parent = nullptr);

    void SetKeyFilter(KeyFilter filter);
    void SetTextRule(TextRule rule);

    // Shows a value the program holds, with its beginning in view.
    void ShowText(const QString& text);

signals:
    // The text changed to one the rule lets stand, by the user or by setText.
    void edited(const QString& text);
    void refused(const QString& why);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void RevertEdit(const QString& edited);

    KeyFilter keyFilter_;
    TextRule textRule_;
    QString lastAccepted_;
    bool reverting_ = false;
    bool showing_ = false;
};
