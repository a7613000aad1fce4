#pragma once

#include <QLineEdit>
#include <functional>
#include <optional>

class QKeyEvent;

// A one-line text box. A key filter sees Enter, Backspace and each key that
// types text, and says whether it may pass; a refused key beeps and does
// nothing. A text rule says why the whole text a key or a paste would leave
// may not stand; such a change beeps, leaves the box as it was and is told
// by `refused`.
class TextBox : public QLineEdit {
    Q_OBJECT
public:
    using KeyFilter = std::function<bool(const QKeyEvent& key)>;
    using TextRule = std::function<std::optional<QString>(const QString& text)>;

    explicit TextBox(QWidget* parent = nullptr);

    void SetKeyFilter(KeyFilter filter);
    void SetTextRule(TextRule rule);

signals:
    void refused(const QString& why);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void RevertEdit(const QString& edited);

    KeyFilter keyFilter_;
    TextRule textRule_;
    QString lastAccepted_;
    bool reverting_ = false;
};
