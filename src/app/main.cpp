#include <QApplication>
#include <QTextStream>
#include <memory>

#include "data/game.h"
#include "mainwindow/main_form.h"
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
    MainForm form(*game, SettingPlaces::ForThisProgram());
    if (!form.Form_Load())
        return 0;
    form.show();
    return QApplication::exec();
}
