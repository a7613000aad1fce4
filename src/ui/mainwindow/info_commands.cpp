#include "forms/message_box.h"
#include "forms/modal.h"
#include "mainwindow/main_form.h"
#include "options/about_form.h"
#include "options/web_pages.h"

void MainForm::hoe_Click()
{
    MsgBox(QStringLiteral("Please read help.txt file for help on KOLTA editor."), MbInformation,
           QStringLiteral("Help"));
}

void MainForm::abt_Click()
{
    AboutForm form;
    ShowModal(form, this);
}

void MainForm::Image1_Click()
{
    OpenWebPage(UserGuidePage());
}

void MainForm::Image2_Click()
{
    OpenWebPage(FileFormatsPage());
}
