// Saving with the shortcut from any control, a save that the disk refuses,
// also on the way out, and files another program saved meanwhile; what the
// message of a failed save says became of the files.

#include <QDir>
#include <QFile>

#include "commands/save_failure.h"
#include "data/load_game.h"
#include "data/save.h"
#include "editor_fixture.h"
#include "mainwindow/changed_files_bar.h"
#include "options/options_window.h"

namespace {

const QString Saved = QStringLiteral("Updated Player and Team data successfully");

class Saving : public EditorTest {
protected:
    void SetUp() override
    {
        Open();
        filesBefore_ = Files();
        // One edit in each file.
        Retype("batSkill", "58");
        Retype("team.teamName", "Perth Pelicans XI");
    }

    // Another program saves the game, as kolta-data import does, with Perth's
    // wealth at `wealth`; what the files hold then.
    std::string SaveAsAnotherProgram(std::int16_t wealth) const
    {
        auto theirs = std::make_unique<Game>();
        SetGameDirectory(*theirs, ToSystemPath(GameFolder()));
        LoadGame(*theirs);
        theirs->Teams[1].wealth = wealth;
        EXPECT_TRUE(SaveGame(*theirs).ok());
        return Files();
    }

    std::string filesBefore_;
};

TEST_F(Saving, CtrlSSavesFromAnyControlAndAsksBeforeSavingOverAnotherProgram)
{
    int controls = 0;
    for (QWidget* control : main->centralWidget()->findChildren<QWidget*>()) {
        if (!control->isVisible() || !control->isEnabled() || !(control->focusPolicy() & Qt::TabFocus))
            continue;
        ++controls;
        control->setFocus();
        ClearShownMessages();
        QTest::keyClick(control, Qt::Key_S, Qt::ControlModifier);
        EXPECT_EQ(ShownTexts(), std::vector<QString>{Saved})
            << control->metaObject()->className() << " at " << control->x() << "," << control->y();
    }
    ASSERT_EQ(controls, 30);
    // The whole game as the window holds it, the two edits included.
    const auto read = OnDisk();
    EXPECT_TRUE(read->Players == game->Players && read->Teams == game->Teams);
    EXPECT_EQ(read->Players[1].batSkill, 58);
    EXPECT_EQ(read->Teams[1].teamName, "Perth Pelicans XI");
    EXPECT_EQ(Look(ShownMessages()[0]), Look("Info", QMessageBox::Information));
    EXPECT_EQ(BoxText("batSkill"), "58");   // nothing in the window moved

    // The bar tells of another program's save, never of the editor's own; a
    // save over it asks, and its default, Cancel, leaves both sides as they are.
    auto& bar = Find<ChangedFilesBar>(*main, "changedFilesBar");
    QTest::qWait(500);   // the watch has looked at the files by now
    EXPECT_FALSE(bar.isVisible());
    SaveAsAnotherProgram(1000);
    ASSERT_TRUE(QTest::qWaitFor([&] { return bar.isVisible(); }, 2000));
    QTest::mouseClick(bar.keepMineButton, Qt::LeftButton);
    EXPECT_FALSE(bar.isVisible());

    const struct {
        const char* what;
        std::vector<QMessageBox::StandardButton> answers;   // to the save, then to the reload
        bool savesMine;
        bool reloads;
    } cases[] = {
        {"Cancel", {QMessageBox::Cancel}, false, false},
        {"reload, then not", {QMessageBox::Discard, QMessageBox::Cancel}, false, false},
        {"reload", {QMessageBox::Discard, QMessageBox::Yes}, false, true},
        {"save mine over theirs", {QMessageBox::Save, QMessageBox::Ok}, true, false},
    };
    std::int16_t wealth = 1000;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        Retype("batSkill", "59");
        const std::int16_t mine = game->Teams[1].wealth;
        const std::string theirs = SaveAsAnotherProgram(++wealth);
        ASSERT_TRUE(QTest::qWaitFor([&] { return bar.isVisible(); }, 2000));
        ClearShownMessages();
        Answer(c.answers);
        QTest::keyClick(main, Qt::Key_S, Qt::ControlModifier);
        ASSERT_FALSE(ShownMessages().empty());
        EXPECT_EQ(ShownMessages()[0].defaultButton, QMessageBox::Cancel);
        EXPECT_EQ(Files() == theirs, !c.savesMine);
        EXPECT_EQ(game->Teams[1].wealth, c.reloads ? wealth : mine);
        EXPECT_EQ(game->Players[1].batSkill, c.reloads ? 58 : 59);
        EXPECT_EQ(Document().IsModified(), !c.reloads && !c.savesMine);
        EXPECT_EQ(bar.isVisible(), !c.reloads && !c.savesMine);
        if (c.savesMine) {  // what the .prev pair holds is pair_commit_test's
            EXPECT_TRUE(ShownMessages().back().text.contains("players.dat.prev and teams.dat.prev"));
        }
        EXPECT_TRUE(main->isVisible());
    }
}

TEST_F(Saving, ASaveTheDiskRefusesIsToldAndExitStaysOpen)
{
    const QString teams = GameFolder() + "/teams.dat";
    QFile::setPermissions(teams, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
    Find<QAction>(*main, "saveAction").trigger();
    ASSERT_EQ(ShownMessages().size(), 1u);
    EXPECT_EQ(Look(ShownMessages()[0]), Look("Saving..", QMessageBox::Critical));
    const QString said = ShownMessages()[0].text;
    EXPECT_TRUE(said.contains(QDir::toNativeSeparators(teams)) && said.contains("read-only")) << said.toStdString();
    EXPECT_TRUE(Files() == filesBefore_);   // not even players.dat, which could have been written
    EXPECT_EQ(game->Players[1].batSkill, 58);
    EXPECT_EQ(BoxText("team.teamName"), "Perth Pelicans XI");

    // Leaving with Yes stays open, so the edits are not thrown away.
    ClearShownMessages();
    Answer({QMessageBox::Yes, QMessageBox::Ok});
    Find<QAction>(*main, "exitAction").trigger();
    ASSERT_EQ(ShownMessages().size(), 2u);
    EXPECT_EQ(Look(ShownMessages()[1]), Look("Saving..", QMessageBox::Critical));
    EXPECT_TRUE(main->isVisible());
    QFile::setPermissions(teams, QFile::ReadOwner | QFile::WriteOwner);
}

void Write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
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
