#include "forms/message_box.h"

#include <QApplication>

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

// The first of `candidates` that the box has.
QMessageBox::StandardButton FirstOf(QMessageBox::StandardButtons buttons,
                                    std::initializer_list<QMessageBox::StandardButton> candidates)
{
    for (QMessageBox::StandardButton button : candidates) {
        if (buttons.testFlag(button))
            return button;
    }
    return QMessageBox::Ok;
}

QMessageBox::StandardButton EscapeAnswer(QMessageBox::StandardButtons buttons)
{
    return FirstOf(buttons, {QMessageBox::Cancel, QMessageBox::No, QMessageBox::Ok});
}

QMessageBox::StandardButton ShowBox(const ShownMessage& message)
{
    QMessageBox box(message.icon, message.title, message.text, message.buttons, QApplication::activeWindow());
    box.setDefaultButton(FirstOf(message.buttons, {QMessageBox::Yes, QMessageBox::Ok}));
    box.setEscapeButton(EscapeAnswer(message.buttons));
    box.exec();
    QAbstractButton* clicked = box.clickedButton();
    return clicked ? box.standardButton(clicked) : EscapeAnswer(message.buttons);
}

}  // namespace

QMessageBox::StandardButton ShowMessage(QMessageBox::Icon icon, const QString& title, const QString& text,
                                        QMessageBox::StandardButtons buttons)
{
    Shown().push_back(ShownMessage{icon, title, text, buttons});
    const ShownMessage message = Shown().back();
    return Answerer() ? Answerer()(message) : ShowBox(message);
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
