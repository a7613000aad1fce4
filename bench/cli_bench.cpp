// The subcommands of kolta-data at the game's full size (2000 players, 500
// teams), run as the tool runs them, output thrown away.
#include <benchmark/benchmark.h>

#include <array>
#include <ostream>
#include <string>
#include <vector>
#include <streambuf>

#include "cli/commands.h"
#include "data/players_file.h"
#include "data/teams_file.h"
#include "full_size_game.h"

namespace {

class NullBuffer : public std::streambuf {
protected:
    int overflow(int c) override { return c; }
};

int Run(benchmark::State& state, const std::vector<std::string>& args)
{
    NullBuffer buffer;
    std::ostream null(&buffer);
    const int code = RunKoltaData(args, null, null);
    if (code == 2)
        state.SkipWithError("kolta-data failed");
    return code;
}

// A second full-size world in which every player and team differs from the
// first: other skills and names, and every squad handed on to the next team.
void WriteChangedWorld(const std::filesystem::path& folder)
{
    auto game = FullSizeGameIn(folder);
    for (int i = 1; i <= game->PlayerCount; ++i) {
        game->Players[i].surname += "e";
        game->Players[i].batSkill = static_cast<std::int16_t>((game->Players[i].batSkill + 7) % 61);
    }
    const int teams = LoadedTeamCount(*game);
    const Squad first = game->Teams[1].squad;
    for (int team = 1; team < teams; ++team) {
        game->Teams[team].squad = game->Teams[team + 1].squad;
        game->Teams[team].reputation += 1;
    }
    game->Teams[teams].squad = first;
    WritePlayersFile(*game);
    WriteTeamsFile(*game);
}

struct Worlds {
    std::filesystem::path original;
    std::filesystem::path changed;
};

const Worlds& TwoWorlds()
{
    static const Worlds worlds = [] {
        const Worlds made{BenchFolder(true, "kolta-bench-cli-a"), BenchFolder(true, "kolta-bench-cli-b")};
        FullSizeGameIn(made.original);
        WriteChangedWorld(made.changed);
        return made;
    }();
    return worlds;
}

void BM_Check(benchmark::State& state)
{
    const std::string folder = TwoWorlds().original.string();
    for (auto _ : state)
        Run(state, {"check", folder});
}
BENCHMARK(BM_Check)->Unit(benchmark::kMillisecond);

void BM_Export(benchmark::State& state)
{
    const std::string folder = TwoWorlds().original.string();
    const std::string csv = BenchFolder(true, "kolta-bench-cli-csv").string();
    for (auto _ : state)
        Run(state, {"export", folder, csv});
}
BENCHMARK(BM_Export)->Unit(benchmark::kMillisecond);

// Each round imports the CSV of the other world, so that every player and
// team changes and both files are saved, backups included.
void BM_Import(benchmark::State& state)
{
    const bool inMemory = state.range(0) != 0;
    const bool dryRun = state.range(1) != 0;
    const std::filesystem::path target = BenchFolder(inMemory, "kolta-bench-cli-import");
    const std::array<std::string, 2> csv{BenchFolder(true, "kolta-bench-cli-csv-a").string(),
                                         BenchFolder(true, "kolta-bench-cli-csv-b").string()};
    Run(state, {"export", TwoWorlds().original.string(), csv[0]});
    Run(state, {"export", TwoWorlds().changed.string(), csv[1]});
    FullSizeGameIn(target);
    std::size_t round = 1;
    for (auto _ : state) {
        std::vector<std::string> args{"import", target.string(), csv[dryRun ? 1 : round++ % 2]};
        if (dryRun)
            args.insert(args.begin() + 1, "--dry-run");
        if (Run(state, args) != 0)
            state.SkipWithError("the import was refused");
    }
}
BENCHMARK(BM_Import)
    ->ArgNames({"inMemory", "dryRun"})
    ->Args({1, 0})
    ->Args({0, 0})
    ->Args({1, 1})
    ->Unit(benchmark::kMillisecond);

// Two worlds that differ in every record: a change for each player and team
// and a move for every player in a squad.
void BM_Diff(benchmark::State& state)
{
    const Worlds& worlds = TwoWorlds();
    for (auto _ : state)
        Run(state, {"diff", worlds.original.string(), worlds.changed.string()});
}
BENCHMARK(BM_Diff)->Unit(benchmark::kMillisecond);

}  // namespace
