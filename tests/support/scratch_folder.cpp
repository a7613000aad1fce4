#include "support/scratch_folder.h"

#include <chrono>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>
#include <system_error>

namespace fs = std::filesystem;

namespace {

// Where CMake says the case folders and the sample game stand; read here
// only, to be copied.
const char* const FixtureFolders = KOLTA_FIXTURES;
const char* const SampleFolder = KOLTA_SAMPLE;

// A name no other test, program or run has taken: create_directory fails on
// a folder that is there, so a name is only ever had once.
fs::path MakeUniqueFolder()
{
    // Seeded by the clock too: some systems' random_device gives every run the same numbers.
    static std::mt19937_64 random(std::random_device{}() ^
                                  std::uint64_t(std::chrono::steady_clock::now().time_since_epoch().count()));
    for (int attempt = 0; attempt < 100; ++attempt) {
        const fs::path candidate = fs::temp_directory_path() / ("kolta-test-" + std::to_string(random() % 1000000000));
        if (fs::create_directory(candidate))
            return candidate;
    }
    throw std::runtime_error("no scratch folder could be made in " + fs::temp_directory_path().string());
}

// A test may leave folders it took the rights from; gives them back.
void MakeRemovable(const fs::path& path)
{
    std::error_code ignored;
    if (fs::is_symlink(fs::symlink_status(path, ignored)))
        return;
    fs::permissions(path, fs::perms::owner_all, fs::perm_options::add, ignored);
    if (!fs::is_directory(path, ignored))
        return;
    for (fs::directory_iterator entry(path, ignored), end; !ignored && entry != end; entry.increment(ignored))
        MakeRemovable(entry->path());
}

}  // namespace

ScratchFolder::ScratchFolder()
    : path_(MakeUniqueFolder())
{
}

ScratchFolder::~ScratchFolder()
{
    std::error_code failed;
    fs::remove_all(path_, failed);
    if (failed) {
        MakeRemovable(path_);
        fs::remove_all(path_, failed);
    }
}

fs::path ScratchFolder::Folder(const fs::path& name) const
{
    const fs::path folder = path_ / name;
    fs::create_directories(folder);
    return folder;
}

fs::path ScratchFolder::Fixture(const std::string& name) const
{
    const fs::path copy = path_ / name;
    if (!fs::exists(copy))
        fs::copy(fs::path(FixtureFolders) / name, copy, fs::copy_options::recursive);
    return copy;
}

fs::path ScratchFolder::Sample(const fs::path& name) const
{
    const fs::path copy = Folder(name);
    CopySampleInto(copy);
    return copy;
}

void CopySampleInto(const fs::path& folder)
{
    for (const char* file : {"players.dat", "teams.dat"})
        fs::copy_file(fs::path(SampleFolder) / file, folder / file, fs::copy_options::overwrite_existing);
}

std::string SampleBytes(const std::string& name)
{
    std::ifstream file(fs::path(SampleFolder) / name, std::ios::binary);
    if (!file)
        return "<missing>";
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}
