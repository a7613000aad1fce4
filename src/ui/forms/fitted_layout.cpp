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
    std::vector<QRect> pixels;
    for (const Placed& item : placed_) {
        const QRect& r = item.twips;
        pixels.push_back(TwipRect(Stretch(r.left(), factor), Stretch(r.top(), factor), Stretch(r.width(), factor),
                                  Stretch(r.height(), factor)));
    }
    // A control inside a group placed here stands where it would stand on the
    // area itself.
    for (std::size_t i = 0; i < placed_.size(); ++i) {
        QRect at = pixels[i];
        for (std::size_t group = 0; group < placed_.size(); ++group) {
            if (placed_[group].control == placed_[i].control->parentWidget())
                at.translate(-pixels[group].topLeft());
        }
        placed_[i].control->setGeometry(at);
    }
    area_->setFixedSize(TwipSize(Stretch(areaTwips_.width(), factor), Stretch(areaTwips_.height(), factor)));
}
