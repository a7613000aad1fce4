// The editor's own start, as main.cpp runs it, on a full-size game, ended at
// the first paint of the main window:
//   editor_start <game directory>
// The game directory is filled with a full-size game first if it holds none,
// so the first run also makes the files that later runs and the idle figure use.
#include <QApplication>
#include <QFile>
#include <filesystem>

#include "data/setting_file.h"
#include "first_paint.h"
#include "full_size_game.h"
#include "editor/editor.h"
#include "forms/editor_style.h"

int main(int argc, char** argv)
{
    if (argc < 2)
        return 2;
    const std::filesystem::path folder = argv[1];
    if (!std::filesystem::exists(folder / "players.dat"))
        FullSizeGameIn(folder);
    const std::string setting = (folder / "editor.dat").string();
    if (!std::filesystem::exists(setting))
        WriteSettingFile(setting, folder.string());

    QApplication app(argc, argv);
    EditorStyle::Install();
    const QString settingPath = QFile::decodeName(setting.c_str());
    Editor editor(SettingPlaces{settingPath, settingPath});
    if (!editor.Start())
        return 1;
    EndAtFirstPaint(editor.Window());
    editor.Window().show();
    return QApplication::exec();
}
