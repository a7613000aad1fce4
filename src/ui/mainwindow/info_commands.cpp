#include "forms/message_box.h"
#include "forms/modal.h"
#include "mainwindow/main_window.h"
#include "options/about_window.h"
#include "options/web_pages.h"

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
