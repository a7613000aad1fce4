// The menu's own commands and the two pictures; the commands over the game's
// files and the whole game live beside the document.
#include "commands/game_files.h"
#include "forms/message_box.h"
#include "forms/modal.h"
#include "mainwindow/main_window.h"
#include "options/about_window.h"
#include "options/web_pages.h"

void MainWindow::OnExit()
{
    if (!files_.MayExit())
        return;
    leaveAnswered_ = true;
    close();
    leaveAnswered_ = false;
}

void MainWindow::OnHelp()
{
    ShowMessage(QMessageBox::Information, QStringLiteral("Help"),
                QStringLiteral("Please read help.txt file for help on KOLTA editor."));
}

void MainWindow::OnAbout()
{
    AboutWindow about;
    ShowModal(about, this);
}

void MainWindow::OnUserGuidePicture()
{
    OpenWebPage(UserGuidePage());
}

void MainWindow::OnFileFormatsPicture()
{
    OpenWebPage(FileFormatsPage());
}
