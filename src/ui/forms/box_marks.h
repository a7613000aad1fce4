#pragma once

#include <QString>

class QLineEdit;

// How a box shows that its field did not take its text as typed: a red tint
// when the field refused it, a yellow one when it took an unusual value. The
// tooltip says why; a plain box has neither.
enum class BoxMark { Plain, Unusual, Refused };

void MarkBox(QLineEdit& box, BoxMark mark, const QString& why);
BoxMark MarkOf(const QLineEdit& box);
