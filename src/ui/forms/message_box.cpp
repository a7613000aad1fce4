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
    for (const MessageChoice& choice : message.choices)
        box.button(choice.button)->setText(choice.caption);
    box.setDefaultButton(message.defaultButton);
    box.setEscapeButton(EscapeAnswer(message.buttons));
    box.exec();
    QAbstractButton* clicked = box.clickedButton();
    return clicked ? box.standardButton(clicked) : EscapeAnswer(message.buttons);
}

QMessageBox::StandardButton Show(ShownMessage message)
{
    Shown().push_back(message);
    return Answerer() ? Answerer()(message) : ShowBox(message);
}

}  // namespace

QMessageBox::StandardButton ShowMessage(QMessageBox::Icon icon, const QString& title, const QString& text,
                                        QMessageBox::StandardButtons buttons)
{
    return Show({icon, title, text, buttons, FirstOf(buttons, {QMessageBox::Yes, QMessageBox::Ok}), {}});
}

QMessageBox::StandardButton AskMessage(QMessageBox::Icon icon, const QString& title, const QString& text,
                                       const std::vector<MessageChoice>& choices,
                                       QMessageBox::StandardButton defaultButton)
{
    QMessageBox::StandardButtons buttons;
    for (const MessageChoice& choice : choices)
        buttons |= choice.button;
    return Show({icon, title, text, buttons, defaultButton, choices});
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
