// The Edit menu over a document: its items name the steps, and in a text box
// the undo keys work on the box's own typing before they reach the game.
#include "mainwindow/edit_menu.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QTest>

#include <gtest/gtest.h>

#include "document/game_document.h"
#include "document/squad_steps.h"
#include "forms/text_box.h"
#include "support/game_builder.h"

namespace {

TEST(EditMenu, ItemsNameTheStepsAndTheKeysUndoTheBoxBeforeTheGame)
{
    GameBuilder b;
    b.Player(1, "Neskerly", "A");
    b.Player(2, "Ormsby", "B");
    b.Team(1, "Perth Pelicans", {1, 2});
    Game& game = *b.game;
    GameDocument document(std::move(b.game));

    QMainWindow window;
    auto* box = new TextBox;
    window.setCentralWidget(box);
    const EditMenu edit = BuildEditMenu(window, document);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));

    EXPECT_EQ(edit.menu->title(), "&Edit");
    EXPECT_FALSE(edit.undo->isEnabled());
    EXPECT_EQ(edit.undo->text(), "&Undo");

    DeleteFromSquad(document, 1, 1);
    EXPECT_TRUE(edit.undo->isEnabled());
    EXPECT_EQ(edit.undo->text(), "&Undo delete of A Neskerly");
    EXPECT_FALSE(edit.redo->isEnabled());

    // Typing in the box: the first Ctrl+Z takes the typing back, the next
    // one undoes the game's step.
    box->setFocus();
    QTest::keyClicks(box, "xy");
    QTest::keyClick(box, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(box->text(), "");
    EXPECT_EQ(Places(game.Teams[1]), std::vector<int>{2});
    QTest::keyClick(box, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Places(game.Teams[1]), (std::vector<int>{1, 2}));
    EXPECT_EQ(edit.redo->text(), "&Redo delete of A Neskerly");
    EXPECT_FALSE(edit.undo->isEnabled());

    // Redo keys likewise: the box's typing comes back first, then the step.
    QTest::keyClick(box, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(box->text(), "xy");
    EXPECT_EQ(Places(game.Teams[1]), (std::vector<int>{1, 2}));
    for (const QKeyCombination keys : {Qt::CTRL | Qt::Key_Y, Qt::CTRL | Qt::SHIFT | Qt::Key_Z}) {
        QTest::keyClick(box, keys.key(), keys.keyboardModifiers());
        EXPECT_EQ(Places(game.Teams[1]), std::vector<int>{2});
        edit.undo->trigger();
        EXPECT_EQ(Places(game.Teams[1]), (std::vector<int>{1, 2}));
    }
}

}  // namespace
