#include <QLabel>
#include <QPushButton>

#include "forms/modal.h"
#include "mainwindow/main_form.h"
#include "options/folder_lists.h"
#include "options/options_form.h"

namespace {

// Moves the running editor to the directory just chosen. Edits not saved
// are dropped without a question, as the old files stay as last saved.
void LoadNewDirectory(MainForm& main)
{
    Game& game = main.game;
    main.setWindowTitle(QStringLiteral("KOLTA Editor (%1)")
                            .arg(QString::fromStdString(game.GameDirectory)));
    // Empty tables first: no team or player of the old game may turn up in
    // the lists, a search or the next save.
    ClearTables(game);
    game.BackupsKept = false;
    // Nor may the tick write the old boxes into whatever record of the new
    // game has the old numbers, before a team and a player are shown again.
    main.Label3->clear();
    main.lblteamno->clear();
    main.LoadGameDirectory();
    main.RunStartupChain();
}

}  // namespace

void MainForm::opt_Click()
{
    OptionsForm opt1(game, places, this);
    opt1.Command1->hide();
    opt1.Command2->show();
    opt1.Dir1->SetPath(FromSystemPath(game.GameDirectory));
    opt1.Drive1->SetDrive(opt1.Dir1->Path());
    opt1.Dir1->SetPath(opt1.File1->Path());
    connect(&opt1, &OptionsForm::GameDirectoryChanged, this, [this] { LoadNewDirectory(*this); });
    ShowModal(opt1, this);
}

bool MainForm::ChooseFirstDirectory()
{
    // The chooser opens at the process's current directory and sets the
    // game's directory only when the user picks one that holds both files.
    OptionsForm opt1(game, places, this);
    ShowModal(opt1, this);
    return !game.GameDirectory.empty();
}
