#pragma once

#include <filesystem>
#include <string>

// A folder of one test's own, made fresh under the system's temporary folder
// and removed with everything in it when the test is done. Tests never work
// in the source tree: a fixture or the sample game is copied in here first,
// so tests that run at once never share a folder.
class ScratchFolder {
public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::filesystem::path& Path() const { return path_; }
    std::filesystem::path operator/(const std::filesystem::path& name) const { return path_ / name; }

    // An empty folder `name` in here, its parents made too.
    std::filesystem::path Folder(const std::filesystem::path& name) const;
    // The case folder tests/fixtures/<name>, copied to <name> in here the
    // first time it is asked for.
    std::filesystem::path Fixture(const std::string& name) const;
    // The sample game copied to `name` in here.
    std::filesystem::path Sample(const std::filesystem::path& name = "sample") const;

private:
    std::filesystem::path path_;
};

// The sample game's players.dat and teams.dat copied into `folder`, over
// what is there.
void CopySampleInto(const std::filesystem::path& folder);

// What the sample game's file `name` holds, or "<missing>".
std::string SampleBytes(const std::string& name);
