#pragma once

#include <QRect>
#include <vector>

class QWidget;

// Places controls by the rectangles of the window's design, then stretches
// the whole arrangement alike until the widest caption or list entry fits its
// control. The toolkit's fonts are wider than those the design was drawn for,
// and stretching everything by one factor keeps the columns and rows in line.
class FittedLayout {
public:
    // `area` is given the design's size, stretched as its controls are.
    FittedLayout(QWidget* area, QSize designed);

    // `mustFit`: the control's own preferred width (caption, widest entry)
    // must fit the width it is given. Rectangles are those of the area, also
    // for a control inside a group of controls that is placed here too.
    template <typename Control>
    Control* Put(Control* control, QRect designed, bool mustFit = false)
    {
        placed_.push_back({control, designed, mustFit});
        return control;
    }

    // Works out the factor and places everything; fonts must be set by then.
    void Apply();

private:
    struct Placed {
        QWidget* control;
        QRect designed;
        bool mustFit;
    };
    QWidget* area_;
    QSize designed_;
    std::vector<Placed> placed_;
};
