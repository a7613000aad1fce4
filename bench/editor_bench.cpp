// One keystroke in a box of the main window on a full-size game, written
// through the document as the user types it: the box, the step of the
// history, the signals and the redrawing they cause; one keystroke in the
// Find Player window, the search and the listing of its matches; and the
// players table: opening it, sorting by each column, a keystroke in its
// filter box, Set Value on every player and its undo.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDate>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTableView>
#include <QTreeWidget>
#include <memory>

#include "data/setting_file.h"
#include "editor/editor.h"
#include "findwindow/find_window.h"
#include "forms/text_box.h"
#include "full_size_game.h"
#include "tables/record_table_model.h"
#include "tables/table_window.h"

namespace {

MainWindow* form = nullptr;
const Game* world = nullptr;
GameDocument* document = nullptr;
constexpr CalendarDay Today{2026, 1, 1};

void Press(QWidget& box, Qt::Key key, const QString& text = {})
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(&box, &press);
}

// A key typed at the end of a box, then taken back with Backspace: two
// keystrokes a round, each one a change of the record. A new surname also
// shows at once in the player's row of the squad list.
void BM_Keystroke(benchmark::State& state, const char* box, Qt::Key key, const char* text)
{
    TextBox& typed = *form->findChild<TextBox*>(QString::fromLatin1(box));
    typed.setFocus();
    typed.end(false);
    for (auto _ : state) {
        Press(typed, key, QString::fromLatin1(text));
        Press(typed, Qt::Key_Backspace);
    }
    state.SetItemsProcessed(2 * state.iterations());
}
BENCHMARK_CAPTURE(BM_Keystroke, bat_skill, "batSkill", Qt::Key_5, "5")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_Keystroke, wealth, "team.wealth", Qt::Key_5, "5")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_Keystroke, surname, "surname", Qt::Key_A, "a")->Unit(benchmark::kMicrosecond);

// The box goes from empty to the text, as one keystroke does: the window
// searches and lists every match with his club, nationality and age. "e"
// matches about half the players.
void BM_FindWindowKeystroke(benchmark::State& state, const char* typed)
{
    FindWindow find(*world, QDate(2026, 1, 1));
    find.show();
    std::size_t listed = 0;
    for (auto _ : state) {
        state.PauseTiming();
        find.findBox->clear();
        state.ResumeTiming();
        find.findBox->setText(QString::fromLatin1(typed));
        listed = std::size_t(find.matchList->topLevelItemCount());
    }
    state.counters["listed"] = double(listed);
}
BENCHMARK_CAPTURE(BM_FindWindowKeystroke, common_letter, "e")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_FindWindowKeystroke, number, "12")->Unit(benchmark::kMicrosecond);

// The rows in view drawn again, as after each change.
void DrawRows(TableWindow& table)
{
    benchmark::DoNotOptimize(table.table->viewport()->grab());
}

// From nothing to the players table drawn on the screen with all 2000 rows.
void BM_OpenPlayersTable(benchmark::State& state)
{
    for (auto _ : state) {
        TableWindow table(*document, RecordKind::Player, Today);
        table.show();
        // Drawn whole into a picture: the first paint, whatever the platform.
        benchmark::DoNotOptimize(table.grab());
    }
}
BENCHMARK(BM_OpenPlayersTable)->Unit(benchmark::kMillisecond);

// A click on a column's header, the order turning each time, and the rows
// in view drawn again.
void BM_SortPlayersTable(benchmark::State& state)
{
    TableWindow table(*document, RecordKind::Player, Today);
    table.show();
    const int column = int(state.range(0));
    bool descending = false;
    for (auto _ : state) {
        table.table->sortByColumn(column, descending ? Qt::DescendingOrder : Qt::AscendingOrder);
        DrawRows(table);
        descending = !descending;
    }
    state.SetLabel(table.model->ColumnAt(column).name);
}
BENCHMARK(BM_SortPlayersTable)->DenseRange(0, 21)->Unit(benchmark::kMillisecond);

// Each keystroke of a filter typed into the box, the rows drawn after each.
void BM_PlayersTableFilterKeystroke(benchmark::State& state, const char* typed)
{
    TableWindow table(*document, RecordKind::Player, Today);
    table.show();
    const QString text = QString::fromLatin1(typed);
    for (auto _ : state) {
        for (int keys = 1; keys <= text.size(); ++keys) {
            table.filterBox->setText(text.left(keys));
            DrawRows(table);
        }
    }
    state.counters["per key"] = benchmark::Counter(double(text.size()), benchmark::Counter::kIsIterationInvariantRate |
                                                                         benchmark::Counter::kInvert);
    state.counters["shown"] = table.model->rowCount();
}
BENCHMARK_CAPTURE(BM_PlayersTableFilterKeystroke, skill, "batSkill>=42")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_PlayersTableFilterKeystroke, terms, "batSkill>=42 homeCountry=England or age<25")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_PlayersTableFilterKeystroke, name, "a j smi")->Unit(benchmark::kMillisecond);

// Set Value on all 2000 players as one step, the main window and the table
// following it; then its undo, each timed on its own.
void BM_SetValueOnEveryPlayer(benchmark::State& state)
{
    const bool timeUndo = state.range(0) == 1;
    TableWindow table(*document, RecordKind::Player, Today);
    table.show();
    table.table->selectAll();
    for (auto _ : state) {
        if (timeUndo)
            state.PauseTiming();
        if (!table.SetValue(QStringLiteral("potential"), QStringLiteral("+1")).isEmpty())
            state.SkipWithError("Set Value refused");
        DrawRows(table);
        if (timeUndo)
            state.ResumeTiming();
        else
            state.PauseTiming();
        document->Undo();
        DrawRows(table);
        if (!timeUndo)
            state.ResumeTiming();
    }
    state.SetLabel((timeUndo ? "undo of " : "") + document->History().redoText().toStdString());
}
BENCHMARK(BM_SetValueOnEveryPlayer)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);

    const auto folder = BenchFolder(true, "kolta-bench-editor");
    const auto written = FullSizeGameIn(folder);
    const QString setting = QFile::decodeName((folder / "editor.dat").string().c_str());
    WriteSettingFile(QFile::encodeName(setting).toStdString(), written->GameDirectory);
    Editor editor(SettingPlaces{setting, setting});
    if (!editor.Start())
        return 1;
    editor.Window().show();
    QApplication::processEvents();
    form = &editor.Window();
    world = &editor.Document().Records();
    document = &editor.Document();

    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
