#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTest>

#include <gtest/gtest.h>

#include "check/problems.h"
#include "data/file_io.h"
#include "diff/game_files.h"
#include "problemswindow/problems_bar.h"
#include "problemswindow/problems_window.h"
#include "support/scratch_folder.h"

namespace {

// The check of the fixture game_with_problems: a player in two squads, a
// squad naming a player who doesn't exist, a skill out of range.
std::vector<Problem> FixtureProblems()
{
    const ScratchFolder scratch;
    const std::string folder = scratch.Fixture("game_with_problems").string();
    const auto game = ReadGameFiles(folder);
    const auto players = ReadWholeFile(game->PlayersPath);
    const auto teams = ReadWholeFile(game->TeamsPath);
    return ProblemsOfGame(*game, *players, *teams);
}

void DoubleClickCell(QTableWidget& table, int row, int column)
{
    const QPoint at = table.visualItemRect(table.item(row, column)).center();
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, at);
}

TEST(ProblemsWindowTest, EachRowGoesToItsTeamOrPlayer)
{
    ProblemsWindow window;
    QSignalSpy teams(&window, &ProblemsWindow::teamChosen);
    QSignalSpy players(&window, &ProblemsWindow::playerChosen);
    window.ShowProblems(FixtureProblems());
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));

    EXPECT_EQ(window.summary->text(), "3 errors, 1 warning");
    QTableWidget& table = *window.problemTable;
    ASSERT_EQ(table.rowCount(), 4);
    const QStringList header{"File", "Record", "Field", "Severity", "What is wrong"};
    for (int column = 0; column < header.size(); ++column)
        EXPECT_EQ(table.horizontalHeaderItem(column)->text(), header[column]);
    const auto row = [&table](int row) {
        QStringList cells;
        for (int column = 0; column < 4; ++column)
            cells << table.item(row, column)->text();
        return cells.join(' ');
    };
    EXPECT_EQ(row(0), "teams.dat 1 squad2 error");
    EXPECT_EQ(row(2), "teams.dat 3 squad2 error");
    EXPECT_EQ(row(3), "players.dat 5 batSkill warning");
    EXPECT_EQ(table.item(2, 4)->text(), "names player 9, who is not in players.dat (1 to PlayerCount 6)");

    DoubleClickCell(table, 2, 4);
    ASSERT_EQ(teams.count(), 1);
    EXPECT_EQ(teams.at(0).at(0).toInt(), 3);
    // The keys: down to the warning, Enter goes to its player; the window stays.
    table.setFocus();
    QTest::keyClick(&table, Qt::Key_Down);
    QTest::keyClick(&table, Qt::Key_Return);
    ASSERT_EQ(players.count(), 1);
    EXPECT_EQ(players.at(0).at(0).toInt(), 5);
    EXPECT_TRUE(window.isVisible());

    // It holds a table, so it can be made larger; Escape closes it.
    window.resize(1000, 700);
    EXPECT_EQ(window.size(), QSize(1000, 700));
    QTest::keyClick(&table, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());

    window.ShowProblems({});
    EXPECT_EQ(window.summary->text(), "No problems found.");
    EXPECT_EQ(table.rowCount(), 0);
}

TEST(ProblemsBarTest, ShowsOnlyWhenThereAreErrors)
{
    QWidget holder;
    auto* bar = new ProblemsBar(&holder);
    holder.show();
    QSignalSpy asked(bar, &ProblemsBar::showProblemsRequested);
    EXPECT_FALSE(bar->isVisible());
    bar->SetErrorCount(3);
    EXPECT_TRUE(bar->isVisible());
    EXPECT_TRUE(bar->message->text().contains("3 errors"));
    QTest::mouseClick(bar->showProblemsButton, Qt::LeftButton);
    EXPECT_EQ(asked.count(), 1);
    bar->SetErrorCount(1);
    EXPECT_TRUE(bar->message->text().contains("1 error "));
    bar->SetErrorCount(0);
    EXPECT_FALSE(bar->isVisible());
}

}  // namespace
