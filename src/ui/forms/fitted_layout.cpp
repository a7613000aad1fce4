#include "forms/fitted_layout.h"

#include <QWidget>
#include <algorithm>
#include <cmath>

#include "forms/twips.h"

namespace {

int Stretch(int twips, double factor)
{
    return static_cast<int>(std::lround(twips * factor));
}

}  // namespace

FittedLayout::FittedLayout(QWidget* area, QSize areaTwips) : area_(area), areaTwips_(areaTwips) {}

void FittedLayout::Apply()
{
    // A couple of pixels to spare, so a caption never touches its neighbour.
    constexpr int Slack = 4;
    double factor = 1.0;
    for (const Placed& item : placed_) {
        if (item.mustFit)
            factor = std::max(factor, double(item.control->sizeHint().width() + Slack) /
                                          Twips(item.twips.width()));
    }
    for (const Placed& item : placed_) {
        const QRect& r = item.twips;
        item.control->setGeometry(TwipRect(Stretch(r.left(), factor), Stretch(r.top(), factor),
                                           Stretch(r.width(), factor), Stretch(r.height(), factor)));
    }
    area_->setFixedSize(TwipSize(Stretch(areaTwips_.width(), factor), Stretch(areaTwips_.height(), factor)));
}
