// What is typed into a box goes into the current player's or team's record.

#include "editor_fixture.h"
#include "forms/beep.h"

namespace {

using Typing = EditorTest;

TEST_F(Typing, ANumberReachesTheRecordAndAnythingElseLeavesTheLastGoodValue)
{
    Open();
    const int beeps = BeepCount();
    // Each text in turn, typed afresh after leaving the box, with the value
    // the field holds then.
    const std::vector<std::pair<QString, int>> cases{
        {"44", 44}, {" -7 ", -7}, {"13.5", 14}, {"1e2", 100}, {"abc", 100}, {"32768", 100},
        {"1,000", 100}, {"-32768", -32768}, {"5", 5}, {"", 5}, {" ", 5},
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

TEST_F(Typing, NameBoxesRefuseWhatTheFilesCannotCarry)
{
    Open();
    for (const char* box : {"initials", "surname", "team.teamName", "team.abbreviation"}) {
        const int beeps = BeepCount();
        Retype(box, "\"O,Neil\"s");   // a quote inside a name is fine
        EXPECT_EQ(BoxText(box), "ONeil\"s") << box;
        EXPECT_EQ(BeepCount(), beeps + 2);
    }
}

}  // namespace
