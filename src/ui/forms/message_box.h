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

// For tests: every box shown, and who answers instead of a person.
struct ShownMessage {
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QString title;
    QString text;
    QMessageBox::StandardButtons buttons;
};
using MessageAnswerer = std::function<QMessageBox::StandardButton(const ShownMessage&)>;
void SetMessageAnswerer(MessageAnswerer answerer);   // empty: a real box
const std::vector<ShownMessage>& ShownMessages();
void ClearShownMessages();
