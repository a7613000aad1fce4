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
        ShowMessage(QMessageBox::Warning, QStringLiteral("Saving.."),
                    QStringLiteral("Saving will leave out what the editor could not load:\n%1\n\nSave anyway?")
                        .arg(QString::fromStdString(game_.LoadDropped)),
                    QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
    if (!game_.LoadDropped.empty() && !dropConfirmed)
        return false;
    const FilesBeforeSave before(game_);
    const FileResult result = SaveGame(game_, dropConfirmed);
    if (!result.ok()) {
        ShowMessage(QMessageBox::Critical, QStringLiteral("Saving.."), before.FailureText(result));
        return false;
    }
    history_->MarkSaved();
    ShowMessage(QMessageBox::Information, QStringLiteral("Info"),
                QStringLiteral("Updated Player and Team data successfully"));
    tools_->CheckFiles();
    return true;
}

bool MainWindow::HasUnsavedChanges() const
{
    return history_->HasUnsavedChanges();
}

QMessageBox::StandardButton MainWindow::AskToSave()
{
    return ShowMessage(QMessageBox::Warning, QStringLiteral("Saving.."),
                       QStringLiteral("Do you want to update the files teams.dat and players.dat?"),
                       QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
}

bool MainWindow::MayLeaveGame()
{
    CarryPendingEdits();
    if (!HasUnsavedChanges())
        return true;
    const QMessageBox::StandardButton answer = AskToSave();
    // A save that fails keeps the game open, so the edits are not lost.
    return answer == QMessageBox::No || (answer == QMessageBox::Yes && SaveAll());
}

void MainWindow::OnSave()
{
    SaveAll();
}

void MainWindow::OnExit()
{
    CarryPendingEdits();
    const QMessageBox::StandardButton answer = AskToSave();
    if (answer == QMessageBox::Cancel)
        return;
    if (answer == QMessageBox::Yes && !SaveAll())
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
