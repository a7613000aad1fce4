#include "forms/first_paint.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>

namespace {

class FirstPaintWatch : public QObject {
public:
    FirstPaintWatch(QWidget& window, std::function<void()> work) : QObject(&window), work_(std::move(work))
    {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            watched->removeEventFilter(this);
            QTimer::singleShot(0, watched, std::move(work_));
            deleteLater();
        }
        return false;
    }

private:
    std::function<void()> work_;
};

}  // namespace

void AfterFirstPaint(QWidget& window, std::function<void()> work)
{
    new FirstPaintWatch(window, std::move(work));
}
