#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "changeswindow/changes_window.h"
#include "diff/game_files.h"
#include "support/scratch_folder.h"

using ::testing::ElementsAre;

inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

namespace {

// What differs in the fixture game_with_changes from its .orig files: a
// surname, a team's wealth, one player moved and one who left his club.
std::vector<Difference> FixtureChanges()
{
    const ScratchFolder scratch;
    const std::string folder = scratch.Fixture("game_with_changes").string();
    return CompareGames(*ReadGameFiles(folder, ".orig"), *ReadGameFiles(folder));
}

std::vector<QString> Texts(const QTreeWidgetItem& parent)
{
    std::vector<QString> texts;
    for (int row = 0; row < parent.childCount(); ++row)
        texts.push_back(parent.child(row)->text(0));
    return texts;
}

TEST(ChangesWindowTest, GroupsTheChangesAndEachGoesToItsRecord)
{
    ChangesWindow window;
    QSignalSpy teams(&window, &ChangesWindow::teamChosen);
    QSignalSpy players(&window, &ChangesWindow::playerChosen);
    window.ShowChanges("since the original files", FixtureChanges());
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));

    EXPECT_EQ(window.summary->text(), "6 changes since the original files:");
    QTreeWidget& tree = *window.changeTree;
    EXPECT_THAT(Texts(*tree.invisibleRootItem()), ElementsAre("Players (3)", "Teams (1)", "Squad moves (2)"));
    EXPECT_THAT(Texts(*tree.topLevelItem(0)),
                ElementsAre("player 3 (C Carvery): surname \"Carver\" -> \"Carvery\"",
                            "player 4 (D Dunmore): teamNumber 2 -> 1", "player 6 (F Fairweather): teamNumber 3 -> 0"));
    EXPECT_THAT(Texts(*tree.topLevelItem(2)),
                ElementsAre("player 4 (D Dunmore) moved from team 2 (Bayside) to team 1 (Harbour CC)",
                            "player 6 (F Fairweather) left team 3 (Kentish Town)"));

    QTreeWidgetItem* wealth = tree.topLevelItem(1)->child(0);
    const QPoint at = tree.visualItemRect(wealth).center();
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(tree.viewport(), Qt::LeftButton, {}, at);
    ASSERT_EQ(teams.count(), 1);
    EXPECT_EQ(teams.at(0).at(0).toInt(), 2);

    // Down from the team's change: the squad moves' heading goes nowhere,
    // the move below it goes to the player.
    tree.setFocus();
    QTest::keyClick(&tree, Qt::Key_Down);
    QTest::keyClick(&tree, Qt::Key_Return);
    EXPECT_EQ(players.count(), 0);
    QTest::keyClick(&tree, Qt::Key_Down);
    QTest::keyClick(&tree, Qt::Key_Return);
    ASSERT_EQ(players.count(), 1);
    EXPECT_EQ(players.at(0).at(0).toInt(), 4);
    EXPECT_TRUE(window.isVisible());

    window.ShowChanges("since the last save", {});
    EXPECT_EQ(window.summary->text(), "Nothing has changed since the last save.");
    EXPECT_EQ(tree.topLevelItemCount(), 0);
}

}  // namespace
