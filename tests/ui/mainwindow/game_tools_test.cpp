// The game's tools over the open game: Find Player and its window, the
// problems bar and list, the changes since the original and since the save,
// and the CSV import and export.
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTreeWidget>

#include <gmock/gmock.h>

#include "changeswindow/changes_window.h"
#include "csvwindow/import_window.h"
#include "diff/game_files.h"
#include "editor_fixture.h"
#include "findwindow/find_window.h"
#include "forms/modal.h"
#include "options/options_window.h"
#include "problemswindow/problems_bar.h"
#include "problemswindow/problems_window.h"

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

class GameToolsTest : public EditorTest {
protected:
    ~GameToolsTest() override { SetModalDriver({}); }

    void Trigger(const char* action) { Find<QAction>(*main, action).trigger(); }

    // This test's copy of a case folder among the fixtures, and its game.
    QString Fixture(const char* name) const { return QtPath(scratch_.Fixture(name)); }
    GameBuilder FromFixture(const char* name) const { return {ReadGameFiles(Fixture(name).toStdString())}; }

    // Triggers the CSV command `action`, answering its folder chooser with
    // `folder` and the import window with `press`, noting what that listed.
    void RunCsv(const char* action, const QString& folder, QDialogButtonBox::StandardButton press)
    {
        SetModalDriver([=, this](QDialog& window) {
            if (auto* chooser = qobject_cast<QFileDialog*>(&window)) {
                chooser->selectFile(folder);
                window.accept();
            } else if (auto* review = qobject_cast<ImportWindow*>(&window)) {
                listed_ = Rows(*review->lineList);
                offered_ = review->buttons->standardButtons();
                if (QPushButton* button = review->buttons->button(press))
                    button->click();
            }
        });
        Trigger(action);
    }

    std::vector<QString> listed_;
    QDialogButtonBox::StandardButtons offered_;
};

TEST_F(GameToolsTest, FindPlayerGoesToHisCountryTeamAndRow)
{
    GameBuilder world = SmallWorld();
    world.Player(7, "Brinkwell", "Z");  // in no squad
    Open(std::move(world));
    const auto answer = [](const QString& typed) {
        SetModalDriver([typed](QDialog& window) {
            auto& finder = dynamic_cast<FindWindow&>(window);
            QTest::keyClicks(finder.findBox, typed);
            QTest::keyClick(finder.findBox, Qt::Key_Return);
        });
    };
    const auto find = [&](const QString& typed) {
        answer(typed);
        Trigger("findPlayerAction");
    };

    answer("brindle");
    QTest::keyClick(main, Qt::Key_F, Qt::ControlModifier);
    EXPECT_THAT(Place(), ElementsAre("Australia", "Darwin Dingoes", "P J Brindle", "Brindle"));
    EXPECT_EQ(main->CurrentPlayer(), 5);
    find("6");
    EXPECT_THAT(Place(), ElementsAre("West Indies and Mics.", "Kingston Kites", "W Calloway", "Calloway"));

    // A player without a club: no team chosen, an empty squad list, no team
    // in the team's boxes, and he is the one the boxes show and edit.
    const TeamRecord kites = game->Teams[3];
    find("brinkw");
    EXPECT_EQ(main->CurrentPlayer(), 7);
    EXPECT_EQ(main->CurrentTeam(), std::nullopt);
    EXPECT_EQ(Squad().count(), 0);
    EXPECT_EQ(BoxText("surname"), "Brinkwell");
    Retype("surname", "Brinkworth");
    EXPECT_EQ(game->Players[7].surname, "Brinkworth");
    EXPECT_EQ(TeamNumber(), "");
    for (const char* box : {"team.teamName", "team.wealth"}) {
        EXPECT_EQ(BoxText(box), "") << box;
        EXPECT_FALSE(Find<TextBox>(*main, box).isEnabled()) << box;
        Retype(box, "5");
    }
    EXPECT_EQ(game->Teams[3], kites) << "the team shown before takes no typing";
}

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

// The list names each problem where it is, goes to its record on a double
// click or Enter, and follows the checks the bar makes after every step.
TEST_F(GameToolsTest, TheBarCountsTheErrorsAndTheListGoesToEachRecord)
{
    Open(FromFixture("game_with_problems"));
    auto& bar = Find<ProblemsBar>(*main, "problemsBar");
    ASSERT_TRUE(bar.isVisible());
    EXPECT_THAT(bar.message->text().toStdString(), ::testing::HasSubstr("3 errors"));
    QTest::mouseClick(bar.showProblemsButton, Qt::LeftButton);

    auto& problems = Find<ProblemsWindow>(*main, "problemsWindow");
    ASSERT_TRUE(problems.isVisible());
    EXPECT_EQ(problems.summary->text(), "3 errors, 1 warning");
    QTableWidget& table = *problems.problemTable;
    ASSERT_EQ(table.rowCount(), 4);
    const auto row = [&table](int row) {
        QStringList cells;
        for (int column = 0; column < table.columnCount(); ++column)
            cells << table.item(row, column)->text();
        return cells.join(" | ");
    };
    EXPECT_THAT(row(0).toStdString(), ::testing::StartsWith("teams.dat | 1 | squad2 | error | "));
    EXPECT_EQ(row(2),
              "teams.dat | 3 | squad2 | error | names player 9, who is not in players.dat (1 to PlayerCount 6)");
    EXPECT_THAT(row(3).toStdString(), ::testing::StartsWith("players.dat | 5 | batSkill | warning | "));
    DoubleClick(table, table.visualItemRect(table.item(2, 4)));
    EXPECT_EQ(main->CurrentTeam(), 3);
    EXPECT_EQ(Combo("teamList").currentText(), "Kentish Town");
    table.setFocus();
    QTest::keyClick(&table, Qt::Key_Down);
    QTest::keyClick(&table, Qt::Key_Return);  // players.dat 5: a skill out of range
    EXPECT_THAT(Place(), ElementsAre("Australia", "Bayside", "E Ellery", "Ellery"));

    // The bar follows every step, and goes once the game is put right.
    const auto shown = [&bar](bool visible) {
        return QTest::qWaitFor([&] { return bar.isVisible() == visible; }, 2000);
    };
    Retype("batSkill", "50");
    Document().Change("fix", {}, [](Game& fixed) { fixed.Teams[2].squad[3] = 0; });
    ASSERT_TRUE(QTest::qWaitFor([&] { return bar.message->text().contains("1 error "); }, 2000));
    Document().Change("fix", {}, [](Game& fixed) { fixed.Teams[3].squad[2] = 0; });
    EXPECT_TRUE(shown(false));
    Document().Undo();
    EXPECT_TRUE(shown(true));
    Document().Redo();
    Find<QAction>(*main, "saveAction").trigger();
    EXPECT_FALSE(bar.isVisible());
    Trigger("checkGameAction");
    EXPECT_EQ(table.rowCount(), 0);
    EXPECT_EQ(problems.summary->text(), "No problems found.");
    table.setFocus();
    QTest::keyClick(&table, Qt::Key_Escape);
    EXPECT_FALSE(problems.isVisible());
}

// The changes are grouped into players, teams and squad moves; a double click
// or Enter goes to the record, a group's heading nowhere. Then CSV in and out.
TEST_F(GameToolsTest, ChangesGoToTheirRecordsAndAnImportIsOneStepOrNone)
{
    Open(FromFixture("game_with_changes"));
    auto& tools = Find<QMenu>(*main, "toolsMenu");
    emit tools.aboutToShow();
    EXPECT_FALSE(Find<QAction>(*main, "changesSinceOriginalAction").isEnabled());
    for (const char* file : {"players.dat.orig", "teams.dat.orig"})
        ASSERT_TRUE(QFile::copy(Fixture("game_with_changes") + "/" + file, GameFolder() + "/" + file));
    emit tools.aboutToShow();
    Trigger("changesSinceOriginalAction");

    auto& changes = Find<ChangesWindow>(*main, "changesWindow");
    QTreeWidget& tree = *changes.changeTree;
    EXPECT_EQ(changes.summary->text(), "6 changes since the original files:");
    EXPECT_THAT(Texts(*tree.invisibleRootItem()), ElementsAre("Players (3)", "Teams (1)", "Squad moves (2)"));
    // The lines are kolta-data diff's, in its tests; here, where they lead.
    DoubleClick(tree, tree.visualItemRect(tree.topLevelItem(1)->child(0)));  // Bayside's wealth
    EXPECT_EQ(main->CurrentTeam(), 2);
    tree.setFocus();
    QTest::keyClick(&tree, Qt::Key_Down);
    QTest::keyClick(&tree, Qt::Key_Return);  // the squad moves' heading
    EXPECT_EQ(main->CurrentTeam(), 2);
    QTest::keyClick(&tree, Qt::Key_Down);
    QTest::keyClick(&tree, Qt::Key_Return);  // Dunmore moved
    EXPECT_THAT(Place(), ElementsAre("Australia", "Harbour CC", "D Dunmore", "Dunmore"));
    EXPECT_TRUE(changes.isVisible());

    Trigger("changesSinceSaveAction");
    EXPECT_EQ(changes.summary->text(), "Nothing has changed since the last save.");
    EXPECT_EQ(tree.topLevelItemCount(), 0);
    Retype("batSkill", "41");
    Trigger("changesSinceSaveAction");
    ASSERT_EQ(tree.topLevelItemCount(), 1);
    EXPECT_EQ(tree.topLevelItem(0)->child(0)->text(0), "player 4 (D Dunmore): batSkill 40 -> 41");

    // A faulty import changes nothing, a good one only the open game.
    const auto before = std::make_unique<Game>(*game);

    RunCsv("importCsvAction", Fixture("csv_faulty"), QDialogButtonBox::Close);
    EXPECT_THAT(listed_, ElementsAre("players.csv:2: batAggression \"fast\" is not a whole number from -32768 to 32767",
                                     "players.csv:3: player numbers run from 1 to 2000, not 2001"));
    EXPECT_EQ(offered_, QDialogButtonBox::Close);
    EXPECT_EQ(game->Players, before->Players);

    RunCsv("importCsvAction", Fixture("csv_changes"), QDialogButtonBox::Cancel);
    EXPECT_EQ(listed_.size(), 3u);
    EXPECT_EQ(game->Players, before->Players);

    RunCsv("importCsvAction", Fixture("csv_changes"), QDialogButtonBox::Ok);
    EXPECT_EQ(game->Players[5].surname, "Ellerby");
    EXPECT_EQ(game->Teams[3].wealth, 99);
    EXPECT_EQ(ReadGameFiles(ToSystemPath(GameFolder()))->Players[5].surname, "Ellery") << "nothing is saved";

    // The whole import is one step of the history.
    EXPECT_EQ(Find<QAction>(*main, "undoAction").text(), "&Undo import from CSV");
    Trigger("undoAction");
    EXPECT_EQ(game->Players, before->Players);
    EXPECT_EQ(game->Teams, before->Teams);

    // Export writes both files where the user points.
    const QString sheets = QtPath(scratch_.Folder("sheets"));
    RunCsv("exportCsvAction", sheets, QDialogButtonBox::Ok);
    const auto exported = ImportCsvFolder(*game, ToSystemPath(sheets));
    EXPECT_TRUE(exported.read);
    EXPECT_THAT(exported.changes, IsEmpty());
}

}  // namespace
