#include <QDir>
#include <QFileInfo>

#include "data/load_game.h"
#include "data/setting_file.h"
#include "forms/message_box.h"
#include "mainwindow/game_tools.h"
#include "mainwindow/main_window.h"

bool MainWindow::Start()
{
    game_.GameDirectory = ReadSettingFile(places_.PathToRead().toStdString());
    if (game_.GameDirectory.empty() && !ChooseFirstDirectory())
        return false;
    if (game_.GameDirectory.empty())
        return false;

    setWindowTitle(QStringLiteral("KOLTA editor (%1)")
                       .arg(QString::fromStdString(game_.GameDirectory)));
    SetGameDirectory(game_, game_.GameDirectory);
    // A missing or damaged file is no reason to stop: the window shows what
    // could be read, and another directory can be chosen from the menu.
    LoadGameDirectory();
    ShowFirstEntries();
    tools_->CheckFiles();
    return true;
}

void MainWindow::LoadGameDirectory()
{
    const GameLoad load = LoadGame(game_);
    if (!load.recovered.empty())
        MsgBox(QString::fromStdString(load.recovered), MbInformation, QStringLiteral("Info"));
    // A missing file loads as an empty one without a word; a file refused
    // for what it is (a device, a folder, a giant) is named with the reason.
    for (const LoadReport* report : {&load.players, &load.teams}) {
        if (!report->Read() && QFileInfo::exists(QDir(QString::fromStdString(game_.GameDirectory))
                                                .filePath(QString::fromStdString(report->file))))
            MsgBox(QStringLiteral("%1 was not read: %2")
                       .arg(QString::fromStdString(report->file), QString::fromStdString(report->failure)),
                   MbExclamation, QStringLiteral("Info"));
    }
    presence_.reset();
    presence_ = std::make_unique<FolderPresence>(game_.GameDirectory);
    if (presence_->OthersHadItOpen())
        MsgBox(QStringLiteral("Another editor has this game directory open. If both of you save, "
                              "the second save is refused."),
               MbInformation, QStringLiteral("Info"));
}
