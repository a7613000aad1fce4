// Saving from the menu and its shortcut, leaving with and without saving,
// a save that the disk refuses, and the help key from any control.

#include <QFile>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

#include "data/file_io.h"
#include "editor_fixture.h"
#include "forms/combo_box.h"
#include "forms/list_box.h"
#include "forms/text_box.h"
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
        playersBefore_ = Bytes("players.dat");
        teamsBefore_ = Bytes("teams.dat");
        // One edit in each file.
        Retype(BatSkillBox, "58");
        Retype(TeamNameBox, "Perth Pelicans XI");
        Tick();
    }

    std::string Bytes(const char* file) const
    {
        return ReadWholeFile(ToSystemPath(GameFolder() + '/' + file)).value_or("(missing)");
    }
    bool FilesUnchanged() const
    {
        return Bytes("players.dat") == playersBefore_ && Bytes("teams.dat") == teamsBefore_;
    }
    bool EditsSaved() const
    {
        const auto read = ReadBack();
        return read->Players[1] == game->Players[1] && read->Teams[1] == game->Teams[1] &&
               read->Players[1].batSkill == 58 && read->Teams[1].teamName == "Perth Pelicans XI";
    }
    // Every control that the Tab key reaches.
    std::vector<QWidget*> FocusableControls() const
    {
        std::vector<QWidget*> controls;
        for (QWidget* child : main->centralWidget()->findChildren<QWidget*>()) {
            if (child->isVisible() && child->isEnabled() && (child->focusPolicy() & Qt::TabFocus))
                controls.push_back(child);
        }
        return controls;
    }

    std::string playersBefore_;
    std::string teamsBefore_;
};

TEST_F(Saving, UpdateWritesBothFilesAndGoesOn)
{
    main->updf->trigger();
    EXPECT_TRUE(EditsSaved());
    ASSERT_EQ(ShownMessages().size(), 1u);
    EXPECT_EQ(ShownMessages()[0].text, Saved);
    EXPECT_EQ(ShownMessages()[0].title, "Info");
    EXPECT_EQ(ShownMessages()[0].flags, 64);
    EXPECT_TRUE(main->isVisible());

    // The rest of the game comes back as it went in.
    const auto read = ReadBack();
    const GameBuilder original = SmallWorld();
    for (int number = 2; number <= 7; ++number)
        EXPECT_EQ(read->Players[std::size_t(number)], original.game->Players[std::size_t(number)]);
    for (int number = 2; number <= 5; ++number)
        EXPECT_EQ(read->Teams[std::size_t(number)], original.game->Teams[std::size_t(number)]);

    // Nothing in the window moved, and a second save says so again.
    EXPECT_EQ(main->List1->ListIndex(), 0);
    EXPECT_EQ(main->Text1[BatSkillBox]->Text(), "58");
    main->updf->trigger();
    EXPECT_EQ(MessageTexts(), (std::vector<QString>{Saved, Saved}));
}

TEST_F(Saving, ControlSAndF1WorkWhicheverControlHasTheFocus)
{
    const std::vector<QWidget*> controls = FocusableControls();
    ASSERT_EQ(controls.size(), 30u);
    for (QWidget* control : controls) {
        control->setFocus();
        ASSERT_EQ(QApplication::focusWidget(), control);
        ClearShownMessages();
        QTest::keyClick(control, Qt::Key_S, Qt::ControlModifier);
        QTest::keyClick(control, Qt::Key_F1);
        EXPECT_EQ(MessageTexts(), (std::vector<QString>{Saved, HelpText}))
            << control->metaObject()->className() << " at " << control->x() << "," << control->y();
    }
    EXPECT_TRUE(EditsSaved());
}

TEST_F(Saving, TheMenusOpenWithTheirAccessKeys)
{
    EXPECT_EQ(main->file->title(), "&File");
    EXPECT_EQ(main->help->title(), "&Help");
    std::vector<QString> items;
    for (const QMenu* menu : {main->file, main->help}) {
        for (const QAction* action : menu->actions())
            items.push_back(action->text() + " | " + action->shortcut().toString());
    }
    EXPECT_EQ(items, (std::vector<QString>{"&Options | ", "&Update Player && Team data file | Ctrl+S",
                                           "E&xit | ", "Help On Editor | F1", "&About | "}));

    // Alt+F, then U: the update command, as a person reaches it.
    QTest::keyClick(main.get(), Qt::Key_F, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([&] { return main->file->isVisible(); }, 2000));
    QTest::keyClick(main->file, Qt::Key_U);
    EXPECT_EQ(MessageTexts(), std::vector<QString>{Saved});
    EXPECT_TRUE(EditsSaved());
}

TEST_F(Saving, ExitAsksAndEveryAnswerDoesWhatItSays)
{
    Answer({IdCancel});
    main->exit->trigger();
    ASSERT_EQ(ShownMessages().size(), 1u);
    EXPECT_EQ(ShownMessages()[0].text, SaveQuestion);
    EXPECT_EQ(ShownMessages()[0].title, "Saving..");
    EXPECT_EQ(ShownMessages()[0].flags, 51);
    EXPECT_TRUE(main->isVisible());
    EXPECT_TRUE(FilesUnchanged());
    EXPECT_EQ(game->Players[1].batSkill, 58);

    Answer({IdNo});
    main->exit->trigger();
    EXPECT_FALSE(main->isVisible());
    EXPECT_TRUE(FilesUnchanged());
    EXPECT_EQ(MessageTexts(), (std::vector<QString>{SaveQuestion, SaveQuestion}));
}

TEST_F(Saving, ExitWithYesSavesThenCloses)
{
    Answer({IdYes, IdOk});
    main->exit->trigger();
    EXPECT_EQ(MessageTexts(), (std::vector<QString>{SaveQuestion, Saved}));
    EXPECT_TRUE(EditsSaved());
    EXPECT_FALSE(main->isVisible());
}

TEST_F(Saving, TheCloseBoxEndsWithoutAQuestion)
{
    EXPECT_TRUE(main->close());
    EXPECT_FALSE(main->isVisible());
    EXPECT_TRUE(ShownMessages().empty());
    EXPECT_TRUE(FilesUnchanged());
}

TEST_F(Saving, ASaveTheDiskRefusesIsToldAndLosesNothing)
{
    const QString teams = GameFolder() + "/teams.dat";
    QFile::setPermissions(teams, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);

    main->updf->trigger();
    ASSERT_EQ(ShownMessages().size(), 1u);
    EXPECT_EQ(ShownMessages()[0].flags, 16);
    EXPECT_TRUE(ShownMessages()[0].text.contains(teams)) << ShownMessages()[0].text.toStdString();
    EXPECT_TRUE(ShownMessages()[0].text.contains("read-only")) << ShownMessages()[0].text.toStdString();
    EXPECT_TRUE(FilesUnchanged());   // not even players.dat, which could have been written

    // Leaving with Yes stays open, so the edits are not thrown away.
    ClearShownMessages();
    Answer({IdYes, IdOk});
    main->exit->trigger();
    EXPECT_EQ(ShownMessages().size(), 2u);
    EXPECT_EQ(ShownMessages()[1].flags, 16);
    EXPECT_TRUE(main->isVisible());

    // Once the file can be written again, the same edits go to disk.
    QFile::setPermissions(teams, QFile::ReadOwner | QFile::WriteOwner);
    ClearShownMessages();
    main->updf->trigger();
    EXPECT_EQ(MessageTexts(), std::vector<QString>{Saved});
    EXPECT_TRUE(EditsSaved());
}

}  // namespace
