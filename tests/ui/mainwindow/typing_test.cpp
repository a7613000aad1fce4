// What is typed into a box goes into the current player's or team's record.

#include "editor_fixture.h"
#include <QStatusBar>

#include "forms/beep.h"

namespace {

using Typing = EditorTest;

TEST_F(Typing, AWholeNumberReachesTheRecordAndAnythingElseLeavesTheValueTheBoxWasEnteredWith)
{
    Open();
    const int beeps = BeepCount();
    // Each text in turn, typed afresh after leaving the box, with the value
    // the field holds then: a number it cannot hold as typed is none.
    const std::vector<std::pair<QString, int>> cases{
        {"44", 44}, {" -7 ", -7}, {"13.5", -7}, {"1e2", -7}, {"abc", -7}, {"32768", -7},
        {"1,000", -7}, {"-32768", -32768}, {"5", 5}, {"", 5}, {" ", 5},
    };
    for (const auto& [text, value] : cases) {
        Retype("batSkill", text);
        EXPECT_EQ(game->Players[1].batSkill, value) << text.toStdString();
        EXPECT_EQ(BoxText("batSkill"), text);   // the box keeps what was typed
        Squad().setFocus();
    }
    EXPECT_EQ(BeepCount(), beeps);   // no sound, no message: the box just waits
    EXPECT_TRUE(ShownMessages().empty());
}

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

// A refused key says why in the status bar, and the keys after it leave the
// word there; only the surname refuses to become empty, as the search lists
// players by it.
TEST_F(Typing, NameBoxesRefuseWhatTheFilesCannotCarryAndSayWhy)
{
    Open();
    const QStatusBar& status = *main->statusBar();
    for (const char* box : {"initials", "surname", "team.teamName", "team.abbreviation"}) {
        TextBox& edit = Find<TextBox>(*main, box);
        const int beeps = BeepCount();
        Retype(box, "O");
        QTest::keyClicks(&edit, ",Neil\"s");   // a quote inside a name is fine
        EXPECT_EQ(status.currentMessage(), "A name cannot hold a comma") << box;
        QTest::keyClick(&edit, Qt::Key_Home);
        QTest::keyClicks(&edit, "\"");
        EXPECT_EQ(status.currentMessage(), "A name cannot begin with a double quote") << box;
        QTest::keyClicks(&edit, " ");
        EXPECT_EQ(status.currentMessage(), "A name cannot begin with a blank") << box;
        EXPECT_EQ(edit.text(), "ONeil\"s") << box;
        EXPECT_EQ(BeepCount(), beeps + 3) << box;
    }
    TextBox& surname = Find<TextBox>(*main, "surname");
    surname.setFocus();
    surname.end(false);
    for (int key = 0; key < 7; ++key)
        QTest::keyClick(&surname, Qt::Key_Backspace);
    EXPECT_EQ(surname.text(), "O");
    EXPECT_EQ(game->Players[1].surname, "O");
    EXPECT_EQ(status.currentMessage(),
              "A player needs a surname: type the new one before deleting the last letter");
    Retype("initials", "");
    EXPECT_EQ(game->Players[1].initials, "");
}

}  // namespace
