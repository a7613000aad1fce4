// Saving with the shortcut, leaving with and without saving, and a save that
// the disk refuses.

#include <QDir>
#include <QFile>

#include "data/file_io.h"
#include "data/players_file.h"
#include "data/teams_file.h"
#include "editor_fixture.h"
#include "options/options_window.h"

namespace {

const QString Saved = QStringLiteral("Updated Player and Team data successfully");
const QString SaveQuestion = QStringLiteral("Do you want to update the files teams.dat and players.dat?");

std::vector<QString> MessageTexts()
{
    std::vector<QString> texts;
    for (const ShownMessage& message : ShownMessages())
        texts.push_back(message.text);
    return texts;
}

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

    std::string Files() const
    {
        const auto bytes = [this](const char* file) {
            return ReadWholeFile(ToSystemPath(GameFolder() + '/' + file)).value_or("(missing)");
        };
        return bytes("players.dat") + "|" + bytes("teams.dat");
    }
    bool FilesUnchanged() const { return Files() == filesBefore_; }
    // The whole game as the window holds it, the two edits included.
    bool EditsSaved() const
    {
        const auto read = std::make_unique<Game>();
        SetGameDirectory(*read, ToSystemPath(GameFolder()));
        return ReadPlayersFile(*read).Read() && ReadTeamsFile(*read).Read() && read->Players == game->Players &&
               read->Teams == game->Teams && read->Players[1].batSkill == 58 &&
               read->Teams[1].teamName == "Perth Pelicans XI";
    }

    std::string filesBefore_;
};

TEST_F(Saving, CtrlSSavesWhicheverControlHasTheFocus)
{
    int controls = 0;
    for (QWidget* control : main->centralWidget()->findChildren<QWidget*>()) {
        if (!control->isVisible() || !control->isEnabled() || !(control->focusPolicy() & Qt::TabFocus))
            continue;
        ++controls;
        control->setFocus();
        ClearShownMessages();
        QTest::keyClick(control, Qt::Key_S, Qt::ControlModifier);
        EXPECT_EQ(MessageTexts(), std::vector<QString>{Saved})
            << control->metaObject()->className() << " at " << control->x() << "," << control->y();
    }
    EXPECT_EQ(controls, 30);
    EXPECT_TRUE(EditsSaved());
    ASSERT_EQ(ShownMessages().size(), 1u);
    EXPECT_EQ(ShownMessages()[0].title, "Info");
    EXPECT_EQ(Look(ShownMessages()[0]), Look(QMessageBox::Information));
    EXPECT_EQ(BoxText("batSkill"), "58");   // nothing in the window moved
}

// The answer to the question on leaving, whether the window closes and whether it saves.
class ExitAnswer : public Saving,
                   public ::testing::WithParamInterface<std::tuple<QMessageBox::StandardButton, bool, bool>> {};

TEST_P(ExitAnswer, DoesWhatItSays)
{
    const auto [answer, closes, saves] = GetParam();
    Answer({answer, QMessageBox::Ok});
    Find<QAction>(*main, "exitAction").trigger();
    ASSERT_EQ(ShownMessages().size(), saves ? 2u : 1u);
    EXPECT_EQ(ShownMessages()[0].text, SaveQuestion);
    EXPECT_EQ(ShownMessages()[0].title, "Saving..");
    EXPECT_EQ(Look(ShownMessages()[0]),
              Look(QMessageBox::Warning, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel));
    EXPECT_EQ(main->isVisible(), !closes);
    EXPECT_TRUE(saves ? EditsSaved() : FilesUnchanged());
}

INSTANTIATE_TEST_SUITE_P(Saving, ExitAnswer,
                         ::testing::Values(std::tuple(QMessageBox::Cancel, false, false),
                                           std::tuple(QMessageBox::No, true, false),
                                           std::tuple(QMessageBox::Yes, true, true)));

TEST_F(Saving, ASaveTheDiskRefusesIsToldAndExitStaysOpen)
{
    const QString teams = GameFolder() + "/teams.dat";
    QFile::setPermissions(teams, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
    Find<QAction>(*main, "saveAction").trigger();
    ASSERT_EQ(ShownMessages().size(), 1u);
    EXPECT_EQ(Look(ShownMessages()[0]), Look(QMessageBox::Critical));
    const QString said = ShownMessages()[0].text;
    EXPECT_TRUE(said.contains(QDir::toNativeSeparators(teams)) && said.contains("read-only")) << said.toStdString();
    EXPECT_TRUE(said.contains("Neither players.dat nor teams.dat was changed.")) << said.toStdString();
    EXPECT_TRUE(FilesUnchanged());   // not even players.dat, which could have been written
    EXPECT_EQ(game->Players[1].batSkill, 58);
    EXPECT_EQ(BoxText("team.teamName"), "Perth Pelicans XI");

    // Leaving with Yes stays open, so the edits are not thrown away.
    ClearShownMessages();
    Answer({QMessageBox::Yes, QMessageBox::Ok});
    Find<QAction>(*main, "exitAction").trigger();
    ASSERT_EQ(ShownMessages().size(), 2u);
    EXPECT_EQ(Look(ShownMessages()[1]), Look(QMessageBox::Critical));
    EXPECT_TRUE(main->isVisible());
    QFile::setPermissions(teams, QFile::ReadOwner | QFile::WriteOwner);
}

}  // namespace
