#pragma once

#include <QString>
#include <functional>
#include <vector>

// Flags and answers of the message boxes, as the windows' texts name them.
inline constexpr int MbOkOnly = 0;
inline constexpr int MbYesNoCancel = 3;
inline constexpr int MbYesNo = 4;
inline constexpr int MbCritical = 16;
inline constexpr int MbExclamation = 48;
inline constexpr int MbInformation = 64;

inline constexpr int IdOk = 1;
inline constexpr int IdCancel = 2;
inline constexpr int IdYes = 6;
inline constexpr int IdNo = 7;

// Shows a modal message box over the active window and returns the button
// pressed: IdOk, IdYes, IdNo or IdCancel (closing a box with Cancel gives
// IdCancel; a box without Cancel gives its only or its No answer).
int MsgBox(const QString& text, int flags, const QString& title);

// For tests: every box shown, and who answers instead of a person.
struct ShownMessage {
    QString text;
    int flags = 0;
    QString title;
};
using MessageAnswerer = std::function<int(const ShownMessage&)>;
void SetMessageAnswerer(MessageAnswerer answerer);   // empty: a real box
const std::vector<ShownMessage>& ShownMessages();
void ClearShownMessages();
