// A floor for the editor's start that shows text: a window with one line in
// Qt's default font, ended as soon as it has first been painted. Beside the
// empty window it shows what Qt's fonts cost any program before its first
// paint: fontconfig, FreeType and HarfBuzz, which an empty window never loads.
#include <QApplication>
#include <QLabel>
#include <QVBoxLayout>
#include <QWidget>

#include "first_paint.h"

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QWidget window;
    window.resize(640, 480);
    (new QVBoxLayout(&window))->addWidget(new QLabel(QStringLiteral("KOLTA editor")));
    EndAtFirstPaint(window);
    window.show();
    return QApplication::exec();
}
