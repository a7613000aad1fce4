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

class FindWindowTest : public ::testing::Test {
protected:
    const ScratchFolder scratch;
    std::unique_ptr<Game> game = ReadGameFiles(scratch.Sample().string());
    FindWindow window{*game, QDate(2000, 1, 1)};
    QSignalSpy chosen{&window, &FindWindow::playerChosen};

    void SetUp() override
    {
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        EXPECT_TRUE(window.findBox->hasFocus());
    }
};

// Four players of the sample share a surname; the list tells them apart.
TEST_F(FindWindowTest, TypingNarrowsTheListAndEnterChoosesTheRowOfTheArrowKeys)
{
    QTest::keyClicks(window.findBox, QStringLiteral("bisk"));
    EXPECT_GT(window.matchList->topLevelItemCount(), 4);
    QTest::keyClicks(window.findBox, QStringLiteral("DENE"));
    EXPECT_THAT(Texts(*window.matchList->invisibleRootItem(), 1),
                ElementsAre("C Biskdene", "E G Biskdene", "I Biskdene", "S Biskdene"));
    EXPECT_THAT(Texts(*window.matchList->invisibleRootItem()), ElementsAre("387", "538", "397", "466"));
    const QTreeWidgetItem* first = window.matchList->topLevelItem(0);
    EXPECT_EQ(first->text(3), "New Zealand");
    EXPECT_EQ(first->text(4), "20");  // born 18/3/1979

    QTest::keyClick(window.findBox, Qt::Key_Down);
    QTest::keyClick(window.matchList, Qt::Key_Down);
    QTest::keyClick(window.matchList, Qt::Key_Return);
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen.at(0).at(0).toInt(), 397);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(window.result(), QDialog::Accepted);
}

// The matching and its order are the core's; here a double click chooses,
// and Enter with nothing listed chooses nobody.
TEST_F(FindWindowTest, ADoubleClickChoosesAndEnterOnNothingChoosesNobody)
{
    QTest::keyClicks(window.findBox, QStringLiteral("845"));
    ASSERT_EQ(window.matchList->topLevelItemCount(), 1);
    EXPECT_EQ(window.matchList->topLevelItem(0)->text(2), "no club");
    DoubleClick(*window.matchList, window.matchList->visualItemRect(window.matchList->topLevelItem(0)));
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen.at(0).at(0).toInt(), 845);

    FindWindow again(*game, QDate(2000, 1, 1));
    QSignalSpy none(&again, &FindWindow::playerChosen);
    again.show();
    QTest::keyClicks(again.findBox, QStringLiteral("bisk"));
    again.findBox->insert(QStringLiteral("\u03A9"));  // no Windows-1252 character
    QTest::keyClick(again.findBox, Qt::Key_Return);
    EXPECT_EQ(again.matchList->topLevelItemCount(), 0);
    EXPECT_EQ(none.count(), 0);
}

}  // namespace
