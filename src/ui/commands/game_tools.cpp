#include "commands/game_tools.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <algorithm>

#include "changeswindow/changes_window.h"
#include "check/problems.h"
#include "csv/csv_folder.h"
#include "csvwindow/import_window.h"
#include "data/file_io.h"
#include "data/players_file.h"
#include "data/teams_file.h"
#include "diff/game_files.h"
#include "document/game_document.h"
#include "findwindow/find_window.h"
#include "forms/message_box.h"
#include "forms/modal.h"
#include "problemswindow/problems_window.h"
#include "tables/table_window.h"

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
struct FilesToCheck {
    std::string players;
    std::string teams;
};

FilesToCheck BytesOnDisk(const Game& game)
{
    auto players = ReadWholeFile(game.PlayersPath);
    auto teams = ReadWholeFile(game.TeamsPath);
    return {players ? std::move(*players) : WritePlayers(game), teams ? std::move(*teams) : WriteTeams(game)};
}

std::vector<Problem> ProblemsNow(const Game& game)
{
    const FilesToCheck files = BytesOnDisk(game);
    return ProblemsOfGame(game, files.players, files.teams);
}

int Errors(const std::vector<Problem>& problems)
{
    return int(std::count_if(problems.begin(), problems.end(),
                             [](const Problem& p) { return p.severity == Severity::Error; }));
}

template <typename Window>
void Raise(Window& window)
{
    window.show();
    window.raise();
    window.activateWindow();
}

}  // namespace

GameTools::GameTools(GameDocument& document) : document_(document)
{
    recount_.setSingleShot(true);
    recount_.setInterval(0);
    connect(&recount_, &QTimer::timeout, this, &GameTools::CountErrors);
}

void GameTools::CheckFiles()
{
    const FilesToCheck files = BytesOnDisk(document_.Records());
    fileErrors_ = Errors(ProblemsInPlayersFile(files.players)) + Errors(ProblemsInTeamsFile(files.teams));
    CountErrors();
}

void GameTools::Recount()
{
    recount_.start();
}

void GameTools::CountErrors()
{
    recount_.stop();
    // The check of the whole game drops warnings only, so its errors are
    // those of the files' bytes and those of the records.
    emit errorsCounted(fileErrors_ + Errors(ProblemsInGame(document_.Records())));
}

void GameTools::FindPlayer(QWidget* owner)
{
    FindWindow find(document_.Records(), QDate::currentDate());
    connect(&find, &FindWindow::playerChosen, this, &GameTools::playerChosen);
    ShowModal(find, owner);
}

void GameTools::CheckGame(QWidget* owner)
{
    if (!problemsWindow_) {
        problemsWindow_ = new ProblemsWindow(owner);
        problemsWindow_->setObjectName(QStringLiteral("problemsWindow"));
        connect(problemsWindow_, &ProblemsWindow::playerChosen, this, &GameTools::playerChosen);
        connect(problemsWindow_, &ProblemsWindow::teamChosen, this, &GameTools::teamChosen);
    }
    problemsWindow_->ShowProblems(ProblemsNow(document_.Records()));
    Raise(*problemsWindow_);
}

bool GameTools::HasOriginals() const
{
    const Game& game = document_.Records();
    return QFile::exists(FromPath(game.PlayersPath + OriginalSuffix)) &&
           QFile::exists(FromPath(game.TeamsPath + OriginalSuffix));
}

void GameTools::ChangesSinceSave(QWidget* owner)
{
    const Game& game = document_.Records();
    const auto saved = ReadGameFiles(game.GameDirectory);
    if (!saved) {
        ShowMessage(QMessageBox::Information, QStringLiteral("Changes"),
                    QStringLiteral("The game's files cannot be read:\n%1\n%2")
                        .arg(FromPath(game.PlayersPath), FromPath(game.TeamsPath)));
        return;
    }
    ShowChanges(owner, QStringLiteral("since the last save"), *saved);
}

void GameTools::ChangesSinceOriginal(QWidget* owner)
{
    const Game& game = document_.Records();
    const auto original = ReadGameFiles(game.GameDirectory, OriginalSuffix);
    if (!original) {
        ShowMessage(QMessageBox::Information, QStringLiteral("Changes"),
                    QStringLiteral("The original files cannot be read:\n%1\n%2")
                        .arg(FromPath(game.PlayersPath + OriginalSuffix), FromPath(game.TeamsPath + OriginalSuffix)));
        return;
    }
    ShowChanges(owner, QStringLiteral("since the original files"), *original);
}

void GameTools::ShowChanges(QWidget* owner, const QString& since, const Game& before)
{
    if (!changesWindow_) {
        changesWindow_ = new ChangesWindow(owner);
        changesWindow_->setObjectName(QStringLiteral("changesWindow"));
        connect(changesWindow_, &ChangesWindow::playerChosen, this, &GameTools::playerChosen);
        connect(changesWindow_, &ChangesWindow::teamChosen, this, &GameTools::teamChosen);
    }
    changesWindow_->setWindowTitle(QStringLiteral("Changes ") + since);
    changesWindow_->ShowChanges(since, CompareGames(before, document_.Records()));
    Raise(*changesWindow_);
}

QString GameTools::ChooseFolder(QWidget* owner, const QString& title)
{
    QFileDialog chooser(owner, title, FromPath(document_.Folder()));
    chooser.setObjectName(QStringLiteral("csvFolderChooser"));
    chooser.setFileMode(QFileDialog::Directory);
    chooser.setOption(QFileDialog::ShowDirsOnly);
    if (ShowModal(chooser, owner) != QDialog::Accepted || chooser.selectedFiles().isEmpty())
        return {};
    return chooser.selectedFiles().constFirst();
}

void GameTools::ExportCsv(QWidget* owner)
{
    const QString title = QStringLiteral("Export to CSV");
    const QString folder = ChooseFolder(owner, title);
    if (folder.isEmpty())
        return;
    const FileResult written = ExportCsvFolder(document_.Records(), ToPath(folder));
    if (!written.ok()) {
        ShowMessage(QMessageBox::Critical, title,
                    QStringLiteral("Could not write %1:\n%2")
                        .arg(FromPath(written.path), QString::fromStdString(written.reason)));
        return;
    }
    ShowMessage(QMessageBox::Information, title,
                QStringLiteral("Wrote players.csv and teams.csv in %1.").arg(QDir::toNativeSeparators(folder)));
}

void GameTools::ImportCsv(QWidget* owner)
{
    const QString title = QStringLiteral("Import from CSV");
    const QString folder = ChooseFolder(owner, title);
    if (folder.isEmpty())
        return;
    const CsvImport import = ImportCsvFolder(document_.Records(), ToPath(folder));
    if (!import.read) {
        ShowMessage(QMessageBox::Information, title,
                    QStringLiteral("Neither players.csv nor teams.csv can be read in %1.")
                        .arg(QDir::toNativeSeparators(folder)));
        return;
    }
    ImportWindow review(import, folder);
    review.setObjectName(QStringLiteral("importWindow"));
    if (ShowModal(review, owner) != QDialog::Accepted || !import.game || import.changes.empty())
        return;
    // The whole import is one step; nothing reaches the files until the user saves.
    const Game& imported = *import.game;
    document_.Change(QStringLiteral("import from CSV"), {}, [&imported](Game& game) {
        game.Players = imported.Players;
        game.Teams = imported.Teams;
        game.PlayerCount = imported.PlayerCount;
        game.TeamCount = imported.TeamCount;
    });
    emit gameImported();
}

void GameTools::PlayersTable(QWidget* owner)
{
    ShowTable(playersTable_, true, owner);
}

void GameTools::TeamsTable(QWidget* owner)
{
    ShowTable(teamsTable_, false, owner);
}

void GameTools::ShowTable(QPointer<TableWindow>& window, bool players, QWidget* owner)
{
    if (!window) {
        const QDate today = QDate::currentDate();
        window = new TableWindow(document_, players ? RecordKind::Player : RecordKind::Team,
                                 {today.year(), today.month(), today.day()}, owner);
        window->setObjectName(players ? QStringLiteral("playersTable") : QStringLiteral("teamsTable"));
        const auto front = [owner] {
            owner->window()->raise();
            owner->window()->activateWindow();
        };
        connect(window, &TableWindow::playerChosen, this, &GameTools::playerChosen);
        connect(window, &TableWindow::teamChosen, this, &GameTools::teamChosen);
        connect(window, &TableWindow::playerChosen, owner, front);
        connect(window, &TableWindow::teamChosen, owner, front);
    }
    Raise(*window);
}
