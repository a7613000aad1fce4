// Nothing typed is lost or changed behind the user's back: leaving with
// unsaved changes asks first, every step can be undone and redone, and what a
// box does not take as typed is shown. (That each key is in the record at
// once is detail_display_test's.)

#include <QDir>
#include <QPushButton>
#include <QStatusBar>

#include <gmock/gmock.h>

#include "editor_fixture.h"
#include "forms/box_marks.h"
#include "newplayerwindow/new_player_window.h"
#include "searchwindow/search_window.h"

using ::testing::ElementsAre;

namespace {

const QString SaveQuestion = QStringLiteral("Do you want to update the files teams.dat and players.dat?");
const QString Saved = QStringLiteral("Updated Player and Team data successfully");

class UnsavedWork : public EditorTest {
protected:
    ~UnsavedWork() override { SetModalDriver({}); }

    QAction& Undo() const { return Find<QAction>(*main, "undoAction"); }
    QAction& Redo() const { return Find<QAction>(*main, "redoAction"); }
    QPushButton& Button(const char* name) const { return Find<QPushButton>(*main, name); }

    // Searches every club and moves the player listed as `name` in.
    void Transfer(const char* button, const char* name, const char* moveButton)
    {
        Press<SearchWindow>(Button(button), [&](SearchWindow& search) {
            SearchAndPick(search, name);
            Find<QPushButton>(search, moveButton).click();
        });
    }
};

// The close box asks only when something is unsaved (File > Exit always
// asks); the title's mark says when that is so, also after an undo back to
// the saved state.
TEST_F(UnsavedWork, LeavingAsksWhenThereAreUnsavedChanges)
{
    const QString title = "KOLTA editor (" + QDir::toNativeSeparators(GameFolder()) + ")";
    const struct {
        bool throughMenu;
        bool edited;
        QMessageBox::StandardButton answer;
        bool closes;
        std::vector<QString> said;
    } cases[] = {
        {false, false, QMessageBox::Cancel, true, {}},  // not asked at all
        {false, true, QMessageBox::Cancel, false, {SaveQuestion}},
        {false, true, QMessageBox::No, true, {SaveQuestion}},
        {false, true, QMessageBox::Yes, true, {SaveQuestion, Saved}},
        {true, true, QMessageBox::Cancel, false, {SaveQuestion}},
        {true, true, QMessageBox::No, true, {SaveQuestion}},
        {true, true, QMessageBox::Yes, true, {SaveQuestion, Saved}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.throughMenu << " " << c.edited << " " << c.answer);
        Open();
        ClearShownMessages();
        const std::string before = Files();
        EXPECT_EQ(ShownTitle(*main), title);
        if (c.edited) {
            Retype("team.wealth", "700");
            EXPECT_EQ(ShownTitle(*main), title + "*");
        }
        Answer({c.answer});
        if (c.throughMenu)
            Find<QAction>(*main, "exitAction").trigger();
        else
            main->close();
        EXPECT_EQ(main->isVisible(), !c.closes);
        EXPECT_EQ(ShownTexts(), c.said);
        const bool saves = c.said.size() == 2;
        EXPECT_EQ(Files() == before, !saves);
        if (saves) {
            EXPECT_EQ(OnDisk()->Teams[1].wealth, 700);
        }
    }
    // The question, as the last leave asked it.
    ASSERT_FALSE(ShownMessages().empty());
    EXPECT_EQ(Look(ShownMessages()[0]),
              Look("Saving..", QMessageBox::Warning, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel));

    // Undoing back to the saved state takes the mark away (when the state
    // counts as saved is game_document_test's).
    Open();
    Retype("team.wealth", "700");
    Undo().trigger();
    EXPECT_EQ(ShownTitle(*main), title);
}

// Each kind of step in turn, saved, then all of them undone and redone: the
// Edit menu names the step, the window goes to the team and player it
// touched, and the undone session saves the files byte for byte as loaded.
TEST_F(UnsavedWork, EveryKindOfStepIsUndoneAndRedoneWhereItHappened)
{
    Open();
    const std::string loaded = Files();
    EXPECT_FALSE(Undo().isEnabled());

    // A box is one step however many keys are typed in it, until the focus leaves.
    Retype("batSkill", "2");
    QTest::keyClicks(&Find<TextBox>(*main, "batSkill"), "5");
    Retype("potential", "19");
    EXPECT_EQ(Undo().text(), "&Undo edit of Potential for H R Quillfeather");
    Undo().trigger();
    EXPECT_EQ(Undo().text(), "&Undo edit of Bat skill for H R Quillfeather");
    EXPECT_EQ(Redo().text(), "&Redo edit of Potential for H R Quillfeather");
    Redo().trigger();

    Answer({QMessageBox::Yes});
    Pick(Squad(), " Ormsby");
    Button("deletePlayerButton").click();
    EXPECT_EQ(Undo().text(), "&Undo delete of Ormsby");
    // A transfer between two teams, then a replace and a new player.
    Transfer("addExistingPlayerButton", "K Ashgrove", "addButton");
    EXPECT_EQ(Undo().text(), "&Undo add of K Ashgrove to Perth Pelicans");
    Pick(Squad(), "T Vanterpool");
    Transfer("replacePlayerButton", "W Calloway", "replaceButton");
    EXPECT_EQ(Undo().text(), "&Undo replace of T Vanterpool by W Calloway");
    Press<NewPlayerWindow>(Button("addNewPlayerButton"), [](NewPlayerWindow& form) {
        FillNewPlayer(form, "Newcombe");
        Find<QPushButton>(form, "okButton").click();
    });
    EXPECT_EQ(Undo().text(), "&Undo new player N Newcombe");
    EXPECT_EQ(game->PlayerCount, 7);
    Find<QAction>(*main, "saveAction").trigger();  // a save keeps the steps
    ASSERT_NE(Files(), loaded);

    // Undo goes back step by step; each shows the squad the step was made
    // in, with the row of the player it was about when he is in it.
    const struct {
        const char* row;
        const char* surname;
        std::vector<int> perth;
        std::vector<int> darwin;
    } undone[] = {
        {"", "", {1, 6, 4}, {0, 5}},                                // the new player is gone
        {"T Vanterpool", "Vanterpool", {1, 3, 4}, {0, 5}},          // Calloway back at his club
        {"", "", {1, 3}, {4, 0, 5}},                                // Ashgrove too
        {" Ormsby", "Ormsby", {1, 2, 3}, {4, 0, 5}},                // Ormsby back in his place
        {"H R Quillfeather", "Quillfeather", {1, 2, 3}, {4, 0, 5}},  // his Potential
    };
    for (const auto& step : undone) {
        Undo().trigger();
        EXPECT_THAT(Place(), ElementsAre("Australia", "Perth Pelicans", step.row, step.surname));
        EXPECT_EQ(Places(game->Teams[1]), step.perth);
        EXPECT_EQ(Places(game->Teams[2]), step.darwin);
    }
    EXPECT_EQ(BoxText("potential"), "16");
    Undo().trigger();
    EXPECT_EQ(BoxText("batSkill"), "52");
    EXPECT_FALSE(Undo().isEnabled());
    // Saved again, the files are byte for byte those that were loaded.
    Find<QAction>(*main, "saveAction").trigger();
    EXPECT_TRUE(Files() == loaded);

    for (int step = 0; step < 5; ++step)
        Redo().trigger();
    EXPECT_THAT(Place(), ElementsAre("Australia", "Perth Pelicans", "W Calloway", "Calloway"));
    Redo().trigger();
    EXPECT_FALSE(Redo().isEnabled());
    EXPECT_EQ(Places(game->Teams[1]), (std::vector<int>{1, 6, 4, 7}));
    EXPECT_THAT(Place(), ElementsAre("Australia", "Perth Pelicans", "N Newcombe", "Newcombe"));
    EXPECT_EQ(game->Players[1].batSkill, 25);
    EXPECT_EQ(game->Players[1].potential, 19);
}

// No player of another squad stays on show; the wheel changes nothing it
// passes over; a box its field does not take as typed says so, and once it
// is left, by Tab or by a command, its whole edit is taken back.
TEST_F(UnsavedWork, NoStaleStateNoWheelEditsAndVisibleRefusals)
{
    Open();
    const QWidget& column = Find<QWidget>(*main, "playerColumn");
    Pick(Combo("teamList"), "Darwin Dingoes");
    EXPECT_EQ(main->CurrentPlayer(), std::nullopt);
    EXPECT_FALSE(column.isEnabled());
    EXPECT_EQ(BoxText("surname"), "");
    EXPECT_EQ(game->Players[1].surname, "Quillfeather");
    Pick(Squad(), "K Ashgrove");
    EXPECT_TRUE(column.isEnabled());

    // The wheel over a list the user is not working passes it by.
    EXPECT_FALSE(WheelDown(Combo("batPosition")));

    const QString notWhole = " is not a whole number from -32768 to 32767";
    const struct {
        const char* box;
        const char* text;
        BoxMark mark;
        QString status;
        QString left, statusLeft;   // the box and the status bar once left
        Qt::Key leaveBy = Qt::Key_Tab;
    } typed[] = {
        {"team.wealth", "1234567", BoxMark::Refused,
         "Wealth takes a whole number from -32768 to 32767: the record holds 0.", "0",
         "Wealth stays 0: 1234567" + notWhole},
        {"batSkill", "75", BoxMark::Unusual, "Bat skill runs from 0 to 60 in the game: 75 is stored all the same.",
         "75", ""},
        {"batSkill", "44", BoxMark::Plain, "", "44", ""},
        // A whole edit: 50 was held a moment, and goes with the rest.
        {"batSkill", "50x", BoxMark::Refused,
         "Bat skill takes a whole number from -32768 to 32767: the record holds 44.", "44",
         "Bat skill stays 44: 50x" + notWhole, Qt::Key_Return},
    };
    for (const auto& t : typed) {
        Retype(t.box, t.text);
        TextBox& box = Find<TextBox>(*main, t.box);
        EXPECT_EQ(MarkOf(box), t.mark) << t.text;
        EXPECT_EQ(box.toolTip(), t.status) << t.text;
        EXPECT_EQ(main->statusBar()->currentMessage(), t.status) << t.text;
        QTest::keyClick(&box, t.leaveBy);
        EXPECT_EQ(box.text(), t.left) << t.text;
        EXPECT_EQ(MarkOf(box), t.mark == BoxMark::Refused ? BoxMark::Plain : t.mark) << t.text;
        EXPECT_EQ(main->statusBar()->currentMessage(), t.statusLeft) << t.text;
    }
    EXPECT_EQ(game->Players[4].batSkill, 44);
    EXPECT_EQ(Undo().text(), "&Undo edit of Bat skill for K Ashgrove") << "no step of Wealth";
    // Ctrl+S with the box still in use: the files never see the text.
    Retype("team.wealth", "1234567");
    Find<QAction>(*main, "saveAction").trigger();
    EXPECT_EQ(BoxText("team.wealth"), "0");
    EXPECT_EQ(OnDisk()->Teams[2].wealth, 0);
    EXPECT_EQ(OnDisk()->Players[4].batSkill, 44);
}

}  // namespace
