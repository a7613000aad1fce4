#include "full_size_game.h"

#include <stdexcept>

#include "data/players_file.h"
#include "data/teams_file.h"
#include "world_generator.h"

std::unique_ptr<Game> FullSizeGame()
{
    auto game = std::make_unique<Game>();
    GenerateFullSizeWorld(*game);
    return game;
}

std::unique_ptr<Game> FullSizeGameIn(const std::filesystem::path& folder)
{
    std::filesystem::create_directories(folder);
    auto game = FullSizeGame();
    SetGameDirectory(*game, folder.string());
    for (const FileResult& written : {WritePlayersFile(*game), WriteTeamsFile(*game)}) {
        if (!written.ok())
            throw std::runtime_error(written.path + ": " + written.reason);
    }
    return game;
}

std::filesystem::path BenchFolder(bool inMemory, const char* name)
{
    const std::filesystem::path memory("/dev/shm");
    const bool haveMemory = std::filesystem::is_directory(memory);
    return (inMemory && haveMemory ? memory : std::filesystem::temp_directory_path()) / name;
}
