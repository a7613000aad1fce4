#include "forms/text_box.h"

#include "data/cp1252.h"
#include "forms/beep.h"

#include <QKeyEvent>
#include <algorithm>

namespace {

// The code a typed character has in the game's code page, as the key filters
// expect it; a character outside the code page keeps its Unicode value, which
// no filter takes for a letter or digit.
int KeyCode(QChar c)
{
    bool ok = false;
    const std::string byte = EncodeCp1252(std::u16string(1, c.unicode()), ok);
    return ok ? static_cast<unsigned char>(byte.front()) : c.unicode();
}

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

}  // namespace

TextBox::TextBox(QWidget* parent)
    : QLineEdit(parent)
{
    // Every change a person makes, whether typed, pasted, dropped or undone,
    // comes through textEdited; the program's own setText does not.
    connect(this, &QLineEdit::textEdited, this, [this](const QString& edited) {
        if (reverting_)
            return;
        if (textRule_ && !textRule_(edited)) {
            RevertEdit(edited);
            Beep();
            return;
        }
        lastAccepted_ = edited;
    });
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (!reverting_)
            lastAccepted_ = text();
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
    if (!keyFilter_ || isReadOnly()) {
        QLineEdit::keyPressEvent(event);
        return;
    }

    const int key = event->key();
    const bool command = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    int code = 0;
    if (!command && (key == Qt::Key_Return || key == Qt::Key_Enter))
        code = 13;
    else if (!command && key == Qt::Key_Backspace)
        code = 8;
    else if (!TypesText(*event)) {
        QLineEdit::keyPressEvent(event);
        return;
    }

    if (code != 0) {
        keyFilter_(code);
        if (code == 0) {
            event->accept();
            Beep();
            return;
        }
        QLineEdit::keyPressEvent(event);
        return;
    }

    // A key may type more than one character (dead keys, input helpers).
    QString typed;
    bool changed = false;
    for (QChar c : event->text()) {
        const int original = KeyCode(c);
        int filtered = original;
        keyFilter_(filtered);
        if (filtered == 0) {
            event->accept();
            Beep();
            return;
        }
        if (filtered != original) {
            changed = true;
            typed += QChar(filtered < 256 ? Cp1252ToUnicode(static_cast<unsigned char>(filtered))
                                          : static_cast<char16_t>(filtered));
        } else {
            typed += c;
        }
    }
    if (changed) {
        event->accept();
        insert(typed);
    } else {
        QLineEdit::keyPressEvent(event);
    }
}
