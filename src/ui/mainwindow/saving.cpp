#include <QCloseEvent>
#include <QTimer>

#include "data/save.h"
#include "forms/message_box.h"
#include "mainwindow/game_tools.h"
#include "history/game_history.h"
#include "mainwindow/main_window.h"
#include "mainwindow/save_failure.h"

bool MainWindow::SaveAll()
{
    CarryPendingEdits();
    // What the load could not keep is lost by saving; the user decides.
    const bool dropConfirmed =
        !game_.LoadDropped.empty() &&
        MsgBox(QStringLiteral("Saving will leave out what the editor could not load:\n%1\n\nSave anyway?")
                   .arg(QString::fromStdString(game_.LoadDropped)),
               MbYesNo | MbExclamation, QStringLiteral("Saving..")) == IdYes;
    if (!game_.LoadDropped.empty() && !dropConfirmed)
        return false;
    const FilesBeforeSave before(game_);
    const FileResult result = SaveGame(game_, dropConfirmed);
    if (!result.ok()) {
        MsgBox(before.FailureText(result), MbCritical, QStringLiteral("Saving.."));
        return false;
    }
    history_->MarkSaved();
    MsgBox(QStringLiteral("Updated Player and Team data successfully"), MbInformation, QStringLiteral("Info"));
    tools_->CheckFiles();
    return true;
}

bool MainWindow::HasUnsavedChanges() const
{
    return history_->HasUnsavedChanges();
}

int MainWindow::AskToSave()
{
    return MsgBox(QStringLiteral("Do you want to update the files teams.dat and players.dat?"),
                  MbYesNoCancel | MbExclamation, QStringLiteral("Saving.."));
}

bool MainWindow::MayLeaveGame()
{
    CarryPendingEdits();
    if (!HasUnsavedChanges())
        return true;
    const int answer = AskToSave();
    // A save that fails keeps the game open, so the edits are not lost.
    return answer == IdNo || (answer == IdYes && SaveAll());
}

void MainWindow::OnSave()
{
    SaveAll();
}

void MainWindow::OnExit()
{
    CarryPendingEdits();
    const int answer = AskToSave();
    if (answer == IdCancel)
        return;
    if (answer == IdYes && !SaveAll())
        return;
    leaveAnswered_ = true;
    close();
    leaveAnswered_ = false;
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!leaveAnswered_ && !MayLeaveGame()) {
        event->ignore();
        return;
    }
    editTimer_->stop();
    QMainWindow::closeEvent(event);
}
