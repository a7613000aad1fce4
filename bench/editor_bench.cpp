// One tick of the main window's edit timer on a full-size game, the way it
// runs ten times a second while the editor is open; and one keystroke in the
// Find Player window, the search and the listing of its matches.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDate>
#include <QFile>
#include <QLineEdit>
#include <QTreeWidget>
#include <memory>

#include "data/setting_file.h"
#include "findwindow/find_window.h"
#include "forms/text_box.h"
#include "full_size_game.h"
#include "mainwindow/main_window.h"

namespace {

MainWindow* form = nullptr;
const Game* world = nullptr;

// Nothing changed since the last tick: every field is copied all the same.
void BM_TickUnchanged(benchmark::State& state)
{
    for (auto _ : state)
        form->CarryEditsIntoRecords();
}
BENCHMARK(BM_TickUnchanged)->Unit(benchmark::kMicrosecond);

// The surname changes before every tick, so each one also rebuilds the squad list.
void BM_TickAfterNameChange(benchmark::State& state)
{
    TextBox& surname = *form->findChild<TextBox*>(QStringLiteral("surname"));
    const QString names[2] = {surname.text() + QStringLiteral("a"), surname.text()};
    int turn = 0;
    for (auto _ : state) {
        state.PauseTiming();
        surname.setText(names[turn ^= 1]);
        state.ResumeTiming();
        form->CarryEditsIntoRecords();
    }
}
BENCHMARK(BM_TickAfterNameChange)->Unit(benchmark::kMicrosecond);

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

}  // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);

    const auto folder = BenchFolder(true, "kolta-bench-editor");
    auto game = FullSizeGameIn(folder);
    const QString setting = QFile::decodeName((folder / "editor.dat").string().c_str());
    WriteSettingFile(QFile::encodeName(setting).toStdString(), game->GameDirectory);
    MainWindow window(*game, SettingPlaces{setting, setting});
    if (!window.Start())
        return 1;
    window.show();
    QApplication::processEvents();
    form = &window;
    world = game.get();

    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
