#include "forms/text_box.h"

#include <QKeyEvent>
#include <algorithm>

#include "forms/beep.h"

namespace {

// Keys that type text, as opposed to commands (arrows, Tab, shortcuts).
// AltGr arrives as Ctrl+Alt on some systems and still types.
bool TypesText(const QKeyEvent& event)
{
    const Qt::KeyboardModifiers mods = event.modifiers();
    const bool altGr = (mods & Qt::ControlModifier) && (mods & Qt::AltModifier);
    if (!altGr && (mods & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)))
        return false;
    const QString text = event.text();
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar c) { return c.isPrint(); });
}

// Enter and Backspace, unless they come with a command key.
bool IsEditKey(const QKeyEvent& event)
{
    const bool command = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const int key = event.key();
    return !command && (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Backspace);
}

}  // namespace

TextBox::TextBox(QWidget* parent)
    : QLineEdit(parent)
{
    // Every change a person makes, whether typed, pasted, dropped or undone,
    // comes through textEdited; the program's own setText does not.
    connect(this, &QLineEdit::textEdited, this, [this](const QString& edited) {
        if (reverting_ || !textRule_)
            return;
        if (const std::optional<QString> why = textRule_(edited)) {
            RevertEdit(edited);
            Beep();
            emit refused(*why);
        }
    });
    // A refused edit is taken back by the handler above, whichever of the
    // two signals comes first; here it is only left untold.
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (reverting_ || text() == lastAccepted_ || (textRule_ && textRule_(text())))
            return;
        lastAccepted_ = text();
        if (!showing_)
            emit edited(lastAccepted_);
    });
}

void TextBox::SetKeyFilter(KeyFilter filter)
{
    keyFilter_ = std::move(filter);
}

void TextBox::SetTextRule(TextRule rule)
{
    textRule_ = std::move(rule);
    lastAccepted_ = text();
}

void TextBox::ShowText(const QString& text)
{
    showing_ = true;
    setText(text);
    showing_ = false;
    lastAccepted_ = text;
    setCursorPosition(0);
}

void TextBox::RevertEdit(const QString& edited)
{
    // Put the caret back where the edit began: an insertion or deletion moved
    // it by the change in length.
    const qsizetype caret = cursorPosition() - (edited.size() - lastAccepted_.size());
    reverting_ = true;
    setText(lastAccepted_);
    reverting_ = false;
    setCursorPosition(static_cast<int>(std::clamp<qsizetype>(caret, 0, lastAccepted_.size())));
}

void TextBox::keyPressEvent(QKeyEvent* event)
{
    if (keyFilter_ && !isReadOnly() && (IsEditKey(*event) || TypesText(*event)) && !keyFilter_(*event)) {
        event->accept();
        Beep();
        return;
    }
    QLineEdit::keyPressEvent(event);
}
