#include "forms/wheel_guard.h"

#include <QEvent>
#include <QWidget>

namespace {

class WheelGuard : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::Wheel || static_cast<QWidget*>(watched)->hasFocus())
            return false;
        // Left unaccepted, the wheel goes on to the parent.
        event->ignore();
        return true;
    }
};

}  // namespace

void IgnoreWheelUnlessFocused(QWidget& control)
{
    // A combo box would otherwise take the focus from the wheel itself.
    control.setFocusPolicy(Qt::StrongFocus);
    control.installEventFilter(new WheelGuard(&control));
}
