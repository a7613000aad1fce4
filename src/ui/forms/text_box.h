#pragma once

#include <QLineEdit>
#include <functional>

// A one-line text box. A key filter sees each typed character as its ASCII
// code (Enter is 13, Backspace 8) and may set it to 0 to refuse the key. A
// text rule judges the whole text a key or a paste would leave; a refused
// change beeps and leaves the box as it was.
class TextBox : public QLineEdit {
    Q_OBJECT
public:
    using KeyFilter = std::function<void(int& keyAscii)>;
    using TextRule = std::function<bool(const QString& text)>;

    explicit TextBox(QWidget* parent = nullptr);

    QString Text() const { return text(); }
    void SetText(const QString& value) { setText(value); }
    void SetKeyFilter(KeyFilter filter);
    void SetTextRule(TextRule rule);
    void SetLocked(bool locked) { setReadOnly(locked); }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void RevertEdit(const QString& edited);

    KeyFilter keyFilter_;
    TextRule textRule_;
    QString lastAccepted_;
    bool reverting_ = false;
};
