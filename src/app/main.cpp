#include <QApplication>
#include <QTextStream>
#include <memory>

#include "data/game.h"
#include "mainwindow/main_window.h"
#include "options/shipped_files.h"

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("kolta-editor"));

    // A packager's check that an installed copy finds its help files.
    if (QApplication::arguments().contains(QStringLiteral("--where-help"))) {
        QTextStream out(stdout);
        return ReportShippedFiles(out) ? 0 : 1;
    }

    auto game = std::make_unique<Game>();
    MainWindow window(*game, SettingPlaces::ForThisProgram());
    if (!window.Start())
        return 0;
    window.show();
    return QApplication::exec();
}
