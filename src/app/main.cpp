#include <QApplication>
#include <memory>

#include "data/game.h"
#include "mainwindow/main_window.h"

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("kolta-editor"));

    auto game = std::make_unique<Game>();
    MainWindow window(*game, SettingPlaces::ForThisProgram());
    if (!window.Start())
        return 0;
    window.show();
    return QApplication::exec();
}
