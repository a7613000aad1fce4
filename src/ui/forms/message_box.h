#pragma once

#include <QMessageBox>
#include <QString>
#include <functional>
#include <vector>

// Shows a modal message box over the active window and gives the button
// pressed. Yes, or else OK, is the default; Escape and the close box answer
// Cancel where there is one, otherwise No, otherwise OK.
QMessageBox::StandardButton ShowMessage(QMessageBox::Icon icon, const QString& title, const QString& text,
                                        QMessageBox::StandardButtons buttons = QMessageBox::Ok);

// One button of a question that says what it does: the standard button it
// answers as, with its own caption.
struct MessageChoice {
    QMessageBox::StandardButton button;
    QString caption;
};
// Asks with buttons that name what they do; Enter answers `defaultButton`.
QMessageBox::StandardButton AskMessage(QMessageBox::Icon icon, const QString& title, const QString& text,
                                       const std::vector<MessageChoice>& choices,
                                       QMessageBox::StandardButton defaultButton);

// For tests: every box shown, and who answers instead of a person.
struct ShownMessage {
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QString title;
    QString text;
    QMessageBox::StandardButtons buttons;
    QMessageBox::StandardButton defaultButton = QMessageBox::NoButton;
    std::vector<MessageChoice> choices;   // the captions of a question that has its own
};
using MessageAnswerer = std::function<QMessageBox::StandardButton(const ShownMessage&)>;
void SetMessageAnswerer(MessageAnswerer answerer);   // empty: a real box
const std::vector<ShownMessage>& ShownMessages();
void ClearShownMessages();
