// One tick of the main window's edit timer on a full-size game, the way it
// runs ten times a second while the editor is open.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QFile>
#include <memory>

#include "data/setting_file.h"
#include "forms/text_box.h"
#include "full_size_game.h"
#include "mainwindow/main_window.h"

namespace {

MainWindow* form = nullptr;

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
    const QString names[2] = {surname.Text() + QStringLiteral("a"), surname.Text()};
    int turn = 0;
    for (auto _ : state) {
        state.PauseTiming();
        surname.SetText(names[turn ^= 1]);
        state.ResumeTiming();
        form->CarryEditsIntoRecords();
    }
}
BENCHMARK(BM_TickAfterNameChange)->Unit(benchmark::kMicrosecond);

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

    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
