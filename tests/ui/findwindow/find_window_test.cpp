#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "diff/game_files.h"
#include "findwindow/find_window.h"
#include "support/scratch_folder.h"
#include "support/window_parts.h"

using ::testing::ElementsAre;

namespace {

// Four players of the sample share a surname; the list tells them apart.
// The arrow keys walk it from the box, Enter or a double click chooses, and
// Enter with nothing listed chooses nobody. The matching and its order are
// the core's.
TEST(FindWindow, ListsTheMatchesAndEnterOrADoubleClickChoosesOne)
{
    const ScratchFolder scratch;
    const auto game = ReadGameFiles(scratch.Sample().string());
    FindWindow window(*game, QDate(2000, 1, 1));
    QSignalSpy chosen(&window, &FindWindow::playerChosen);
    QTreeWidget& list = *window.matchList;
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    EXPECT_TRUE(window.findBox->hasFocus());

    QTest::keyClicks(window.findBox, QStringLiteral("bisk"));
    EXPECT_GT(list.topLevelItemCount(), 4);
    QTest::keyClicks(window.findBox, QStringLiteral("DENE"));
    EXPECT_THAT(Texts(*list.invisibleRootItem(), 1),
                ElementsAre("C Biskdene", "E G Biskdene", "I Biskdene", "S Biskdene"));
    EXPECT_THAT(Texts(*list.invisibleRootItem()), ElementsAre("387", "538", "397", "466"));
    EXPECT_EQ(list.topLevelItem(0)->text(3), "New Zealand");
    EXPECT_EQ(list.topLevelItem(0)->text(4), "20");  // born 18/3/1979
    QTest::keyClick(window.findBox, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(window.result(), QDialog::Accepted);

    window.show();
    window.findBox->setText(QStringLiteral("845"));
    ASSERT_EQ(list.topLevelItemCount(), 1);
    EXPECT_EQ(list.topLevelItem(0)->text(2), "no club");
    DoubleClick(list, list.visualItemRect(list.topLevelItem(0)));

    window.show();
    window.findBox->setText(QStringLiteral("bisk"));
    window.findBox->insert(QStringLiteral("\u03A9"));  // no Windows-1252 character
    QTest::keyClick(window.findBox, Qt::Key_Return);
    EXPECT_EQ(list.topLevelItemCount(), 0);
    ASSERT_EQ(chosen.count(), 2);
    EXPECT_EQ(chosen.at(0).at(0).toInt(), 397);
    EXPECT_EQ(chosen.at(1).at(0).toInt(), 845);
}

}  // namespace
