// The players table at full size: a keystroke in its filter box reads the
// filter afresh and tests all 2000 players; Set Value on every player plans
// the step, applies it and takes it back.

#include <benchmark/benchmark.h>

#include <numeric>
#include <string>
#include <vector>

#include "bulkedit/bulk_edit.h"
#include "filter/record_filter.h"
#include "full_size_game.h"

namespace {

const Game& World()
{
    static const auto game = FullSizeGame();
    return *game;
}

constexpr CalendarDay Today{2024, 6, 1};

// Every keystroke of a filter, one benchmark each for its last key.
const char* const Filters[] = {
    "batSkill>=42 homeCountry=England or age<25",
    "a j smi",
    "club=none bowlType!=None",
    "surname<M potential>10",
};

void BM_FilterKeystroke(benchmark::State& state)
{
    const std::string text = Filters[state.range(0)];
    std::size_t passed = 0;
    for (auto _ : state) {
        for (std::size_t keys = 1; keys <= text.size(); ++keys) {
            const ParsedFilter parsed = ParseFilter(std::string_view(text).substr(0, keys), RecordKind::Player, World());
            passed = MatchingRecords(parsed.filter, World(), Today).size();
        }
    }
    state.counters["keystrokes"] = static_cast<double>(text.size());
    state.counters["per key"] =
        benchmark::Counter(static_cast<double>(text.size()), benchmark::Counter::kIsIterationInvariantRate |
                                                             benchmark::Counter::kInvert);
    state.counters["passed"] = static_cast<double>(passed);
    state.SetLabel("\"" + text + "\"");
}
BENCHMARK(BM_FilterKeystroke)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);

std::vector<int> AllPlayers()
{
    std::vector<int> numbers(static_cast<std::size_t>(LoadedPlayerCount(World())));
    std::iota(numbers.begin(), numbers.end(), 1);
    return numbers;
}

void BM_SetValueOnEveryPlayer(benchmark::State& state)
{
    const std::vector<int> players = AllPlayers();
    auto game = std::make_unique<Game>(World());
    const char* const value = state.range(0) == 0 ? "7" : "+2";
    for (auto _ : state) {
        const BulkEdit plan = PlanSetValue(*game, RecordKind::Player, "potential", players, value);
        plan.change.Redo(*game);
        plan.change.Undo(*game);
        benchmark::DoNotOptimize(plan.change.players.size());
    }
    state.SetLabel(std::string("potential ") + value + " on " + std::to_string(players.size()) + " players, applied and undone");
}
BENCHMARK(BM_SetValueOnEveryPlayer)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void BM_PlanSetValueOnly(benchmark::State& state)
{
    const std::vector<int> players = AllPlayers();
    for (auto _ : state)
        benchmark::DoNotOptimize(PlanSetValue(World(), RecordKind::Player, "potential", players, "7"));
}
BENCHMARK(BM_PlanSetValueOnly)->Unit(benchmark::kMillisecond);

}  // namespace
