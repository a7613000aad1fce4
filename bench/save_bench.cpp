// The parts of a save on disk and in memory, apart from the others because
// only it has counters. Each counter is the mean of a part, in microseconds of
// wall time: the checks, the folder's lock, the look for another program's
// save and the formatting of both files before the commit; writing and
// syncing the two new files; the .bak and .orig copies, made only at a
// session's first save; the .prev links; the commit record; the moves; noting
// the new files after the commit.
#include <benchmark/benchmark.h>

#include <chrono>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "data/pair_commit.h"
#include "data/save.h"
#include "full_size_game.h"

namespace {

using Clock = std::chrono::steady_clock;
std::vector<std::pair<std::string, Clock::time_point>> commitSteps;

void NoteCommitStep(std::string_view step)
{
    commitSteps.emplace_back(step, Clock::now());
}

void BM_SaveParts(benchmark::State& state)
{
    const bool inMemory = state.range(0) != 0;
    const auto game = FullSizeGameIn(BenchFolder(inMemory, inMemory ? "kolta-bench-parts-mem" : "kolta-bench-parts-disk"));
    game->BackupsKept = true;
    // Each part ends at the first step whose name begins so, or at the end of the save.
    const std::pair<const char*, const char*> parts[] = {
        {"before the commit", "began"},         {"write and sync", "wrote new teams"},
        {".bak and .orig", "copied"},           {".prev", "kept"},
        {"record", "wrote the commit record"}, {"moves", "removed"},
        {"after", ""},
    };
    std::map<std::string, double> totals;
    SetCommitStepHook(NoteCommitStep);
    for (auto _ : state) {
        commitSteps.clear();
        const Clock::time_point start = Clock::now();
        const FileResult saved = SaveGame(*game);
        const Clock::time_point end = Clock::now();
        if (!saved.ok())
            state.SkipWithError(saved.reason.c_str());
        Clock::time_point from = start;
        auto step = commitSteps.begin();
        for (const auto& [part, endsAt] : parts) {
            while (*endsAt && step != commitSteps.end() && !step->first.starts_with(endsAt))
                ++step;
            const Clock::time_point to = *endsAt && step != commitSteps.end() ? step->second : end;
            totals[part] += std::chrono::duration<double, std::micro>(to - from).count();
            from = to;
        }
    }
    SetCommitStepHook(nullptr);
    for (const auto& [part, total] : totals)
        state.counters[part] = benchmark::Counter(total, benchmark::Counter::kAvgIterations);
}
BENCHMARK(BM_SaveParts)->ArgName("inMemory")->Arg(1)->Arg(0)->Unit(benchmark::kMicrosecond)->UseRealTime();

}  // namespace
