// Loading and saving both files, and taking a player out of every squad, at
// the game's full size.
#include <benchmark/benchmark.h>

#include "data/players_file.h"
#include "data/save.h"
#include "data/squad.h"
#include "data/teams_file.h"
#include "full_size_game.h"

namespace {

// Both files into a fresh game, as the editor's start reads them.
void BM_LoadBothFiles(benchmark::State& state)
{
    const auto written = FullSizeGameIn(BenchFolder(true, "kolta-bench-load"));
    for (auto _ : state) {
        state.PauseTiming();
        auto game = std::make_unique<Game>();
        SetGameDirectory(*game, written->GameDirectory);
        state.ResumeTiming();
        ReadPlayersFile(*game);
        ReadTeamsFile(*game);
        benchmark::DoNotOptimize(game->TeamCount);
    }
}
BENCHMARK(BM_LoadBothFiles)->Unit(benchmark::kMicrosecond);

// The whole save: name checks, both files written beside the old ones and
// moved over them. In memory the sync to disk costs nothing; on disk it is
// most of the time.
void BM_SaveBothFiles(benchmark::State& state)
{
    const bool inMemory = state.range(0) != 0;
    const auto game = FullSizeGameIn(BenchFolder(inMemory, inMemory ? "kolta-bench-save-mem" : "kolta-bench-save-disk"));
    game->BackupsKept = true;
    for (auto _ : state) {
        const FileResult saved = SaveGame(*game);
        if (!saved.ok())
            state.SkipWithError(saved.reason.c_str());
    }
}
BENCHMARK(BM_SaveBothFiles)->ArgName("inMemory")->Arg(1)->Arg(0)->Unit(benchmark::kMicrosecond);

// Writing both files to bytes, without touching the disk.
void BM_FormatBothFiles(benchmark::State& state)
{
    const auto game = FullSizeGame();
    for (auto _ : state) {
        benchmark::DoNotOptimize(WritePlayers(*game));
        benchmark::DoNotOptimize(WriteTeams(*game));
    }
}
BENCHMARK(BM_FormatBothFiles)->Unit(benchmark::kMicrosecond);

// The player in the first place of the last squad that has one, or the
// first player no squad holds.
std::int16_t ChosenPlayer(const Game& game, bool inSquad)
{
    if (inSquad) {
        for (int team = LoadedTeamCount(game); team >= 1; --team) {
            if (game.Teams[team].squad[1] != 0)
                return game.Teams[team].squad[1];
        }
        return 0;
    }
    for (std::int16_t player = 1; player <= game.PlayerCount; ++player) {
        bool held = false;
        for (int team = 1; team <= LoadedTeamCount(game) && !held; ++team)
            held = IsInSquad(game, team, player);
        if (!held)
            return player;
    }
    return 0;
}

// A player in a squad is taken out and, untimed, put back in his place; a
// player in no squad costs the full walk over every place of every team.
void BM_DetachFromSquads(benchmark::State& state)
{
    const bool inSquad = state.range(0) != 0;
    const auto game = FullSizeGame();
    const std::int16_t player = ChosenPlayer(*game, inSquad);
    if (player == 0) {
        state.SkipWithError("the generated world has no such player");
        return;
    }
    const auto teams = game->Teams;
    for (auto _ : state) {
        const std::int16_t left = DetachFromSquads(*game, player);
        benchmark::DoNotOptimize(left);
        if (left != 0) {
            state.PauseTiming();
            game->Teams[left].squad = teams[left].squad;
            state.ResumeTiming();
        }
    }
}
BENCHMARK(BM_DetachFromSquads)->ArgName("inSquad")->Arg(1)->Arg(0)->Unit(benchmark::kMicrosecond);

}  // namespace
