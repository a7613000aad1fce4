// The editor's own start, as main.cpp runs it, on a full-size game:
//   editor_start <game directory>            ends at the first paint
//   editor_start <game directory> --idle S   stays open S seconds and prints
//                                            the share of a core it used
// The game directory is filled with a full-size game first if it holds none.
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTimer>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <memory>

#include "data/setting_file.h"
#include "first_paint.h"
#include "full_size_game.h"
#include "mainwindow/main_form.h"

namespace {

double ProcessCpuSeconds()
{
    timespec used{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
    return static_cast<double>(used.tv_sec) + static_cast<double>(used.tv_nsec) / 1e9;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc < 2)
        return 2;
    const std::filesystem::path folder = argv[1];
    if (!std::filesystem::exists(folder / "players.dat"))
        FullSizeGameIn(folder);
    const std::string setting = (folder / "editor.dat").string();
    if (!std::filesystem::exists(setting))
        WriteSettingFile(setting, folder.string());
    const int idleSeconds = argc >= 4 && QByteArray(argv[2]) == "--idle" ? std::atoi(argv[3]) : 0;

    QApplication app(argc, argv);
    auto game = std::make_unique<Game>();
    const QString settingPath = QFile::decodeName(setting.c_str());
    MainForm form(*game, SettingPlaces{settingPath, settingPath});
    if (!form.Form_Load())
        return 1;
    if (idleSeconds == 0) {
        EndAtFirstPaint(form);
    } else {
        QTimer::singleShot(1000, [idleSeconds] {
            const double cpuBefore = ProcessCpuSeconds();
            auto* wall = new QElapsedTimer;
            wall->start();
            QTimer::singleShot(idleSeconds * 1000, [cpuBefore, wall] {
                const double cpu = ProcessCpuSeconds() - cpuBefore;
                std::printf("idle: %.3f s of CPU in %.1f s, %.2f%% of a core\n", cpu,
                            static_cast<double>(wall->elapsed()) / 1000.0,
                            100.0 * cpu / (static_cast<double>(wall->elapsed()) / 1000.0));
                QApplication::quit();
            });
        });
    }
    form.show();
    return QApplication::exec();
}
