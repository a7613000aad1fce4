// Nothing typed is lost or changed behind the user's back: an edit is in the
// records before any command reads them, leaving with unsaved changes asks
// first, every step can be undone and redone, and what a box does not take
// as typed is shown.

#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QStatusBar>
#include <QWheelEvent>

#include "data/file_io.h"
#include "data/players_file.h"
#include "data/setting_file.h"
#include "data/teams_file.h"
#include "editor_fixture.h"
#include "forms/box_marks.h"
#include "forms/modal.h"
#include "newplayerwindow/new_player_window.h"
#include "options/options_window.h"
#include "searchwindow/search_window.h"

namespace {

const QString SaveQuestion = QStringLiteral("Do you want to update the files teams.dat and players.dat?");

class UnsavedWork : public EditorTest {
protected:
    ~UnsavedWork() override { SetModalDriver({}); }

    // Opens the small game, no message shown yet.
    void OpenStill()
    {
        Open();
        ClearShownMessages();
    }

    std::string FileBytes(const char* file) const
    {
        return ReadWholeFile(ToSystemPath(GameFolder() + '/' + file)).value_or("(missing)");
    }
    std::string Files() const { return FileBytes("players.dat") + "|" + FileBytes("teams.dat"); }

    // The game as the files in the folder hold it.
    std::unique_ptr<Game> OnDisk() const
    {
        auto read = std::make_unique<Game>();
        SetGameDirectory(*read, ToSystemPath(GameFolder()));
        ReadPlayersFile(*read);
        ReadTeamsFile(*read);
        return read;
    }

    QAction& Undo() const { return Find<QAction>(*main, "undoAction"); }
    QAction& Redo() const { return Find<QAction>(*main, "redoAction"); }
    QPushButton& Button(const char* name) const { return Find<QPushButton>(*main, name); }

    // Runs `work` on the window the button opens.
    template <typename Window>
    void Through(const char* button, std::function<void(Window&)> work)
    {
        SetModalDriver([&](QDialog& shown) { work(dynamic_cast<Window&>(shown)); });
        Button(button).click();
        SetModalDriver({});
    }

    // Searches every club and moves the player of that surname in.
    void Transfer(const char* button, const char* surname, const char* moveButton)
    {
        Through<SearchWindow>(button, [&](SearchWindow& search) {
            Find<QPushButton>(search, "searchButton").click();
            ChoiceList& results = Find<ChoiceList>(search, "resultList");
            QString row;
            for (const QString& listed : Rows(results))
                if (listed.endsWith(QLatin1Char(' ') + QLatin1String(surname)))
                    row = listed;
            ASSERT_TRUE(Pick(results, row)) << surname;
            Find<QPushButton>(search, moveButton).click();
        });
    }

    void NewPlayer(const char* surname)
    {
        Through<NewPlayerWindow>("addNewPlayerButton", [&](NewPlayerWindow& form) {
            const std::pair<const char*, const char*> typed[] = {
                {"initials", "N"}, {"surname", surname}, {"birthDay", "1"},      {"birthMonth", "2"},
                {"birthYear", "1990"}, {"batSkill", "30"}, {"batAggression", "5"}, {"bowlSkill", "20"},
                {"bowlEconomy", "9"},  {"fieldAbility", "20"}, {"potential", "10"},
            };
            for (const auto& [box, text] : typed)
                Find<TextBox>(form, box).setText(text);
            Find<QPushButton>(form, "okButton").click();
        });
    }

    // What the window shows: team entry, squad row's player and the name box.
    std::tuple<QString, int, QString> Shown() const
    {
        const int row = Squad().ChosenRow();
        return {Combo("teamList").currentText(), row >= 0 ? Squad().NumberAt(row) : 0, BoxText("surname")};
    }
};

// An edit typed a moment before a command is in the records when it runs.
TEST_F(UnsavedWork, AnEditJustTypedReachesTheRecordsBeforeAnyCommand)
{
    const struct {
        const char* what;
        std::function<void()> command;
        bool saved;
    } cases[] = {
        {"Ctrl+S", [] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_S, Qt::ControlModifier); }, true},
        {"another row", [this] { Pick(Squad(), " Ormsby"); }, false},
        {"another team", [this] { Pick(Combo("teamList"), "Darwin Dingoes"); }, false},
        {"another country", [this] { Pick(Combo("countryList"), Combo("countryList").itemText(7)); }, false},
        {"delete, answered No",
         [this] {
             Answer({QMessageBox::No});
             Button("deletePlayerButton").click();
         },
         false},
        {"the search window", [this] { Through<SearchWindow>("addExistingPlayerButton", [](SearchWindow&) {}); },
         false},
        {"the new-player window", [this] { Through<NewPlayerWindow>("addNewPlayerButton", [](NewPlayerWindow&) {}); },
         false},
        {"the close box, saving",
         [this] {
             Answer({QMessageBox::Yes, QMessageBox::Ok});
             main->close();
         },
         true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        OpenStill();
        Retype("batSkill", "25");
        c.command();
        EXPECT_EQ(game->Players[1].batSkill, 25);
        EXPECT_EQ(OnDisk()->Players[1].batSkill, c.saved ? 25 : 52);
    }
}

// The close box asks only when something is unsaved; the title's mark says
// when that is so, also after an undo back to the saved state.
TEST_F(UnsavedWork, TheCloseBoxAsksWhenThereAreUnsavedChanges)
{
    const struct {
        bool edited;
        QMessageBox::StandardButton answer;
        bool closes;
        bool saves;
    } cases[] = {
        {false, QMessageBox::Cancel, true, false},  // not asked at all
        {true, QMessageBox::Cancel, false, false},
        {true, QMessageBox::No, true, false},
        {true, QMessageBox::Yes, true, true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.edited << " " << c.answer);
        OpenStill();
        const std::string before = Files();
        EXPECT_EQ(ShownTitle(*main), "KOLTA editor (" + QDir::toNativeSeparators(GameFolder()) + ")");
        if (c.edited) {
            Retype("team.wealth", "700");
            EXPECT_EQ(ShownTitle(*main), "KOLTA editor (" + QDir::toNativeSeparators(GameFolder()) + ")*");
        }
        Answer({c.answer, QMessageBox::Ok});
        main->close();
        EXPECT_EQ(main->isVisible(), !c.closes);
        ASSERT_EQ(ShownMessages().empty(), !c.edited);
        if (c.edited) {
            EXPECT_EQ(ShownMessages()[0].text, SaveQuestion);
            EXPECT_EQ(ShownMessages()[0].title, "Saving..");
            EXPECT_EQ(Look(ShownMessages()[0]),
                      Look(QMessageBox::Warning, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel));
        }
        EXPECT_EQ(Files() == before, !c.saves);
    }

    // Undoing back to the saved state takes the mark away; a save keeps the
    // steps, and undoing past it puts the mark back.
    OpenStill();
    Retype("team.wealth", "700");
    Undo().trigger();
    EXPECT_EQ(ShownTitle(*main), "KOLTA editor (" + QDir::toNativeSeparators(GameFolder()) + ")");
    EXPECT_FALSE(Document().IsModified());
    Redo().trigger();
    Answer({QMessageBox::Ok});
    Find<QAction>(*main, "saveAction").trigger();
    EXPECT_EQ(ShownTitle(*main), "KOLTA editor (" + QDir::toNativeSeparators(GameFolder()) + ")");
    Undo().trigger();
    EXPECT_EQ(ShownTitle(*main), "KOLTA editor (" + QDir::toNativeSeparators(GameFolder()) + ")*");
    EXPECT_EQ(BoxText("team.wealth"), "-250");
}

// Each kind of step in turn, then all of them undone and redone: the Edit
// menu names the step, and the window goes to the team and player it touched.
TEST_F(UnsavedWork, EveryKindOfStepIsUndoneAndRedoneWhereItHappened)
{
    OpenStill();
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

    const auto undoText = [&] { return Undo().text(); };
    Answer({QMessageBox::Yes});
    Pick(Squad(), " Ormsby");
    Button("deletePlayerButton").click();
    EXPECT_EQ(undoText(), "&Undo delete of Ormsby");
    // A transfer between two teams, then a replace and a new player.
    Transfer("addExistingPlayerButton", "Ashgrove", "addButton");
    EXPECT_EQ(undoText(), "&Undo add of K Ashgrove to Perth Pelicans");
    Pick(Squad(), "T Vanterpool");
    Transfer("replacePlayerButton", "Calloway", "replaceButton");
    EXPECT_EQ(undoText(), "&Undo replace of T Vanterpool by W Calloway");
    NewPlayer("Newcombe");
    EXPECT_EQ(undoText(), "&Undo new player N Newcombe");
    EXPECT_EQ(game->PlayerCount, 7);
    EXPECT_EQ(Places(game->Teams[1]), (std::vector<int>{1, 6, 4, 7}));

    // Undo goes back step by step; each shows the team and player touched.
    using View = std::tuple<QString, int, QString>;
    const struct {
        View view;
        std::vector<int> perth;
        std::vector<int> darwin;
    } undone[] = {
        {{"Perth Pelicans", 0, ""}, {1, 6, 4}, {0, 5}},                 // the new player is gone
        {{"Kingston Kites", 6, "Calloway"}, {1, 3, 4}, {0, 5}},         // Calloway back at his club
        {{"Darwin Dingoes", 4, "Ashgrove"}, {1, 3}, {4, 0, 5}},         // Ashgrove too
        {{"Perth Pelicans", 2, "Ormsby"}, {1, 2, 3}, {4, 0, 5}},        // Ormsby back in his place
        {{"Perth Pelicans", 1, "Quillfeather"}, {1, 2, 3}, {4, 0, 5}},  // his Potential
    };
    for (const auto& step : undone) {
        Undo().trigger();
        EXPECT_EQ(Shown(), step.view);
        EXPECT_EQ(Places(game->Teams[1]), step.perth);
        EXPECT_EQ(Places(game->Teams[2]), step.darwin);
    }
    EXPECT_EQ(game->Players[1].potential, 16);
    EXPECT_EQ(BoxText("potential"), "16");
    EXPECT_EQ(game->Players[6].teamNumber, 3);
    EXPECT_EQ(game->PlayerCount, 6);
    Undo().trigger();
    EXPECT_EQ(BoxText("batSkill"), "52");
    EXPECT_FALSE(Undo().isEnabled());
    EXPECT_FALSE(Document().IsModified());

    while (Redo().isEnabled())
        Redo().trigger();
    EXPECT_EQ(Places(game->Teams[1]), (std::vector<int>{1, 6, 4, 7}));
    EXPECT_EQ(Shown(), View("Perth Pelicans", 7, "Newcombe"));
    EXPECT_EQ(game->Players[1].batSkill, 25);
    EXPECT_EQ(game->Players[1].potential, 19);
}

// A session of a transfer, a delete, a new player and ten edits, saved half
// way, all undone and saved again: both files are as they were loaded.
TEST_F(UnsavedWork, UndoingAWholeSessionGivesBackTheLoadedFilesByteForByte)
{
    OpenStill();
    const std::string loaded = Files();
    Pick(Combo("teamList"), "Darwin Dingoes");
    Transfer("addExistingPlayerButton", "Quillfeather", "addButton");
    Pick(Squad(), "P J Brindle");
    Answer({QMessageBox::Yes});
    Button("deletePlayerButton").click();
    NewPlayer("Newcombe");
    Pick(Squad(), "K Ashgrove");
    const std::pair<const char*, const char*> edits[] = {
        {"surname", "Ashgrove-Smith"}, {"initials", ""}, {"birthYear", "1999"}, {"batSkill", "61"},
        {"bowlSkill", "7"},            {"potential", "20"}, {"team.teamName", "Darwin Dingoes FC"},
        {"team.abbreviation", "DDF"},  {"team.wealth", "-32768"}, {"team.reputation", "12.5"},
    };
    for (const auto& [box, text] : edits) {
        Retype(box, text);
    }
    Find<TextBox>(*main, "team.support").setFocus();
    Answer({QMessageBox::Ok});
    Find<QAction>(*main, "saveAction").trigger();
    ASSERT_NE(Files(), loaded);

    int steps = 0;
    for (; Undo().isEnabled() && steps < 100; ++steps)
        Undo().trigger();
    EXPECT_EQ(steps, 13);
    Answer({QMessageBox::Ok});
    Find<QAction>(*main, "saveAction").trigger();
    EXPECT_TRUE(Files() == loaded);
}

// No player of another squad stays on show; the wheel changes nothing it
// passes over; a box its field does not take as typed says so.
TEST_F(UnsavedWork, NoStaleStateNoWheelEditsAndVisibleRefusals)
{
    OpenStill();
    const QWidget& column = Find<QWidget>(*main, "playerColumn");
    Pick(Combo("teamList"), "Darwin Dingoes");
    EXPECT_EQ(main->CurrentPlayer(), std::nullopt);
    EXPECT_FALSE(column.isEnabled());
    EXPECT_EQ(BoxText("surname"), "");
    EXPECT_EQ(game->Players[1].surname, "Quillfeather");
    Pick(Squad(), "K Ashgrove");
    EXPECT_TRUE(column.isEnabled());

    // Renaming keeps his row, so Delete still finds him.
    Retype("surname", "Ashgrove-Smith");
    EXPECT_EQ(Squad().item(Squad().ChosenRow())->text(), "K Ashgrove-Smith");

    // The wheel over a list the user is not working passes it by.
    auto& batPosition = Combo("batPosition");
    const int position = batPosition.currentIndex();
    const QPointF middle = QRectF(batPosition.rect()).center();
    QWheelEvent wheel(middle, batPosition.mapToGlobal(middle), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&batPosition, &wheel);
    EXPECT_EQ(batPosition.currentIndex(), position);

    const struct {
        const char* box;
        const char* text;
        BoxMark mark;
        QString status;
    } typed[] = {
        {"team.wealth", "1234567", BoxMark::Refused,
         "Wealth takes a whole number from -32768 to 32767: the record holds 0."},
        {"team.wealth", "0x1F", BoxMark::Refused,
         "Wealth takes a whole number from -32768 to 32767: the record holds 0."},
        {"batSkill", "12.5", BoxMark::Refused,
         "Bat skill takes a whole number from -32768 to 32767: the record holds 12."},
        {"batSkill", "75", BoxMark::Unusual, "Bat skill runs from 0 to 60 in the game: 75 is stored all the same."},
        {"batSkill", "44", BoxMark::Plain, ""},
    };
    for (const auto& t : typed) {
        Retype(t.box, t.text);
        EXPECT_EQ(MarkOf(Find<TextBox>(*main, t.box)), t.mark) << t.text;
        EXPECT_EQ(Find<TextBox>(*main, t.box).toolTip(), t.status) << t.text;
        EXPECT_EQ(main->statusBar()->currentMessage(), t.status) << t.text;
    }
    EXPECT_EQ(game->Players[4].batSkill, 44);
    QTest::keyClicks(&Find<TextBox>(*main, "initials"), ",");
    EXPECT_EQ(main->statusBar()->currentMessage(), "A name cannot hold a comma");
}

// A game folder that cannot be opened at start, or a game file in it that is
// no file at all, is named with the reason, and File > Options is offered.
TEST_F(UnsavedWork, AGameFolderThatCannotBeOpenedAtStartIsToldAndOptionsOffered)
{
    const QString missing = QtPath(scratch_ / "gone");
    const QString refusing = QtPath(scratch_ / "refusing");
    ASSERT_TRUE(QDir().mkpath(refusing + "/players.dat"));
    ASSERT_TRUE(QFile::copy(QtPath(scratch_.Sample() / "teams.dat"), refusing + "/teams.dat"));
    const SettingPlaces places{QtPath(scratch_ / "editor.dat"), QtPath(scratch_ / "config" / "editor.dat")};
    const struct {
        QString folder;
        QString told;
        QMessageBox::StandardButton answer;
    } cases[] = {
        {missing, "The game folder " + QDir::toNativeSeparators(missing) + " does not exist.", QMessageBox::No},
        {missing, "The game folder " + QDir::toNativeSeparators(missing) + " does not exist.", QMessageBox::Yes},
        {refusing, "players.dat was not read: it is a folder, not a file", QMessageBox::No},
        {refusing, "players.dat was not read: it is a folder, not a file", QMessageBox::Yes},
    };
    for (const auto& c : cases) {
        ASSERT_TRUE(WriteSettingFile(ToSystemPath(places.besideExecutable), ToSystemPath(c.folder)).ok());
        ClearShownMessages();
        Answer({c.answer});
        bool optionsShown = false;
        SetModalDriver([&](QDialog& shown) { optionsShown = dynamic_cast<OptionsWindow*>(&shown) != nullptr; });
        MakeEditor(places);
        ASSERT_TRUE(editor->Start());
        ASSERT_EQ(ShownMessages().size(), 1u) << c.told.toStdString();
        EXPECT_EQ(ShownMessages()[0].text,
                  c.told + "\n\nDo you want to choose the game's folder now (File > Options)?");
        EXPECT_EQ(optionsShown, c.answer == QMessageBox::Yes);
    }
}

}  // namespace
