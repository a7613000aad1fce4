// Loading and saving both files, taking a player out of every squad and the
// check of the whole game, at the game's full size.
#include <benchmark/benchmark.h>

#include <cstring>
#include <fstream>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "check/problems.h"
#include "data/players_file.h"
#include "data/save.h"
#include "data/squad.h"
#include "data/teams_file.h"
#include "full_size_game.h"

namespace {

// Both files into a fresh game, as the editor's start reads them. The game
// before is made and dropped while the clock stands.
void BM_LoadBothFiles(benchmark::State& state)
{
    const auto written = FullSizeGameIn(BenchFolder(true, "kolta-bench-load"));
    std::unique_ptr<Game> game;
    for (auto _ : state) {
        state.PauseTiming();
        game = std::make_unique<Game>();
        SetGameDirectory(*game, written->GameDirectory);
        state.ResumeTiming();
        ReadPlayersFile(*game);
        ReadTeamsFile(*game);
        benchmark::DoNotOptimize(game->TeamCount);
    }
}
BENCHMARK(BM_LoadBothFiles)->Unit(benchmark::kMicrosecond);

// The floor under the load: the same two files read as the load reads them and
// split into lines, each line kept as a view, with nothing read from the lines.
void BM_ReadAndSplitFloor(benchmark::State& state)
{
    const auto written = FullSizeGameIn(BenchFolder(true, "kolta-bench-load"));
    std::vector<std::string_view> lines;
    for (auto _ : state) {
        for (const std::string* path : {&written->PlayersPath, &written->TeamsPath}) {
            const FileBytes file = ReadFileBytes(*path);
            lines.clear();
            std::size_t start = 0;
            for (std::size_t i = 0; i < file.bytes.size(); ++i) {
                if (file.bytes[i] == '\n') {
                    lines.emplace_back(file.bytes.data() + start, i - start);
                    start = i + 1;
                }
            }
            benchmark::DoNotOptimize(lines.data());
        }
    }
}
BENCHMARK(BM_ReadAndSplitFloor)->Unit(benchmark::kMicrosecond);

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

// The floor under the save: the bytes of both files, made beforehand, written
// over the old files in place, as an editor that risked them would, with
// nothing synced.
void BM_SaveInPlaceFloor(benchmark::State& state)
{
    const bool inMemory = state.range(0) != 0;
    const auto game = FullSizeGameIn(BenchFolder(inMemory, inMemory ? "kolta-bench-floor-mem" : "kolta-bench-floor-disk"));
    const std::pair<std::string, std::string> files[] = {{game->PlayersPath, WritePlayers(*game)},
                                                         {game->TeamsPath, WriteTeams(*game)}};
    for (auto _ : state) {
        for (const auto& [path, bytes] : files) {
            std::ofstream file(path, std::ios::binary | std::ios::trunc);
            file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        }
    }
}
BENCHMARK(BM_SaveInPlaceFloor)->ArgName("inMemory")->Arg(1)->Arg(0)->Unit(benchmark::kMicrosecond)->UseRealTime();

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

// The floor under the format: the lines of both files, already as text with
// their line ends, copied one by one into new buffers of the files' size,
// sixteen bytes a step, as fast as lines of known length can be put down.
void BM_WriteLinesFloor(benchmark::State& state)
{
    constexpr std::size_t step = 16;
    const auto game = FullSizeGame();
    std::string files[] = {WritePlayers(*game), WriteTeams(*game)};
    std::vector<std::string_view> lines[2];
    for (int file = 0; file < 2; ++file) {
        const std::size_t size = files[file].size();
        files[file].resize(size + step);  // every step reads whole sixteen bytes
        const std::string_view text(files[file]);
        for (std::size_t start = 0, end; start < size; start = end + 2) {
            end = text.find("\r\n", start);
            lines[file].push_back(text.substr(start, end + 2 - start));
        }
    }
    for (auto _ : state) {
        for (int file = 0; file < 2; ++file) {
            std::string out(files[file].size(), '\0');
            char* at = out.data();
            for (const std::string_view line : lines[file]) {
                for (std::size_t done = 0; done < line.size(); done += step)
                    std::memcpy(at + done, line.data() + done, step);
                at += line.size();
            }
            benchmark::DoNotOptimize(out);
        }
    }
}
BENCHMARK(BM_WriteLinesFloor)->Unit(benchmark::kMicrosecond);

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

// The check of the whole game: its records alone, as the problems bar counts
// them again after every step, and with the scans of both files' bytes, as
// Check Game and a load or save count them.
void BM_CheckGame(benchmark::State& state)
{
    const bool withFiles = state.range(0) != 0;
    const auto game = FullSizeGame();
    const std::string players = WritePlayers(*game);
    const std::string teams = WriteTeams(*game);
    std::size_t found = 0;
    for (auto _ : state) {
        found = withFiles ? ProblemsOfGame(*game, players, teams).size() : ProblemsInGame(*game).size();
        benchmark::DoNotOptimize(found);
    }
    state.counters["problems"] = double(found);
}
BENCHMARK(BM_CheckGame)->ArgName("withFiles")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

}  // namespace
