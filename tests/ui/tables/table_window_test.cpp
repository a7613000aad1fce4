// The players and teams tables over a document: they show its records and
// follow its steps, sort stably, refuse a filter they cannot read, and take
// each bulk edit whole, as one step, or not at all.
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSettings>
#include <QStatusBar>
#include <QTableView>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/table/table_game.h"
#include "csv/csv_export.h"
#include "data/file_io.h"
#include "forms/box_marks.h"
#include "forms/modal.h"
#include "support/qt_path.h"
#include "support/scratch_folder.h"
#include "tables/choice_dialog.h"
#include "tables/record_table_model.h"
#include "tables/table_window.h"

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::HasSubstr;

namespace {

const PlayerField& Surname = PlayerFields[1];

// The core's game of six players: Perth Pelicans hold 1 and 2, Perth 3 and
// 6; 4 and 5 have no club, and player 3's birth date does not exist.
class TableWindowTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        // Each test starts from the tables' first layout.
        QSettings(QSettings::IniFormat, QSettings::UserScope, "kolta-editor", "windows").clear();
        ShowWindow(players, RecordKind::Player);
        ShowWindow(teams, RecordKind::Team);
    }
    void TearDown() override { SetModalDriver({}); }

    void ShowWindow(std::unique_ptr<TableWindow>& window, RecordKind kind)
    {
        window = std::make_unique<TableWindow>(document, kind, Today);
        window->setAttribute(Qt::WA_DeleteOnClose, false);
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    }

    // The records in the rows, top to bottom.
    static std::vector<int> Rows(const TableWindow& window)
    {
        std::vector<int> numbers;
        for (int row = 0; row < window.model->rowCount(); ++row)
            numbers.push_back(window.model->RecordAt(row));
        return numbers;
    }
    static int Column(const TableWindow& window, const char* name)
    {
        for (int at = 0; at < window.model->columnCount(); ++at) {
            if (window.model->ColumnAt(at).name == name)
                return at;
        }
        return -1;
    }
    static QString Cell(const TableWindow& window, int number, const char* column)
    {
        return window.model->index(window.model->RowOf(number), Column(window, column)).data().toString();
    }
    // Selects the cells of records `numbers` in `columns`.
    static void Select(TableWindow& window, const std::vector<int>& numbers, const std::vector<int>& columns = {0})
    {
        window.table->clearSelection();
        for (int number : numbers)
            for (int column : columns)
                window.table->selectionModel()->select(window.model->index(window.model->RowOf(number), column),
                                                       QItemSelectionModel::Select);
    }

    ScratchFolder scratch;
    GameDocument document{TableGame()};
    const Game& game = document.Records();
    std::unique_ptr<TableWindow> players;
    std::unique_ptr<TableWindow> teams;
};

// What the tables show is the game, step by step: a name typed anywhere, a
// player added, a squad changed; the windows remember their columns.
TEST_F(TableWindowTest, ShowsTheDocumentsRecordsAndFollowsItsSteps)
{
    EXPECT_EQ(players->focusWidget(), players->filterBox);
    EXPECT_EQ(players->countLabel->text(), "6 of 6 players");
    EXPECT_EQ(Cell(*players, 3, "surname"), "Jones");
    EXPECT_EQ(Cell(*players, 3, "bowlType"), "OB");
    EXPECT_EQ(Cell(*players, 6, "club"), "Perth");
    EXPECT_EQ(Cell(*players, 5, "club"), "");
    EXPECT_EQ(Cell(*teams, 2, "squadSize"), "2");
    EXPECT_EQ(Cell(*teams, 1, "averageBatSkill"), "37.5");

    document.Type(3, Surname, std::string("Jonas"), {2, 3});
    document.EndTyping();
    EXPECT_EQ(Cell(*players, 3, "surname"), "Jonas");
    document.Change(QStringLiteral("move"), {}, [](Game& g) {
        g.Teams[2].squad[3] = 5;
        g.Players[7].surname = "Newman";
        g.PlayerCount = 7;
    });
    EXPECT_EQ(Cell(*players, 5, "club"), "Perth");
    EXPECT_EQ(Cell(*teams, 2, "averageBatSkill"), "34.0");
    EXPECT_EQ(players->countLabel->text(), "7 of 7 players");
    document.Undo();
    EXPECT_EQ(players->countLabel->text(), "6 of 6 players");
    EXPECT_EQ(Cell(*teams, 2, "squadSize"), "2");

    // A cell edited is a step of the document's history.
    QTableView& table = *players->table;
    const auto typeInCell = [&](int number, int column, const char* text) {
        table.setCurrentIndex(players->model->index(players->model->RowOf(number), column));
        table.setFocus();
        QTest::keyClick(&table, text[0]);  // the first key opens the cell's box
        auto* box = qobject_cast<QLineEdit*>(players->focusWidget());  // the cell's, not one closed before
        ASSERT_TRUE(box);
        QTest::keyClicks(box, QString::fromLatin1(text + 1));
        QTest::keyClick(box, Qt::Key_Return);
        QApplication::processEvents();  // the cell is written once the key is done with
    };
    typeInCell(5, Column(*players, "surname"), "Nguyen");
    EXPECT_EQ(game.Players[5].surname, "Nguyen");
    EXPECT_EQ(document.History().undoText().toStdString(), "edit of Player Name for F Ng");

    // The birth date is one column, its three fields hidden at first; a date
    // typed is one step of the three, and a day that does not exist changes
    // nothing and says why.
    QHeaderView& header = *table.horizontalHeader();
    const int birthDate = 3;
    EXPECT_FALSE(header.isSectionHidden(birthDate));
    EXPECT_TRUE(header.isSectionHidden(birthDate + 1) && header.isSectionHidden(birthDate + 3));
    EXPECT_EQ(Cell(*players, 3, "birthDate"), "1/13/1985");
    EXPECT_EQ(players->model->index(players->model->RowOf(3), birthDate).data(Qt::ToolTipRole).toString(),
              "Date of birth 1/13/1985 does not exist.");
    const int steps = document.History().count();
    typeInCell(5, birthDate, "29/2/2001");
    EXPECT_EQ(players->statusBar()->currentMessage(), "Date of birth 29/2/2001 does not exist.");
    typeInCell(5, birthDate, "29/2/2004");
    EXPECT_EQ(Cell(*players, 5, "birthDate"), "29/2/2004");
    EXPECT_EQ(document.History().count(), steps + 1);
    EXPECT_EQ(document.History().undoText().toStdString(), "edit of Date of birth for F Nguyen");

    header.setSectionHidden(birthDate, true);
    header.moveSection(2, 5);
    players->close();
    ShowWindow(players, RecordKind::Player);
    EXPECT_TRUE(players->table->horizontalHeader()->isSectionHidden(birthDate));
    EXPECT_EQ(players->table->horizontalHeader()->visualIndex(2), 5);
    // A layout kept for other columns is not put on these.
    players->close();
    QSettings(QSettings::IniFormat, QSettings::UserScope, "kolta-editor", "windows").remove("playersTable/columnNames");
    ShowWindow(players, RecordKind::Player);
    EXPECT_FALSE(players->table->horizontalHeader()->isSectionHidden(birthDate));
}

// A click on a header sorts by it, keeping the order of the last sort among
// equal values, so that two clicks make a two-key order; records without a
// value go last. The filter keeps that order; a text it cannot read tints
// the box, says why and leaves the rows as they were (the filter's language
// is the core's, filter_test).
TEST_F(TableWindowTest, SortsStablyByEachHeaderClickedAndFiltersInThatOrder)
{
    // Nineteen more players, all alike and filtered out: among this many
    // records an order that is not kept would show.
    document.Change(QStringLiteral("fillers"), {}, [](Game& more) {
        for (int number = 7; number <= 25; ++number)
            more.Players[number].surname = "Filler";
        more.PlayerCount = 25;
    });
    players->filterBox->setText(QStringLiteral("surname!=Filler"));
    const struct {
        const char* column;
        Qt::SortOrder order;
        std::vector<int> rows;
    } clicks[] = {
        // Codes sort by their words: both Namibias tie.
        {"homeCountry", Qt::DescendingOrder, {4, 2, 3, 1, 5, 6}},
        {"bowlType", Qt::AscendingOrder, {2, 5, 4, 1, 3, 6}},
        {"club", Qt::DescendingOrder, {2, 1, 3, 6, 5, 4}},  // no club last
        {"surname", Qt::DescendingOrder, {4, 2, 1, 5, 3, 6}},
        {"playerNumber", Qt::AscendingOrder, {1, 2, 3, 4, 5, 6}},
        {"birthDate", Qt::AscendingOrder, {4, 1, 5, 6, 2, 3}},  // as the calendar runs, no such day last
    };
    for (const auto& click : clicks) {
        SCOPED_TRACE(click.column);
        players->table->sortByColumn(Column(*players, click.column), click.order);
        EXPECT_THAT(Rows(*players), ElementsAreArray(click.rows));
    }

    const struct {
        const char* text;
        std::vector<int> rows;
        const char* refusal;  // empty: read
    } cases[] = {
        {"batSkill>=42 club=none", {4}, ""},
        {"batSkil>=42", {4}, "batSkil"},
        {"batSkill>=45", {4, 1, 3}, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        players->filterBox->setText(QString::fromLatin1(c.text));
        EXPECT_THAT(Rows(*players), ElementsAreArray(c.rows));
        const bool refused = *c.refusal != 0;
        EXPECT_EQ(MarkOf(*players->filterBox), refused ? BoxMark::Refused : BoxMark::Plain);
        if (refused) {
            EXPECT_THAT(players->statusBar()->currentMessage().toStdString(), HasSubstr(c.refusal));
        }
    }
    EXPECT_EQ(players->countLabel->text(), "3 of 25 players");
}

// The bulk edits take each step whole or not at all. Set Value by keyboard,
// as a user works it: Ctrl+A selects the rows the filter shows, Ctrl+E opens
// the dialog on the field list, the field is typed, Tab goes to the value,
// Enter applies it as one step. A refused value leaves the dialog open with
// the reason and the record at fault. Then Paste and Move Selected to Team.
TEST_F(TableWindowTest, BulkEditsAreOneStepEachOrTheReason)
{
    QTest::keyClicks(players->filterBox, QStringLiteral("batSkill>=40"));
    players->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(players.get()));
    QTest::keyClick(players->filterBox, Qt::Key_A, Qt::ControlModifier);
    const struct {
        const char* field;
        const char* value;
        const char* refusal;
    } entries[] = {
        {"batSkill", "+32767", "player 1 (A J Smith): batSkill would be 32812"},
        {"potential", "7", ""},
    };
    QStringList reasons;
    for (const auto& entry : entries) {
        SetModalDriver([&](QDialog& dialog) {
            auto& choice = static_cast<ChoiceDialog&>(dialog);
            EXPECT_EQ(dialog.focusWidget(), choice.choices);
            QTest::keyClicks(choice.choices, QString::fromLatin1(entry.field));
            EXPECT_EQ(choice.choices->currentItem()->text(), entry.field);
            QTest::keyClick(choice.choices, Qt::Key_Tab);
            QTest::keyClicks(choice.valueBox, QString::fromLatin1(entry.value));
            QTest::keyClick(choice.valueBox, Qt::Key_Return);
            reasons << (dialog.isVisible() ? choice.reason->text() : QString());
        });
        // Shortcuts reach only the active window.
        players->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(players.get()));
        QTest::keyClick(players->table, Qt::Key_E, Qt::ControlModifier);
    }
    EXPECT_THAT(reasons[0].toStdString(), HasSubstr(entries[0].refusal));
    EXPECT_EQ(players->table->currentIndex().row(), players->model->RowOf(1));
    EXPECT_EQ(reasons[1], "");
    const int potentials[] = {0, 7, 0, 7, 7, 0, 7};  // the filter shows 1, 3, 4 and 6
    for (int number = 1; number <= 6; ++number)
        EXPECT_EQ(game.Players[number].potential, potentials[number]) << number;
    EXPECT_EQ(document.History().count(), 1);
    EXPECT_EQ(document.History().undoText(), "set potential on 4 players");

    players->filterBox->clear();
    Select(*players, {1, 2}, {Column(*players, "initials"), Column(*players, "surname")});
    EXPECT_THAT(players->Paste(QStringLiteral("B\tBrown\nC\tSmi,th\n")).toStdString(), HasSubstr("comma"));
    EXPECT_EQ(game.Players[1].surname, "Smith");
    EXPECT_EQ(players->Paste(QStringLiteral("B\tBrown\r\nC\tBlack\r\n")), "");
    EXPECT_EQ(game.Players[1].surname, "Brown");
    EXPECT_EQ(game.Players[2].initials, "C");

    Select(*players, {4, 5});
    EXPECT_EQ(players->MoveToTeam(2), "");
    EXPECT_THAT(Places(game.Teams[2]), ElementsAre(3, 6, 4, 5));
    EXPECT_EQ(document.History().count(), 3);

    // Export writes the selected rows as kolta-data export does.
    const QString path = QtPath(scratch / "chosen.csv");
    EXPECT_EQ(players->ExportSelection(path), "");
    const std::vector<int> chosen{4, 5};
    EXPECT_EQ(ReadWholeFile(path.toStdString()).value_or("<missing>"), PlayersCsvOf(game, chosen));
}

}  // namespace
