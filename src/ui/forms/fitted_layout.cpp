#include "forms/fitted_layout.h"

#include <QWidget>
#include <algorithm>
#include <cmath>

#include "forms/design_scale.h"

namespace {

int Stretch(int designed, double factor)
{
    return static_cast<int>(std::lround(designed * factor));
}

QRect Stretch(const QRect& designed, double factor)
{
    return QRect(Stretch(designed.left(), factor), Stretch(designed.top(), factor), Stretch(designed.width(), factor),
                 Stretch(designed.height(), factor));
}

}  // namespace

FittedLayout::FittedLayout(QWidget* area, QSize designed) : area_(area), designed_(designed) {}

void FittedLayout::Apply()
{
    // A couple of pixels to spare, so a caption never touches its neighbour.
    constexpr int Slack = 4;
    double factor = 1.0;
    for (const Placed& item : placed_) {
        if (item.mustFit)
            factor = std::max(factor,
                              double(item.control->sizeHint().width() + Slack) / DesignPixels(item.designed.width()));
    }
    std::vector<QRect> pixels;
    for (const Placed& item : placed_)
        pixels.push_back(DesignRect(Stretch(item.designed, factor)));
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
    area_->setFixedSize(DesignSize(QSize(Stretch(designed_.width(), factor), Stretch(designed_.height(), factor))));
}
