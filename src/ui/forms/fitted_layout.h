#pragma once

#include <QRect>
#include <vector>

class QWidget;

// Places controls by their rectangles in twips, then stretches the whole
// arrangement alike until the widest caption or list entry fits its control.
// The toolkit's fonts are wider than those the layout was drawn for, and
// stretching everything by one factor keeps the columns and rows in line.
class FittedLayout {
public:
    explicit FittedLayout(QWidget* area, QSize areaTwips);

    // `mustFit`: the control's own preferred width (caption, widest entry)
    // must fit the width it is given. Rectangles are those of the area, also
    // for a control inside a group of controls that is placed here too.
    template <typename Control>
    Control* Put(Control* control, QRect twips, bool mustFit = false)
    {
        placed_.push_back({control, twips, mustFit});
        return control;
    }

    // Works out the factor and places everything; fonts must be set by then.
    void Apply();

private:
    struct Placed {
        QWidget* control;
        QRect twips;
        bool mustFit;
    };
    QWidget* area_;
    QSize areaTwips_;
    std::vector<Placed> placed_;
};
