#include <QLabel>
#include <QTableWidget>
#include <QTest>

#include <gtest/gtest.h>

#include "check/problems.h"
#include "data/file_io.h"
#include "diff/game_files.h"
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

TEST(ProblemsWindowTest, ListsEachProblemWhereItIs)
{
    ProblemsWindow window;
    window.ShowProblems(FixtureProblems());
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));

    EXPECT_EQ(window.summary->text(), "3 errors, 1 warning");
    QTableWidget& table = *window.problemTable;
    ASSERT_EQ(table.rowCount(), 4);
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

    // Where each row goes is the main window's test (game_tools_test).
    table.setFocus();
    QTest::keyClick(&table, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());

    window.ShowProblems({});
    EXPECT_EQ(window.summary->text(), "No problems found.");
    EXPECT_EQ(table.rowCount(), 0);
}

}  // namespace
