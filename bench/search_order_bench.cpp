// A search with every filter at "All", sorted by each key, over the full-size
// world with its players already in that order, in random order and in the
// reverse order.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <memory>
#include <random>

#include "data/game.h"
#include "search/player_sort.h"
#include "search/search_filters.h"
#include "search_floor.h"
#include "world_generator.h"

namespace {

enum class Order { Sorted = 0, Random, Reversed };

// The world's players renumbered so that a search over all clubs finds them
// in `order` for `key`. The sort itself says what "in order" means.
std::unique_ptr<Game> GameInOrder(SortKey key, Order order)
{
    auto game = std::make_unique<Game>();
    GenerateFullSizeWorld(*game);
    const int count = game->PlayerCount;
    SearchRows rows(game->Players.begin() + 1, game->Players.begin() + count + 1);
    SortRows(rows, key, [](double) {});
    if (order == Order::Reversed)
        std::reverse(rows.begin(), rows.end());
    if (order == Order::Random) {
        std::mt19937 random(1997);
        for (int i = count; i > 1; --i)
            std::swap(rows[i - 1], rows[static_cast<int>(random() % static_cast<unsigned>(i))]);
    }
    for (int i = 1; i <= count; ++i) {
        game->Players[i] = rows[i - 1];
        game->Players[i].playerNumber = static_cast<std::int16_t>(i);
    }
    return game;
}

// Five stages, sort: what the Search button runs before it lists.
void BM_SearchAllSorted(benchmark::State& state)
{
    const auto key = static_cast<SortKey>(state.range(0));
    const auto game = GameInOrder(key, static_cast<Order>(state.range(1)));
    for (auto _ : state) {
        SearchRows rows = RunFilters(*game, {});
        SortResults(rows, static_cast<int>(key), [](double done) { benchmark::DoNotOptimize(done); });
        benchmark::DoNotOptimize(rows.front());
    }
}
BENCHMARK(BM_SearchAllSorted)
    ->ArgNames({"key", "order"})
    ->ArgsProduct({benchmark::CreateDenseRange(0, SortKeyCount - 1, 1), {0, 1, 2}})
    ->Unit(benchmark::kMicrosecond);

// The floor under the searches of a surname and of a skill, in random and in
// reverse order: the same rows in the same order by a stable sort.
void BM_StableSortFloor(benchmark::State& state)
{
    const auto key = static_cast<SortKey>(state.range(0));
    const auto game = GameInOrder(key, static_cast<Order>(state.range(1)));
    for (auto _ : state)
        benchmark::DoNotOptimize(SearchByStableSort(*game, key).front());
}
BENCHMARK(BM_StableSortFloor)
    ->ArgNames({"key", "order"})
    ->ArgsProduct({{static_cast<int>(SortKey::Surname), static_cast<int>(SortKey::BatSkill)},
                   {static_cast<int>(Order::Random), static_cast<int>(Order::Reversed)}})
    ->Unit(benchmark::kMicrosecond);

}  // namespace
