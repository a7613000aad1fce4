#include "data/save.h"
#include "forms/game_text.h"
#include "forms/message_box.h"
#include "mainwindow/game_tools.h"
#include "mainwindow/main_window.h"

bool MainWindow::SaveAll()
{
    // What the load could not keep is lost by saving; the user decides.
    const bool dropConfirmed =
        !game_.LoadDropped.empty() &&
        MsgBox(QStringLiteral("Saving will leave out what the editor could not load:\n%1\n\nSave anyway?")
                   .arg(QString::fromStdString(game_.LoadDropped)),
               MbYesNo | MbExclamation, QStringLiteral("Saving..")) == IdYes;
    if (!game_.LoadDropped.empty() && !dropConfirmed)
        return false;
    const FileResult result = SaveGame(game_, dropConfirmed);
    if (!result.ok()) {
        MsgBox(QStringLiteral("Could not save %1:\n%2\n\nNothing more was written. "
                              "Your changes are still in the editor.")
                   .arg(QString::fromStdString(result.path),
                        QString::fromStdString(result.reason)),
               MbCritical, QStringLiteral("Saving.."));
        return false;
    }
    MsgBox(QStringLiteral("Updated Player and Team data successfully"), MbInformation, QStringLiteral("Info"));
    tools_->CheckFiles();
    return true;
}

void MainWindow::OnSave()
{
    SaveAll();
}

void MainWindow::OnExit()
{
    const int answer = MsgBox(QStringLiteral("Do you want to update the files teams.dat and players.dat?"),
                              MbYesNoCancel | MbExclamation, QStringLiteral("Saving.."));
    if (answer == IdCancel)
        return;
    // A save that fails keeps the editor open, so the edits are not lost.
    if (answer == IdYes && !SaveAll())
        return;
    close();
}
