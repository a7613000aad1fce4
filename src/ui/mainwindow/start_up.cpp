#include <QDir>
#include <QFileInfo>

#include "data/load_game.h"
#include "data/setting_file.h"
#include "forms/message_box.h"
#include "mainwindow/game_tools.h"
#include "mainwindow/game_folder_trouble.h"
#include "mainwindow/main_window.h"

bool MainWindow::Start()
{
    game_.GameDirectory = ReadSettingFile(places_.PathToRead().toStdString());
    if (game_.GameDirectory.empty() && !ChooseFirstDirectory())
        return false;
    if (game_.GameDirectory.empty())
        return false;

    SetTitle(QStringLiteral("KOLTA editor"));
    SetGameDirectory(game_, game_.GameDirectory);
    // A missing or damaged file is no reason to stop: the window shows what
    // could be read, says what is wrong and offers to choose another folder.
    const std::optional<QString> refused = LoadGameDirectory();
    ShowFirstEntries();
    tools_->CheckFiles();
    OfferOtherFolder(refused);
    return true;
}

std::optional<QString> MainWindow::LoadGameDirectory()
{
    const GameLoad load = LoadGame(game_);
    if (!load.recovered.empty())
        ShowMessage(QMessageBox::Information, QStringLiteral("Info"), QString::fromStdString(load.recovered));
    // A missing file loads as an empty one; OfferOtherFolder tells of it. A
    // file refused for what it is (a device, a folder, a giant) is named
    // with the reason.
    std::optional<QString> refused;
    for (const LoadReport* report : {&load.players, &load.teams}) {
        if (!refused && !report->Read() &&
            QFileInfo::exists(QDir(QString::fromStdString(game_.GameDirectory))
                                  .filePath(QString::fromStdString(report->file))))
            refused = QStringLiteral("%1 was not read: %2")
                          .arg(QString::fromStdString(report->file), QString::fromStdString(report->failure));
    }
    presence_.reset();
    presence_ = std::make_unique<FolderPresence>(game_.GameDirectory);
    if (presence_->OthersHadItOpen())
        ShowMessage(QMessageBox::Information, QStringLiteral("Info"),
                    QStringLiteral("Another editor has this game directory open. If both of you save, "
                                   "the second save is refused."));
    return refused;
}

void MainWindow::OfferOtherFolder(const std::optional<QString>& refused)
{
    std::optional<QString> trouble = GameFolderTrouble(QString::fromStdString(game_.GameDirectory));
    if (!trouble)
        trouble = refused;
    if (!trouble)
        return;
    const QMessageBox::StandardButton answer =
        ShowMessage(QMessageBox::Warning, QStringLiteral("Game folder"),
                    *trouble + QStringLiteral("\n\nDo you want to choose the game's folder now "
                                              "(File > Options)?"),
                    QMessageBox::Yes | QMessageBox::No);
    if (answer == QMessageBox::Yes)
        OnOptions();
}

void MainWindow::SetTitle(const QString& caption)
{
    // The mark stands for unsaved changes and shows only while there are some.
    setWindowTitle(QStringLiteral("%1 (%2)[*]")
                       .arg(caption, QString::fromStdString(game_.GameDirectory)));
}
