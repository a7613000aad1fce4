#include "forms/box_marks.h"

#include <QLineEdit>
#include <QVariant>

namespace {

constexpr char MarkProperty[] = "boxMark";

}  // namespace

QColor MarkTint(BoxMark mark)
{
    switch (mark) {
    case BoxMark::Refused:
        return QColor(0xff, 0xc8, 0xc8);
    case BoxMark::Unusual:
        return QColor(0xff, 0xf0, 0xa8);
    case BoxMark::Plain:
        break;
    }
    return {};
}

void MarkBox(QLineEdit& box, BoxMark mark, const QString& why)
{
    // Each mark has reasons of its own and a plain box none, so the same
    // reason is the same mark; asking for the mark itself costs far more.
    if (box.toolTip() == why)
        return;
    box.setProperty(MarkProperty, int(mark));
    if (mark == BoxMark::Plain) {
        box.setPalette(QPalette());   // the window's own colours again
    } else {
        QPalette palette = box.palette();
        palette.setColor(QPalette::Base, MarkTint(mark));
        box.setPalette(palette);
    }
    box.setToolTip(why);
}

BoxMark MarkOf(const QLineEdit& box)
{
    return BoxMark(box.property(MarkProperty).toInt());
}

QString MarkNumberBox(QLineEdit& box, const NumberEntry& entry)
{
    const BoxMark mark = entry.kind == NumberEntry::Kind::Refused  ? BoxMark::Refused
                         : entry.kind == NumberEntry::Kind::Unusual ? BoxMark::Unusual
                                                                    : BoxMark::Plain;
    const QString why = QString::fromStdString(entry.message);
    MarkBox(box, mark, why);
    return why;
}
