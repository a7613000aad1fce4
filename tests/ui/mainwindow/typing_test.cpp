// What is typed into a box goes into the current player's or team's record.

#include "editor_fixture.h"
#include <QStatusBar>

#include "forms/beep.h"

namespace {

using Typing = EditorTest;

TEST_F(Typing, ANewNameShowsInTheSquadListAndKeepsThePlayer)
{
    Open();
    TextBox& surname = Find<TextBox>(*main, "surname");
    surname.setFocus();
    surname.end(false);
    QTest::keyClicks(&surname, "s");
    const int caret = surname.cursorPosition();
    EXPECT_EQ(game->Players[1].surname, "Quillfeathers");
    EXPECT_EQ(Rows(Squad()), (std::vector<QString>{"H R Quillfeathers", " Ormsby", "T Vanterpool"}));
    EXPECT_EQ(Squad().ChosenRow(), 0);  // his row stays chosen, so Delete and Replace still find him
    EXPECT_EQ(main->CurrentPlayer(), 1);
    // The box being typed in is left alone.
    EXPECT_EQ(QApplication::focusWidget(), &surname);
    EXPECT_EQ(surname.cursorPosition(), caret);

    // Another field of his leaves the list and its choice.
    Pick(Squad(), " Ormsby");
    Retype("batSkill", "13");
    EXPECT_EQ(Squad().ChosenRow(), 1);
}

// Every name box turns away a key the files cannot carry, with a beep and
// the reason in the status bar (what each name refuses is the core's
// NameRefusal); only the surname refuses to become empty, as the search
// lists players by it. (How a number box takes a text is unsaved_work_test's.)
TEST_F(Typing, NameBoxesRefuseWhatTheFilesCannotCarryAndSayWhy)
{
    Open();
    const QStatusBar& status = *main->statusBar();
    for (const char* box : {"initials", "surname", "team.teamName", "team.abbreviation"}) {
        const int beeps = BeepCount();
        Retype(box, "O");
        QTest::keyClicks(&Find<TextBox>(*main, box), ",\"");
        EXPECT_EQ(status.currentMessage(), "A name cannot hold a comma") << box;
        EXPECT_EQ(BoxText(box), "O\"") << box;
        EXPECT_EQ(BeepCount(), beeps + 1) << box;
    }
    TextBox& surname = Find<TextBox>(*main, "surname");
    surname.setFocus();
    surname.end(false);
    for (int key = 0; key < 3; ++key)
        QTest::keyClick(&surname, Qt::Key_Backspace);
    EXPECT_EQ(surname.text(), "O");
    EXPECT_EQ(game->Players[1].surname, "O");
    EXPECT_EQ(status.currentMessage(),
              "A player needs a surname: type the new one before deleting the last letter");
    Retype("initials", "");
    EXPECT_EQ(game->Players[1].initials, "");
}

}  // namespace
