// make-sample-game [--full] [--seed N] <directory>
// Writes players.dat and teams.dat of an invented world into <directory>.
// Without options it makes the sample game that ships in sample/.

#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>
#include <string_view>

#include "data/players_file.h"
#include "data/teams_file.h"
#include "world_generator.h"

namespace {

int Usage()
{
    std::cerr << "usage: make-sample-game [--full] [--seed N] <directory>\n"
                 "  --full    2000 players and 500 teams instead of the sample game\n";
    return 2;
}

bool Report(const FileResult& result)
{
    if (!result.ok())
        std::cerr << "make-sample-game: " << result.path << ": " << result.reason << '\n';
    return result.ok();
}

}  // namespace

int main(int argc, char** argv)
{
    bool full = false;
    std::uint32_t seed = SampleSeed;
    std::string directory;
    for (int i = 1; i < argc; ++i) {
        const std::string_view arg = argv[i];
        if (arg == "--full") {
            full = true;
        } else if (arg == "--seed" && i + 1 < argc) {
            seed = static_cast<std::uint32_t>(std::strtoul(argv[++i], nullptr, 10));
        } else if (directory.empty() && !arg.starts_with("-")) {
            directory = arg;
        } else {
            return Usage();
        }
    }
    if (directory.empty())
        return Usage();

    auto game = std::make_unique<Game>();
    if (full)
        GenerateFullSizeWorld(*game, seed);
    else
        GenerateSampleWorld(*game, seed);
    SetGameDirectory(*game, directory);
    if (!Report(WritePlayersFile(*game)) || !Report(WriteTeamsFile(*game)))
        return 1;
    std::cout << "Wrote " << game->PlayerCount << " players and " << LoadedTeamCount(*game)
              << " teams to " << directory << '\n';
    return 0;
}
