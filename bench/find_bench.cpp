// The Find Player box answers each key as it is typed: every keystroke runs a
// whole search over the 2000 players of a full-size game.

#include <benchmark/benchmark.h>

#include <string>

#include "full_size_game.h"
#include "search/player_find.h"

namespace {

const Game& World()
{
    static const auto game = FullSizeGame();
    return *game;
}

// The text after `keys` keystrokes of "A J Smithers"-like typing: the
// initials and surname of a player in the middle of the table.
std::string Typed(int keys)
{
    const PlayerRecord& player = World().Players[MaxPlayers / 2];
    const std::string whole = player.initials + " " + player.surname;
    return whole.substr(0, static_cast<std::size_t>(keys));
}

// One keystroke of a name, from the first letter (most matches) on.
void BM_FindNameKeystroke(benchmark::State& state)
{
    const std::string typed = Typed(static_cast<int>(state.range(0)));
    std::size_t found = 0;
    for (auto _ : state)
        found = FindPlayers(World(), typed).size();
    state.counters["found"] = static_cast<double>(found);
    state.SetLabel("\"" + typed + "\"");
}
BENCHMARK(BM_FindNameKeystroke)->DenseRange(1, 8)->Unit(benchmark::kMicrosecond);

// The letters that stand in most names: nearly every player matches and the
// whole list is sorted.
void BM_FindCommonLetter(benchmark::State& state)
{
    const std::string typed(1, static_cast<char>(state.range(0)));
    std::size_t found = 0;
    for (auto _ : state)
        found = FindPlayers(World(), typed).size();
    state.counters["found"] = static_cast<double>(found);
    state.SetLabel("\"" + typed + "\"");
}
BENCHMARK(BM_FindCommonLetter)->Arg('e')->Arg('a')->Unit(benchmark::kMicrosecond);

// A number, one digit at a time: "1" matches 1111 players.
void BM_FindNumberKeystroke(benchmark::State& state)
{
    const std::string typed = std::string("1234").substr(0, static_cast<std::size_t>(state.range(0)));
    std::size_t found = 0;
    for (auto _ : state)
        found = FindPlayers(World(), typed).size();
    state.counters["found"] = static_cast<double>(found);
    state.SetLabel("\"" + typed + "\"");
}
BENCHMARK(BM_FindNumberKeystroke)->DenseRange(1, 4)->Unit(benchmark::kMicrosecond);

}  // namespace
