// The document as the windows use it: what is typed in a box is one step,
// a command is one step whatever it changed, undo and redo put records back
// and say where, and each step says which records it changed. The Edit menu
// names the steps.
#include "document/game_document.h"

#include <QAction>
#include <QMainWindow>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include "document/squad_steps.h"
#include "forms/text_box.h"
#include "mainwindow/edit_menu.h"
#include "support/game_builder.h"
#include "support/qt_path.h"
#include "support/scratch_folder.h"

namespace {

const PlayerField& BatSkill = *FieldOf<PlayerRecord>(PlayerFields, &PlayerRecord::batSkill);
const PlayerField& Surname = PlayerFields[1];
const TeamField& Wealth = *FieldOf<TeamRecord>(TeamFields, &TeamRecord::wealth);

// The numbers (or flags, as 1 and 0) a signal of one was sent with, in order.
std::vector<int> Numbers(const QSignalSpy& spy)
{
    std::vector<int> numbers;
    for (const QList<QVariant>& signal : spy)
        numbers.push_back(signal.at(0).toInt());
    return numbers;
}

class Document : public ::testing::Test {
protected:
    Document()
    {
        QObject::connect(&document, &GameDocument::stepRevisited,
                         [this](StepPlace place) { shown.push_back({place.team, place.player}); });
    }

    // Two teams of Perth and Darwin, their files to be kept in `folder`.
    static std::unique_ptr<Game> SmallGame(const QString& folder)
    {
        GameBuilder b;
        b.Player(1, "Neskerly", "A").batSkill = 30;
        b.Player(2, "Ormsby", "");
        b.Player(3, "Vanterpool", "T");
        b.Team(1, "Perth Pelicans", {1, 2});
        b.Team(2, "Darwin Dingoes", {3});
        SetGameDirectory(*b.game, QFile::encodeName(folder).toStdString());
        return std::move(b.game);
    }

    void TypeSkill(int skill) { document.Type(1, BatSkill, std::int16_t(skill), {1, 1}); }
    QString UndoText() const { return document.History().undoText(); }
    int Steps() const { return document.History().count(); }

    ScratchFolder scratch;
    std::unique_ptr<Game> built = SmallGame(QtPath(scratch.Path()));
    Game& game = *built;   // the document's own, for the tests to read
    GameDocument document{std::move(built)};
    std::vector<std::pair<int, int>> shown;   // team, player
};

TEST_F(Document, TypingIsOneStepPerBoxAndTypingBackLeavesNone)
{
    const PlayerRecord& player = game.Players[1];
    // A keystroke that changes nothing makes no step.
    TypeSkill(30);
    EXPECT_EQ(Steps(), 0);

    // "4", then "45" into Bat skill: one step.
    TypeSkill(4);
    TypeSkill(45);
    EXPECT_EQ(Steps(), 1);
    EXPECT_EQ(UndoText(), "edit of Bat skill for A Neskerly");

    // The team's Wealth is a step of its own, even before Bat skill was left.
    document.Type(1, Wealth, std::int16_t(900), {1, 1});
    EXPECT_EQ(Steps(), 2);
    EXPECT_EQ(UndoText(), "edit of Wealth for Perth Pelicans");

    // The name, typed over and back again: the step goes away. So does a
    // number that becomes a text that is none: the field goes back to what
    // it held when the box was entered.
    document.EndTyping();
    document.Type(1, Surname, std::string("Neskerl"), {1, 1});
    EXPECT_EQ(UndoText(), "edit of Player Name for A Neskerly");
    document.Type(1, Surname, std::string("Neskerly"), {1, 1});
    document.EndTyping();
    TypeSkill(12);
    document.Type(1, BatSkill, TypedValue{}, {1, 1});
    EXPECT_EQ(player.batSkill, 45);
    EXPECT_EQ(Steps(), 2);

    document.Undo();
    EXPECT_EQ(game.Teams[1].wealth, 0);
    document.Undo();
    EXPECT_EQ(player.batSkill, 30);
    EXPECT_EQ(shown, (std::vector<std::pair<int, int>>{{1, 1}, {1, 1}}));
    document.Redo();
    EXPECT_EQ(player.batSkill, 45);

    // Typing after an undo starts a new step, even in the same box.
    TypeSkill(46);
    EXPECT_EQ(Steps(), 2);
    document.Undo();
    EXPECT_EQ(player.batSkill, 45);
}

TEST_F(Document, ModifiedFollowsTheRecordsAgainstTheSavedStateThroughUndoRedoAndLoad)
{
    QSignalSpy modified(&document, &GameDocument::modifiedChanged);
    QSignalSpy replaced(&document, &GameDocument::gameReplaced);
    const auto type = [&](int skill) {
        document.EndTyping();
        TypeSkill(skill);
    };
    EXPECT_FALSE(document.IsModified());
    type(40);
    EXPECT_TRUE(document.IsModified());
    ASSERT_TRUE(document.Save(false).ok());
    EXPECT_FALSE(document.IsModified());

    // Typing on in the box of the saved step does not join it: the saved
    // state stays one undo away.
    TypeSkill(41);
    EXPECT_EQ(Steps(), 2);
    EXPECT_TRUE(document.IsModified());
    document.Undo();
    EXPECT_FALSE(document.IsModified());
    document.Undo();
    EXPECT_TRUE(document.IsModified());   // before the save is unsaved too
    document.Redo();
    EXPECT_FALSE(document.IsModified());
    // Typing the saved value back in the box of the newest step joins that
    // step, which then changes nothing and goes: nothing is unsaved.
    type(41);
    type(40);
    EXPECT_EQ(Steps(), 1);
    EXPECT_FALSE(document.IsModified());

    // A load forgets the steps and counts as saved.
    type(50);
    document.Load(document.Folder());
    EXPECT_EQ(Steps(), 0);
    EXPECT_FALSE(document.IsModified());
    EXPECT_EQ(game.Players[1].batSkill, 40);
    EXPECT_EQ(replaced.count(), 1);
    EXPECT_EQ(Numbers(modified), (std::vector<int>{1, 0, 1, 0, 1, 0, 1, 0, 1, 0}));
}

// A transfer and its undo each say once which records they changed, so that
// a view redraws those and no more.
TEST_F(Document, EachStepSaysWhichRecordsItChangedAndTheEditMenuNamesIt)
{
    QSignalSpy players(&document, &GameDocument::playerChanged);
    QSignalSpy teams(&document, &GameDocument::teamChanged);
    QSignalSpy squads(&document, &GameDocument::squadChanged);
    QSignalSpy batches(&document, &GameDocument::recordsChanged);
    for (const bool undo : {false, true}) {
        SCOPED_TRACE(undo ? "undo" : "the step");
        for (QSignalSpy* spy : {&players, &teams, &squads, &batches})
            spy->clear();
        if (undo)
            document.Undo();
        else
            EXPECT_EQ(AddToSquad(document, 2, 1), 1);
        EXPECT_EQ(Numbers(players), std::vector<int>{1});
        EXPECT_EQ(Numbers(teams), (std::vector<int>{1, 2}));
        EXPECT_EQ(Numbers(squads), (std::vector<int>{1, 2}));
        EXPECT_EQ(batches.count(), 1);
    }
    EXPECT_EQ(Places(game.Teams[1]), (std::vector<int>{1, 2}));
    EXPECT_EQ(shown, (std::vector<std::pair<int, int>>{{2, 1}}));
    EXPECT_EQ(document.History().redoText(), "add of A Neskerly to Darwin Dingoes");

    // The Edit menu names the steps; the undo keys reach it from a text box,
    // never undoing the box's own typing.
    QMainWindow window;
    auto* box = new TextBox;
    window.setCentralWidget(box);
    const EditMenu edit = BuildEditMenu(window, document);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));

    EXPECT_FALSE(edit.undo->isEnabled());
    EXPECT_EQ(edit.undo->text(), "&Undo");

    DeleteFromSquad(document, 1, 1);
    EXPECT_TRUE(edit.undo->isEnabled());
    EXPECT_EQ(edit.undo->text(), "&Undo delete of A Neskerly");
    EXPECT_FALSE(edit.redo->isEnabled());

    // Typed text in a box is not what Ctrl+Z takes back: the game's step is.
    box->setFocus();
    QTest::keyClicks(box, "xy");
    QTest::keyClick(box, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Places(game.Teams[1]), (std::vector<int>{1, 2}));
    EXPECT_EQ(edit.redo->text(), "&Redo delete of A Neskerly");
    EXPECT_FALSE(edit.undo->isEnabled());
    QTest::keyClick(box, Qt::Key_Z, Qt::ControlModifier);   // nothing left to undo
    EXPECT_EQ(box->text(), "xy");

    for (const QKeyCombination keys : {Qt::CTRL | Qt::Key_Y, Qt::CTRL | Qt::SHIFT | Qt::Key_Z}) {
        QTest::keyClick(box, keys.key(), keys.keyboardModifiers());
        EXPECT_EQ(Places(game.Teams[1]), std::vector<int>{2});
        QTest::keyClick(box, keys.key(), keys.keyboardModifiers());   // nothing left to redo
        EXPECT_EQ(box->text(), "xy");
        edit.undo->trigger();
        EXPECT_EQ(Places(game.Teams[1]), (std::vector<int>{1, 2}));
    }
}

}  // namespace
