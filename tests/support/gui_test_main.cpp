#include <QApplication>
#include <QByteArray>

#include <gtest/gtest.h>

#include "forms/editor_style.h"
#include "support/qt_path.h"
#include "support/scratch_folder.h"

int main(int argc, char** argv)
{
    // The windows under test never reach a screen, nor the settings of the
    // user who runs them: what Qt keeps for itself (a file dialog's last
    // folder) goes to this program's own scratch folder. The platform is set
    // here rather than by the caller, since Wine hands a Windows program no
    // QT_ variable.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const ScratchFolder home;
    for (const char* place : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
        qputenv(place, QtPath(home / place).toLocal8Bit());
    QApplication app(argc, argv);
    EditorStyle::Install();
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
