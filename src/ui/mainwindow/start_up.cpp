#include <QFile>

#include "data/players_file.h"
#include "data/setting_file.h"
#include "data/teams_file.h"
#include "mainwindow/main_window.h"

bool MainWindow::Start()
{
    game_.GameDirectory = ReadSettingFile(QFile::encodeName(places_.PathToRead()).toStdString());
    if (game_.GameDirectory.empty() && !ChooseFirstDirectory())
        return false;
    if (game_.GameDirectory.empty())
        return false;

    setWindowTitle(QStringLiteral("KOLTA editor (%1)")
                       .arg(QFile::decodeName(QByteArray::fromStdString(game_.GameDirectory))));
    SetGameDirectory(game_, game_.GameDirectory);
    // A missing or damaged file is no reason to stop: the window shows what
    // could be read, and another directory can be chosen from the menu.
    ReadPlayersFile(game_);
    ReadTeamsFile(game_);
    ShowFirstEntries();
    return true;
}
