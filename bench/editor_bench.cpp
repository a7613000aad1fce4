// One keystroke in a box of the main window on a full-size game, written
// through the document as the user types it: the box, the step of the
// history, the signals and the redrawing they cause; and one keystroke in the
// Find Player window, the search and the listing of its matches.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDate>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTreeWidget>
#include <memory>

#include "data/setting_file.h"
#include "editor/editor.h"
#include "findwindow/find_window.h"
#include "forms/text_box.h"
#include "full_size_game.h"

namespace {

MainWindow* form = nullptr;
const Game* world = nullptr;

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

    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
