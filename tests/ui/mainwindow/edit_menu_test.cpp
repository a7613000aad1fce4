// The Edit menu over a document: its items name the steps, and the undo keys
// reach it from a text box, never undoing the box's own typing.
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

TEST(EditMenu, ItemsNameTheStepsAndTheKeysTakeTheGamesStepFromAnyBox)
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
