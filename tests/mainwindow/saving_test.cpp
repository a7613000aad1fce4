// Saving from the menu and its shortcut, leaving with and without saving,
// a save that the disk refuses, and the help key from any control.

#include <QFile>
#include <QMenu>

#include "data/file_io.h"
#include "editor_fixture.h"
#include "options/options_form.h"

namespace {

const QString Saved = QStringLiteral("Updated Player and Team data successfully");
const QString SaveQuestion = QStringLiteral("Do you want to update the files teams.dat and players.dat?");
const QString HelpText = QStringLiteral("Please read help.txt file for help on KOLTA editor.");

class Saving : public EditorTest {
protected:
    void SetUp() override
    {
        Open();
        filesBefore_ = Files();
        // One edit in each file.
        Retype(BatSkillBox, "58");
        Retype(TeamNameBox, "Perth Pelicans XI");
        Tick();
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
        const auto read = ReadBack();
        return read->Players == game->Players && read->Teams == game->Teams &&
               read->Players[1].batSkill == 58 && read->Teams[1].teamName == "Perth Pelicans XI";
    }

    std::string filesBefore_;
};

TEST_F(Saving, UpdateCtrlSAndF1WorkWhicheverControlHasTheFocus)
{
    main->updf->trigger();
    EXPECT_TRUE(EditsSaved());
    ASSERT_EQ(MessageTexts(), std::vector<QString>{Saved});
    EXPECT_EQ(ShownMessages()[0].title, "Info");
    EXPECT_EQ(ShownMessages()[0].flags, 64);
    EXPECT_EQ(main->List1->ListIndex(), 0);   // nothing in the window moved
    EXPECT_EQ(BoxText(BatSkillBox), "58");

    Retype(BatSkillBox, "59");
    Tick();
    int controls = 0;
    for (QWidget* control : main->centralWidget()->findChildren<QWidget*>()) {
        if (!control->isVisible() || !control->isEnabled() || !(control->focusPolicy() & Qt::TabFocus))
            continue;
        ++controls;
        control->setFocus();
        ClearShownMessages();
        QTest::keyClick(control, Qt::Key_S, Qt::ControlModifier);
        QTest::keyClick(control, Qt::Key_F1);
        EXPECT_EQ(MessageTexts(), (std::vector<QString>{Saved, HelpText}))
            << control->metaObject()->className() << " at " << control->x() << "," << control->y();
    }
    EXPECT_EQ(controls, 30);
    EXPECT_EQ(ReadBack()->Players[1].batSkill, 59);

    // Alt+F, then U: the update command, as a person reaches it.
    ClearShownMessages();
    QTest::keyClick(main.get(), Qt::Key_F, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([&] { return main->file->isVisible(); }, 2000));
    QTest::keyClick(main->file, Qt::Key_U);
    EXPECT_EQ(MessageTexts(), std::vector<QString>{Saved});
}

// The answer to the question on leaving, whether the window closes and whether it saves.
class ExitAnswer : public Saving, public ::testing::WithParamInterface<std::tuple<int, bool, bool>> {};

TEST_P(ExitAnswer, DoesWhatItSays)
{
    const auto [answer, closes, saves] = GetParam();
    Answer({answer, IdOk});
    main->exit->trigger();
    ASSERT_EQ(ShownMessages().size(), saves ? 2u : 1u);
    EXPECT_EQ(ShownMessages()[0].text, SaveQuestion);
    EXPECT_EQ(ShownMessages()[0].title, "Saving..");
    EXPECT_EQ(ShownMessages()[0].flags, 51);
    EXPECT_EQ(main->isVisible(), !closes);
    EXPECT_TRUE(saves ? EditsSaved() : FilesUnchanged());
}

INSTANTIATE_TEST_SUITE_P(Saving, ExitAnswer,
                         ::testing::Values(std::tuple(IdCancel, false, false), std::tuple(IdNo, true, false),
                                           std::tuple(IdYes, true, true)));

TEST_F(Saving, ASaveTheDiskRefusesIsToldAndExitStaysOpen)
{
    const QString teams = GameFolder() + "/teams.dat";
    QFile::setPermissions(teams, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
    main->updf->trigger();
    ASSERT_EQ(ShownMessages().size(), 1u);
    EXPECT_EQ(ShownMessages()[0].flags, 16);
    const QString said = ShownMessages()[0].text;
    EXPECT_TRUE(said.contains(teams) && said.contains("read-only")) << said.toStdString();
    EXPECT_TRUE(FilesUnchanged());   // not even players.dat, which could have been written

    // Leaving with Yes stays open, so the edits are not thrown away.
    ClearShownMessages();
    Answer({IdYes, IdOk});
    main->exit->trigger();
    ASSERT_EQ(ShownMessages().size(), 2u);
    EXPECT_EQ(ShownMessages()[1].flags, 16);
    EXPECT_TRUE(main->isVisible());

    // The close box still ends at once, without a question.
    EXPECT_TRUE(main->close());
    EXPECT_EQ(ShownMessages().size(), 2u);
    EXPECT_TRUE(FilesUnchanged());
    QFile::setPermissions(teams, QFile::ReadOwner | QFile::WriteOwner);
}

}  // namespace
