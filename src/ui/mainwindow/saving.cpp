#include <QFile>

#include "data/save.h"
#include "forms/game_text.h"
#include "forms/message_box.h"
#include "mainwindow/main_window.h"

bool MainWindow::SaveAll()
{
    const FileResult result = SaveGame(game_);
    if (!result.ok()) {
        MsgBox(QStringLiteral("Could not save %1:\n%2\n\nNothing more was written. "
                              "Your changes are still in the editor.")
                   .arg(QFile::decodeName(QByteArray::fromStdString(result.path)),
                        QString::fromStdString(result.reason)),
               MbCritical, QStringLiteral("Saving.."));
        return false;
    }
    MsgBox(QStringLiteral("Updated Player and Team data successfully"), MbInformation, QStringLiteral("Info"));
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
