// The worst search a game can ask for: 2000 players listed in the reverse of
// the chosen order, so the sort takes its full thousand pairs of sweeps.

#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "data/game.h"
#include "search/player_sort.h"
#include "search/search_filters.h"
#include "search_floor.h"

namespace {

// Three letters that fall as `n` rises: "ZZZ" first, then "ZZY" and so on.
std::string FallingLetters(int n)
{
    std::string letters(3, 'Z');
    for (int place = 2, rest = n; place >= 0; --place, rest /= 26)
        letters[place] = static_cast<char>('Z' - rest % 26);
    return letters;
}

// Players numbered 1 to 2000 whose surnames and skills both fall as the
// numbers rise. Surnames differ in their first letters, as real ones do, and
// are long enough that a copied text would cost an allocation. With
// `sharedPrefix` they all begin alike instead, which makes every comparison
// walk thirty characters.
std::unique_ptr<Game> ReversedGame(bool sharedPrefix = false)
{
    auto game = std::make_unique<Game>();
    for (int n = 1; n <= MaxPlayers; ++n) {
        PlayerRecord& p = game->Players[n];
        const std::string rank = FallingLetters(n);
        p.playerNumber = static_cast<std::int16_t>(n);
        p.surname = sharedPrefix ? "Featherstonehaugh-Worthington-" + rank : rank + "-Featherstonehaugh";
        p.initials = "Initials-" + rank;
        p.homeCountry = 1;
        p.batPosition = 1;
        p.bowlType = 1;
        p.fieldsAt = 1;
        p.batSkill = static_cast<std::int16_t>(n);
    }
    game->PlayerCount = MaxPlayers;
    return game;
}

// The worst search and its floor run on the same keys and games, so that
// bench.sh can set one against the other.
void WorstCaseRuns(benchmark::internal::Benchmark* runs)
{
    runs->ArgNames({"key", "sharedPrefix"})
        ->Args({static_cast<int>(SortKey::Surname), 0})
        ->Args({static_cast<int>(SortKey::Surname), 1})
        ->Args({static_cast<int>(SortKey::BatSkill), 0})
        ->Unit(benchmark::kMillisecond);
}

// A whole search as the Search button runs it: five stages, sort.
void BM_WorstCaseSearch(benchmark::State& state)
{
    const auto game = ReversedGame(state.range(1) != 0);
    const int key = static_cast<int>(state.range(0));
    double lastDone = 0;
    for (auto _ : state) {
        SearchRows rows = RunFilters(*game, {});
        SortResults(rows, key, [&](double done) { lastDone = done; });
        benchmark::DoNotOptimize(rows.front());
    }
    benchmark::DoNotOptimize(lastDone);
}
BENCHMARK(BM_WorstCaseSearch)->Apply(WorstCaseRuns);

// The floor under the worst search: the same rows in the same order by the
// standard library's stable sort, with no bar to move.
void BM_StableSortFloor(benchmark::State& state)
{
    const auto game = ReversedGame(state.range(1) != 0);
    const auto key = static_cast<SortKey>(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(SearchByStableSort(*game, key).front());
}
BENCHMARK(BM_StableSortFloor)->Apply(WorstCaseRuns);

// The filters alone, to tell their share from the sort's.
void BM_FiltersOnly(benchmark::State& state)
{
    const auto game = ReversedGame();
    for (auto _ : state) {
        SearchRows rows = RunFilters(*game, {.nationality = 1, .batPosition = 1, .bowlType = 1, .fieldsAt = 1});
        benchmark::DoNotOptimize(rows.front());
    }
}
BENCHMARK(BM_FiltersOnly)->Unit(benchmark::kMillisecond);

}  // namespace
