#include <QLabel>

#include "forms/message_box.h"
#include "forms/modal.h"
#include "mainwindow/game_tools.h"
#include "mainwindow/main_window.h"
#include "options/options_window.h"

void MainWindow::LoadNewDirectory()
{
    // The user has been asked about unsaved edits before the folder changed.
    SetTitle(QStringLiteral("KOLTA Editor"));
    // Empty tables first: no team or player of the old game may turn up in
    // the lists, a search or the next save.
    ClearTables(game_);
    game_.BackupsKept = false;
    // Nor may the tick write the old boxes into whatever record of the new
    // game has the old numbers, before a team and a player are shown again.
    currentPlayer_.reset();
    shownTeam_.reset();
    teamNumberLabel_->clear();
    const std::optional<QString> refused = LoadGameDirectory();
    ShowFirstEntries();
    tools_->CheckFiles();
    if (refused)
        ShowMessage(QMessageBox::Warning, QStringLiteral("Info"), *refused);
}

void MainWindow::OnOptions()
{
    CarryPendingEdits();
    OptionsWindow options(game_, places_, OptionsWindow::Mode::ChangeDirectory, this);
    options.SetLeaveGameCheck([this] { return MayLeaveGame(); });
    connect(&options, &OptionsWindow::gameDirectoryChanged, this, &MainWindow::LoadNewDirectory);
    ShowModal(options, this);
}

bool MainWindow::ChooseFirstDirectory()
{
    // The chooser opens at the process's current directory and sets the
    // game's directory only when the user picks one that holds both files.
    OptionsWindow options(game_, places_, OptionsWindow::Mode::FirstStart, this);
    ShowModal(options, this);
    return !game_.GameDirectory.empty();
}
