#include <QApplication>
#include <QTextStream>

#include "editor/editor.h"
#include "forms/editor_style.h"
#include "options/shipped_files.h"

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("kolta-editor"));
    EditorStyle::Install();

    // A packager's check that an installed copy finds its help files.
    if (QApplication::arguments().contains(QStringLiteral("--where-help"))) {
        QTextStream out(stdout);
        return ReportShippedFiles(out) ? 0 : 1;
    }

    Editor editor(SettingPlaces::ForThisProgram());
    if (!editor.Start())
        return 0;
    editor.Window().show();
    return QApplication::exec();
}
