#include <QFile>

#include "data/players_file.h"
#include "data/setting_file.h"
#include "data/teams_file.h"
#include "forms/message_box.h"
#include "mainwindow/game_folder_trouble.h"
#include "mainwindow/main_window.h"

bool MainWindow::Start()
{
    game_.GameDirectory = ReadSettingFile(QFile::encodeName(places_.PathToRead()).toStdString());
    if (game_.GameDirectory.empty() && !ChooseFirstDirectory())
        return false;
    if (game_.GameDirectory.empty())
        return false;

    SetTitle(QStringLiteral("KOLTA editor"));
    SetGameDirectory(game_, game_.GameDirectory);
    // A missing or damaged file is no reason to stop: the window shows what
    // could be read, says what is wrong and offers to choose another folder.
    ReadPlayersFile(game_);
    ReadTeamsFile(game_);
    ShowFirstEntries();
    OfferOtherFolder();
    return true;
}

void MainWindow::OfferOtherFolder()
{
    const auto trouble = GameFolderTrouble(QFile::decodeName(QByteArray::fromStdString(game_.GameDirectory)));
    if (!trouble)
        return;
    const int answer = MsgBox(*trouble + QStringLiteral("\n\nDo you want to choose the game's folder now "
                                                        "(File > Options)?"),
                              MbYesNo | MbExclamation, QStringLiteral("Game folder"));
    if (answer == IdYes)
        OnOptions();
}

void MainWindow::SetTitle(const QString& caption)
{
    // The mark stands for unsaved changes and shows only while there are some.
    setWindowTitle(QStringLiteral("%1 (%2)[*]")
                       .arg(caption, QFile::decodeName(QByteArray::fromStdString(game_.GameDirectory))));
}
