#include <QApplication>
#include <memory>

#include "data/game.h"
#include "mainwindow/main_form.h"

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("kolta-editor"));

    auto game = std::make_unique<Game>();
    MainForm form(*game, SettingPlaces::ForThisProgram());
    if (!form.Form_Load())
        return 0;
    form.show();
    return QApplication::exec();
}
