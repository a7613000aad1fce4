
#include "data/load_game.h"
#include "data/setting_file.h"
#include "forms/message_box.h"
#include "mainwindow/main_form.h"

bool MainForm::Form_Load()
{
    game.GameDirectory = ReadSettingFile(places.PathToRead().toStdString());
    if (game.GameDirectory.empty() && !ChooseFirstDirectory())
        return false;
    if (game.GameDirectory.empty())
        return false;

    setWindowTitle(QStringLiteral("KOLTA editor (%1)")
                       .arg(QString::fromStdString(game.GameDirectory)));
    SetGameDirectory(game, game.GameDirectory);
    // A missing or damaged file is no reason to stop: the window shows what
    // could be read, and another directory can be chosen from the menu.
    const GameLoad load = LoadGame(game);
    if (!load.recovered.empty())
        MsgBox(QString::fromStdString(load.recovered), MbInformation, QStringLiteral("Info"));
    RunStartupChain();
    return true;
}
