// The yardstick for the editor's start: an empty Qt Widgets window, ended as
// soon as it has first been painted.
#include <QApplication>
#include <QWidget>
#include <cstdlib>

#include "first_paint.h"

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QWidget window;
    window.resize(640, 480);
    EndAtFirstPaint(window);
    window.show();
    return QApplication::exec();
}
