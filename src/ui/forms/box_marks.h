#pragma once

#include <QLineEdit>
#include <QString>

#include "data/number_entry.h"

// How a box shows that its field did not take its text as typed: a red tint
// when the field refused it, a yellow one when it took an unusual value. The
// tooltip says why; a plain box has neither.
enum class BoxMark { Plain, Unusual, Refused };

// The tint of a mark; none for a plain box.
QColor MarkTint(BoxMark mark);

void MarkBox(QLineEdit& box, BoxMark mark, const QString& why);
BoxMark MarkOf(const QLineEdit& box);

// Marks a number box by what its field made of its text, once the text has
// been carried into `record`, and gives what the mark says (empty if plain).
QString MarkNumberBox(QLineEdit& box, const NumberEntry& entry);

template <class Record>
QString MarkNumberBox(QLineEdit& box, const Field<Record>& field, const Record& record)
{
    return MarkNumberBox(box, JudgeNumberEntry(box.text().toStdString(), record, field));
}
