#include "commands/game_files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "commands/game_folder_trouble.h"
#include "commands/save_failure.h"
#include "data/pair_commit.h"
#include "data/save.h"
#include "data/setting_file.h"
#include "document/game_document.h"
#include "forms/message_box.h"
#include "forms/modal.h"
#include "options/options_window.h"

namespace {

QString FromPath(const std::string& path)
{
    return QString::fromStdString(path);
}

// How long the files must stay still before they are looked at: a save
// renames and writes several files in a row.
constexpr int SettlingMs = 200;

}  // namespace

GameFiles::GameFiles(GameDocument& document, SettingPlaces places)
    : document_(document), places_(std::move(places))
{
    settling_.setSingleShot(true);
    settling_.setInterval(SettlingMs);
    connect(&settling_, &QTimer::timeout, this, &GameFiles::LookAtFiles);
    connect(&watcher_, &QFileSystemWatcher::fileChanged, &settling_, qOverload<>(&QTimer::start));
    connect(&watcher_, &QFileSystemWatcher::directoryChanged, &settling_, qOverload<>(&QTimer::start));
}

bool GameFiles::Start(QWidget* owner)
{
    std::string folder = ReadSettingFile(places_.PathToRead().toStdString());
    if (folder.empty()) {
        // The chooser opens at the process's current directory and gives a
        // folder only when the user picks one that holds both files.
        OptionsWindow options(std::string(), places_, OptionsWindow::Mode::FirstStart);
        ShowModal(options, owner);
        folder = options.ChosenFolder();
    }
    if (folder.empty())
        return false;
    // A missing or damaged file is no reason to stop: the window shows what
    // could be read, says what is wrong and offers to choose another folder.
    const std::optional<QString> refused = Open(folder);
    OfferOtherFolder(refused, owner);
    return true;
}

std::optional<QString> GameFiles::Open(const std::string& folder)
{
    const GameLoad load = document_.Load(folder);
    if (!load.recovered.empty())
        ShowMessage(QMessageBox::Information, QStringLiteral("Info"), QString::fromStdString(load.recovered));
    // A missing file loads as an empty one; OfferOtherFolder tells of it. A
    // file refused for what it is (a device, a folder, a giant) is named
    // with the reason.
    std::optional<QString> refused;
    for (const LoadReport* report : {&load.players, &load.teams}) {
        if (!refused && !report->Read() &&
            QFileInfo::exists(QDir(QString::fromStdString(folder)).filePath(QString::fromStdString(report->file))))
            refused = QStringLiteral("%1 was not read: %2")
                          .arg(QString::fromStdString(report->file), QString::fromStdString(report->failure));
    }
    keptStamp_.clear();
    TellChangedElsewhere(false);
    if (claimed_)
        ClaimFolder();
    return refused;
}

void GameFiles::FinishStart()
{
    claimed_ = true;
    ClaimFolder();
}

void GameFiles::ClaimFolder()
{
    if (document_.MarkFolderOpen())
        ShowMessage(QMessageBox::Information, QStringLiteral("Info"),
                    QStringLiteral("Another editor has this game directory open. If both of you save, "
                                   "the second save is refused."));
    LookAtFiles();
}

void GameFiles::LookAtFiles()
{
    const Game& game = document_.Records();
    // Another program's save is under way while its commit record is there.
    if (QFile::exists(FromPath(CommitRecordPath(game.GameDirectory)))) {
        settling_.start();
        return;
    }
    if (const QStringList watched = watcher_.files() + watcher_.directories(); !watched.isEmpty())
        watcher_.removePaths(watched);
    for (const std::string* path : {&game.GameDirectory, &game.PlayersPath, &game.TeamsPath}) {
        if (QFileInfo::exists(FromPath(*path)))
            watcher_.addPath(FromPath(*path));
    }
    const std::string now = GameFilesStamp(game);
    TellChangedElsewhere(!game.LoadedStamp.empty() && now != game.LoadedStamp && now != keptStamp_);
}

void GameFiles::TellChangedElsewhere(bool changed)
{
    if (changed == toldChanged_)
        return;
    toldChanged_ = changed;
    emit changedElsewhere(changed);
}

bool GameFiles::ReloadTheirs()
{
    if (document_.IsModified() &&
        AskMessage(QMessageBox::Warning, QStringLiteral("Reload"),
                   QStringLiteral("Reading players.dat and teams.dat as the other program saved them loses "
                                  "your unsaved changes."),
                   {{QMessageBox::Yes, QStringLiteral("&Reload theirs")},
                    {QMessageBox::Cancel, QStringLiteral("Cancel")}},
                   QMessageBox::Cancel) != QMessageBox::Yes)
        return false;
    if (const std::optional<QString> refused = Open(document_.Folder()))
        ShowMessage(QMessageBox::Warning, QStringLiteral("Info"), *refused);
    return true;
}

void GameFiles::KeepMine()
{
    keptStamp_ = GameFilesStamp(document_.Records());
    TellChangedElsewhere(false);
}

void GameFiles::OfferOtherFolder(const std::optional<QString>& refused, QWidget* owner)
{
    std::optional<QString> trouble = GameFolderTrouble(QString::fromStdString(document_.Folder()));
    if (!trouble)
        trouble = refused;
    if (!trouble)
        return;
    const QMessageBox::StandardButton answer = ShowMessage(
        QMessageBox::Warning, QStringLiteral("Game folder"),
        *trouble + QStringLiteral("\n\nDo you want to choose the game's folder now (File > Options)?"),
        QMessageBox::Yes | QMessageBox::No);
    if (answer == QMessageBox::Yes)
        ChooseFolder(owner);
}

void GameFiles::ChooseFolder(QWidget* owner)
{
    OptionsWindow options(document_.Folder(), places_, OptionsWindow::Mode::ChangeDirectory);
    options.SetLeaveGameCheck([this] { return MayLeaveGame(); });
    connect(&options, &OptionsWindow::folderChosen, this, [this](const std::string& folder) {
        // The user has been asked about unsaved edits before the folder changed.
        if (const std::optional<QString> refused = Open(folder))
            ShowMessage(QMessageBox::Warning, QStringLiteral("Info"), *refused);
    });
    ShowModal(options, owner);
}

bool GameFiles::Save()
{
    // What the load could not keep is lost by saving; the user decides.
    const std::string& dropped = document_.Records().LoadDropped;
    const bool dropConfirmed =
        !dropped.empty() &&
        ShowMessage(QMessageBox::Warning, QStringLiteral("Saving.."),
                    QStringLiteral("Saving will leave out what the editor could not load:\n%1\n\nSave anyway?")
                        .arg(QString::fromStdString(dropped)),
                    QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
    if (!dropped.empty() && !dropConfirmed)
        return false;
    const FilesBeforeSave before(document_.Records());
    FileResult result = document_.Save(dropConfirmed);
    const bool overTheirs = !result.ok() && FilesChangedSinceLoaded(document_.Records());
    if (overTheirs) {
        const QMessageBox::StandardButton answer = AskMessage(
            QMessageBox::Warning, QStringLiteral("Saving.."),
            QStringLiteral("players.dat and teams.dat were changed by another program since the editor read or "
                           "saved them.\n\nSave mine over theirs: the other program's files are kept as "
                           "players.dat.prev and teams.dat.prev.\nReload theirs: your unsaved changes are lost."),
            {{QMessageBox::Save, QStringLiteral("&Save mine over theirs")},
             {QMessageBox::Discard, QStringLiteral("&Reload theirs")},
             {QMessageBox::Cancel, QStringLiteral("Cancel")}},
            QMessageBox::Cancel);
        if (answer == QMessageBox::Discard)
            ReloadTheirs();
        if (answer != QMessageBox::Save)
            return false;
        result = document_.Save(dropConfirmed, OtherChanges::Overwrite);
    }
    if (!result.ok()) {
        ShowMessage(QMessageBox::Critical, QStringLiteral("Saving.."), before.FailureText(result));
        return false;
    }
    keptStamp_.clear();
    TellChangedElsewhere(false);
    ShowMessage(QMessageBox::Information, QStringLiteral("Info"),
                overTheirs ? QStringLiteral("Updated Player and Team data successfully\n\nThe files the other "
                                            "program saved are kept as players.dat.prev and teams.dat.prev.")
                           : QStringLiteral("Updated Player and Team data successfully"));
    emit saved();
    return true;
}

QMessageBox::StandardButton GameFiles::AskToSave()
{
    return ShowMessage(QMessageBox::Warning, QStringLiteral("Saving.."),
                       QStringLiteral("Do you want to update the files teams.dat and players.dat?"),
                       QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
}

bool GameFiles::MayLeaveGame()
{
    if (!document_.IsModified())
        return true;
    const QMessageBox::StandardButton answer = AskToSave();
    // A save that fails keeps the game open, so the edits are not lost.
    return answer == QMessageBox::No || (answer == QMessageBox::Yes && Save());
}

bool GameFiles::MayExit()
{
    const QMessageBox::StandardButton answer = AskToSave();
    return answer == QMessageBox::No || (answer == QMessageBox::Yes && Save());
}
