// What the window says about a game folder it cannot open and about a save
// that failed: which folder or file, why, and what became of the files.
#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include "data/game.h"
#include "commands/game_folder_trouble.h"
#include "commands/save_failure.h"
#include "support/qt_path.h"
#include "support/scratch_folder.h"

namespace {

void Write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

TEST(GameFolderTrouble, SaysWhichFolderAndWhy)
{
    const ScratchFolder root;
    const QString game = QtPath(root / "game");
    const struct {
        const char* what;
        std::function<void()> make;
        QString said;   // empty: the folder can be opened
    } cases[] = {
        {"no folder", [] {}, "The game folder " + QDir::toNativeSeparators(game) + " does not exist."},
        {"a file where the folder should be", [&] { Write(game, "x"); },
         "The game folder " + QDir::toNativeSeparators(game) + " is not a folder."},
        {"an empty folder", [&] { QFile::remove(game); QDir().mkpath(game); },
         "The game folder " + QDir::toNativeSeparators(game) + " holds no players.dat."},
        {"players.dat only", [&] { Write(game + "/players.dat", ""); },
         "The game folder " + QDir::toNativeSeparators(game) + " holds no teams.dat."},
        {"both files", [&] { Write(game + "/teams.dat", ""); }, ""},
    };
    for (const auto& c : cases) {
        c.make();
        const QString said = GameFolderTrouble(game).value_or(QString());
        EXPECT_TRUE(c.said.isEmpty() ? said.isEmpty() : said.startsWith(c.said)) << c.what << ": " << said.toStdString();
    }
}

TEST(SaveFailure, TheMessageSaysWhichFilesTheFailedSaveChanged)
{
    const ScratchFolder root;
    const auto filePath = [&](const char* name) { return QtPath(root / name); };
    auto game = std::make_unique<Game>();
    SetGameDirectory(*game, QFile::encodeName(QtPath(root.Path())).toStdString());
    const FileResult failure{game->TeamsPath, "the disk is full"};
    const struct {
        bool playersWritten;
        bool teamsWritten;
        QString outcome;
    } cases[] = {
        {false, false, "Neither players.dat nor teams.dat was changed."},
        {true, false, "players.dat was written but teams.dat was not"},
        {false, true, "teams.dat was written but players.dat was not"},
    };
    for (const auto& c : cases) {
        Write(filePath("players.dat"), "old players");
        Write(filePath("teams.dat"), "old teams");
        const FilesBeforeSave before(*game);
        if (c.playersWritten)
            Write(filePath("players.dat"), "new players");
        if (c.teamsWritten)
            Write(filePath("teams.dat"), "new teams");
        const QString said = before.FailureText(failure);
        EXPECT_TRUE(said.startsWith("Could not save " + QDir::toNativeSeparators(filePath("teams.dat")) + ":\nthe disk is full\n\n"))
            << said.toStdString();
        EXPECT_TRUE(said.contains(c.outcome)) << said.toStdString();
        EXPECT_TRUE(said.endsWith("Your changes are still in the editor.")) << said.toStdString();
    }
}

}  // namespace
