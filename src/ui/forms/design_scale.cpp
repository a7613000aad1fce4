#include "forms/design_scale.h"

#include <QApplication>
#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

namespace {

constexpr double TwipsPerPixel = 15.0;

// The design's 8 point MS Sans Serif has lines 13 pixels high on a 96 dpi
// screen. A larger toolkit font stretches every window alike; a smaller one
// keeps them as drawn.
double FontScale()
{
    static const double scale = std::max(1.0, QFontMetricsF(QApplication::font()).height() / 13.0);
    return scale;
}

}  // namespace

int DesignPixels(int designed)
{
    return static_cast<int>(std::lround(designed * FontScale() / TwipsPerPixel));
}

QRect DesignRect(const QRect& designed)
{
    const int x = DesignPixels(designed.left());
    const int y = DesignPixels(designed.top());
    return QRect(x, y, DesignPixels(designed.left() + designed.width()) - x,
                 DesignPixels(designed.top() + designed.height()) - y);
}

QSize DesignSize(const QSize& designed)
{
    return QSize(DesignPixels(designed.width()), DesignPixels(designed.height()));
}
