#include "forms/message_box.h"

#include <QApplication>
#include <QMessageBox>

namespace {

MessageAnswerer& Answerer()
{
    static MessageAnswerer answerer;
    return answerer;
}

std::vector<ShownMessage>& Shown()
{
    static std::vector<ShownMessage> shown;
    return shown;
}

QMessageBox::Icon IconFor(int flags)
{
    switch (flags & 0x70) {
    case MbCritical:
        return QMessageBox::Critical;
    case 32:
        return QMessageBox::Question;
    case MbExclamation:
        return QMessageBox::Warning;
    case MbInformation:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

// Buttons in the order they stand on the box; the first is the default.
QList<QMessageBox::StandardButton> ButtonsFor(int flags)
{
    switch (flags & 7) {
    case MbYesNoCancel:
        return {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel};
    case MbYesNo:
        return {QMessageBox::Yes, QMessageBox::No};
    default:
        return {QMessageBox::Ok};
    }
}

int Answer(QMessageBox::StandardButton button)
{
    switch (button) {
    case QMessageBox::Yes:
        return IdYes;
    case QMessageBox::No:
        return IdNo;
    case QMessageBox::Cancel:
        return IdCancel;
    default:
        return IdOk;
    }
}

int ShowBox(const ShownMessage& message)
{
    QMessageBox box(IconFor(message.flags), message.title, message.text, QMessageBox::NoButton,
                    QApplication::activeWindow());
    const QList<QMessageBox::StandardButton> buttons = ButtonsFor(message.flags);
    for (QMessageBox::StandardButton button : buttons)
        box.addButton(button);
    box.setDefaultButton(buttons.front());
    // Escape answers Cancel where there is one, otherwise No, otherwise OK.
    box.setEscapeButton(buttons.back());
    box.exec();
    QAbstractButton* clicked = box.clickedButton();
    return Answer(clicked ? box.standardButton(clicked) : buttons.back());
}

}  // namespace

int MsgBox(const QString& text, int flags, const QString& title)
{
    Shown().push_back(ShownMessage{text, flags, title});
    const ShownMessage& message = Shown().back();
    if (Answerer())
        return Answerer()(ShownMessage(message));
    return ShowBox(ShownMessage(message));
}

void SetMessageAnswerer(MessageAnswerer answerer)
{
    Answerer() = std::move(answerer);
}

const std::vector<ShownMessage>& ShownMessages()
{
    return Shown();
}

void ClearShownMessages()
{
    Shown().clear();
}
