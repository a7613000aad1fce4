#include "forms/twips.h"

#include <QApplication>
#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

namespace {

// The layouts were drawn for 8 point MS Sans Serif, whose lines are 13
// pixels high on a 96 dpi screen. A larger toolkit font stretches them all
// alike so that every caption still fits; a smaller one keeps them as drawn.
double Scale()
{
    static const double scale = std::max(1.0, QFontMetricsF(QApplication::font()).height() / 13.0);
    return scale;
}

}  // namespace

int Twips(int twips)
{
    return static_cast<int>(std::lround(twips * Scale() / 15.0));
}

// Edges are rounded rather than sizes, so controls that touch in the layout
// still touch after scaling.
QRect TwipRect(int left, int top, int width, int height)
{
    const int x = Twips(left);
    const int y = Twips(top);
    return QRect(x, y, Twips(left + width) - x, Twips(top + height) - y);
}

QSize TwipSize(int width, int height)
{
    return QSize(Twips(width), Twips(height));
}
