#include "mainwindow/game_tools.h"

#include <QAction>
#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QMenu>
#include <QMenuBar>
#include <algorithm>

#include "changeswindow/changes_window.h"
#include "check/problems.h"
#include "csv/csv_folder.h"
#include "csvwindow/import_window.h"
#include "data/file_io.h"
#include "data/players_file.h"
#include "data/teams_file.h"
#include "diff/game_files.h"
#include "findwindow/find_window.h"
#include "forms/message_box.h"
#include "forms/modal.h"
#include "mainwindow/main_window.h"
#include "problemswindow/problems_bar.h"
#include "problemswindow/problems_window.h"

namespace {

// The copies of the first save ever made in a game's folder.
constexpr const char* OriginalSuffix = ".orig";

QString FromPath(const std::string& path)
{
    return QDir::toNativeSeparators(QString::fromStdString(path));
}

std::string ToPath(const QString& path)
{
    return path.toStdString();
}

// The scans of the files speak of the files as they lie on disk, the rest of
// the check of the game as it is now. A file that can't be read is checked
// as a save would write it.
std::vector<Problem> ProblemsNow(const Game& game)
{
    const auto players = ReadWholeFile(game.PlayersPath);
    const auto teams = ReadWholeFile(game.TeamsPath);
    return ProblemsOfGame(game, players ? *players : WritePlayers(game), teams ? *teams : WriteTeams(game));
}

bool HasOriginals(const Game& game)
{
    return QFile::exists(FromPath(game.PlayersPath + OriginalSuffix)) &&
           QFile::exists(FromPath(game.TeamsPath + OriginalSuffix));
}

template <typename Window>
void Raise(Window& window)
{
    window.show();
    window.raise();
    window.activateWindow();
}

}  // namespace

GameTools::GameTools(MainWindow& window, Game& game) : QObject(&window), window_(window), game_(game)
{
    problemsBar_ = new ProblemsBar(&window);
    window.addToolBar(Qt::TopToolBarArea, problemsBar_);
    problemsBar_->hide();
    connect(problemsBar_, &ProblemsBar::showProblemsRequested, this, &GameTools::OnCheckGame);
}

void GameTools::AddCommands(QMenu& file, QAction* exitAction, QMenu& edit, QMenuBar& menus)
{
    const auto command = [this](QMenu& menu, QAction* before, const char* text, const char* name,
                                void (GameTools::*handler)()) {
        auto* action = new QAction(QString::fromLatin1(text), &menu);
        action->setObjectName(QString::fromLatin1(name));
        menu.insertAction(before, action);
        connect(action, &QAction::triggered, this, handler);
        return action;
    };
    command(file, exitAction, "&Export to CSV...", "exportCsvAction", &GameTools::OnExportCsv);
    command(file, exitAction, "&Import from CSV...", "importCsvAction", &GameTools::OnImportCsv);
    file.insertSeparator(exitAction);

    QAction* find = command(edit, nullptr, "&Find Player...", "findPlayerAction", &GameTools::OnFindPlayer);
    find->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_F));

    QMenu* tools = menus.addMenu(QStringLiteral("&Tools"));
    tools->setObjectName(QStringLiteral("toolsMenu"));
    command(*tools, nullptr, "&Check Game...", "checkGameAction", &GameTools::OnCheckGame);
    tools->addSeparator();
    command(*tools, nullptr, "Changes Since Last &Save...", "changesSinceSaveAction", &GameTools::OnChangesSinceSave);
    changesSinceOriginalAction_ = command(*tools, nullptr, "Changes Since &Original...", "changesSinceOriginalAction",
                                          &GameTools::OnChangesSinceOriginal);
    // The originals appear with the first save in a folder.
    connect(tools, &QMenu::aboutToShow, this,
            [this] { changesSinceOriginalAction_->setEnabled(HasOriginals(game_)); });
}

void GameTools::CheckFiles()
{
    const std::vector<Problem> problems = ProblemsNow(game_);
    problemsBar_->SetErrorCount(int(std::count_if(problems.begin(), problems.end(), [](const Problem& p) {
        return p.severity == Severity::Error;
    })));
}

void GameTools::OnFindPlayer()
{
    FindWindow find(game_, QDate::currentDate());
    connect(&find, &FindWindow::playerChosen, &window_, &MainWindow::GoToPlayer);
    ShowModal(find, &window_);
}

void GameTools::OnCheckGame()
{
    window_.CarryPendingEdits();
    if (!problemsWindow_) {
        problemsWindow_ = new ProblemsWindow(&window_);
        problemsWindow_->setObjectName(QStringLiteral("problemsWindow"));
        connect(problemsWindow_, &ProblemsWindow::playerChosen, &window_, &MainWindow::GoToPlayer);
        connect(problemsWindow_, &ProblemsWindow::teamChosen, &window_, &MainWindow::GoToTeam);
    }
    problemsWindow_->ShowProblems(ProblemsNow(game_));
    Raise(*problemsWindow_);
}

void GameTools::OnChangesSinceSave()
{
    const auto saved = ReadGameFiles(game_.GameDirectory);
    if (!saved) {
        ShowMessage(QMessageBox::Information, QStringLiteral("Changes"),
                    QStringLiteral("The game's files cannot be read:\n%1\n%2")
                        .arg(FromPath(game_.PlayersPath), FromPath(game_.TeamsPath)));
        return;
    }
    ShowChanges(QStringLiteral("since the last save"), *saved);
}

void GameTools::OnChangesSinceOriginal()
{
    const auto original = ReadGameFiles(game_.GameDirectory, OriginalSuffix);
    if (!original) {
        ShowMessage(QMessageBox::Information, QStringLiteral("Changes"),
                    QStringLiteral("The original files cannot be read:\n%1\n%2")
                        .arg(FromPath(game_.PlayersPath + OriginalSuffix), FromPath(game_.TeamsPath + OriginalSuffix)));
        return;
    }
    ShowChanges(QStringLiteral("since the original files"), *original);
}

void GameTools::ShowChanges(const QString& since, const Game& before)
{
    window_.CarryPendingEdits();
    if (!changesWindow_) {
        changesWindow_ = new ChangesWindow(&window_);
        changesWindow_->setObjectName(QStringLiteral("changesWindow"));
        connect(changesWindow_, &ChangesWindow::playerChosen, &window_, &MainWindow::GoToPlayer);
        connect(changesWindow_, &ChangesWindow::teamChosen, &window_, &MainWindow::GoToTeam);
    }
    changesWindow_->setWindowTitle(QStringLiteral("Changes ") + since);
    changesWindow_->ShowChanges(since, CompareGames(before, game_));
    Raise(*changesWindow_);
}

QString GameTools::ChooseFolder(const QString& title)
{
    QFileDialog chooser(&window_, title, FromPath(game_.GameDirectory));
    chooser.setObjectName(QStringLiteral("csvFolderChooser"));
    chooser.setFileMode(QFileDialog::Directory);
    chooser.setOption(QFileDialog::ShowDirsOnly);
    if (ShowModal(chooser, &window_) != QDialog::Accepted || chooser.selectedFiles().isEmpty())
        return {};
    return chooser.selectedFiles().constFirst();
}

void GameTools::OnExportCsv()
{
    const QString title = QStringLiteral("Export to CSV");
    const QString folder = ChooseFolder(title);
    if (folder.isEmpty())
        return;
    window_.CarryPendingEdits();
    const FileResult written = ExportCsvFolder(game_, ToPath(folder));
    if (!written.ok()) {
        ShowMessage(QMessageBox::Critical, title,
                    QStringLiteral("Could not write %1:\n%2")
                        .arg(FromPath(written.path), QString::fromStdString(written.reason)));
        return;
    }
    ShowMessage(QMessageBox::Information, title,
                QStringLiteral("Wrote players.csv and teams.csv in %1.").arg(QDir::toNativeSeparators(folder)));
}

void GameTools::OnImportCsv()
{
    const QString title = QStringLiteral("Import from CSV");
    const QString folder = ChooseFolder(title);
    if (folder.isEmpty())
        return;
    window_.CarryPendingEdits();
    const CsvImport import = ImportCsvFolder(game_, ToPath(folder));
    if (!import.read) {
        ShowMessage(QMessageBox::Information, title,
                    QStringLiteral("Neither players.csv nor teams.csv can be read in %1.")
                        .arg(QDir::toNativeSeparators(folder)));
        return;
    }
    ImportWindow review(import, folder);
    review.setObjectName(QStringLiteral("importWindow"));
    if (ShowModal(review, &window_) == QDialog::Accepted && import.game && !import.changes.empty())
        ApplyImportedGame(*import.game);
}

void GameTools::ApplyImportedGame(const Game& imported)
{
    // The whole import is one change to the game; nothing reaches the files
    // until the user saves.
    game_.Players = imported.Players;
    game_.Teams = imported.Teams;
    game_.PlayerCount = imported.PlayerCount;
    game_.TeamCount = imported.TeamCount;
    window_.ShowRecordsAgain();
    emit importApplied(QStringLiteral("import from CSV"));
}
