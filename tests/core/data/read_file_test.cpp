// Reading a game file: what is read, and why what is not. What a load had to
// leave out is in the readers' tables of players_file_test and teams_file_test.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#if !defined(_WIN32)
#include <unistd.h>
#endif

#include "data/file_io.h"
#include "support/scratch_folder.h"

namespace fs = std::filesystem;

namespace {

#if !defined(_WIN32)
// A link to a file is followed, and a file of exactly the limit is read;
// what is refused says why. Pipes, devices and folders are refused by every
// command of kolta-data, in its tests. (Links and permission bits are Unix things.)
TEST(ReadFile, ReadsUpToTheLimitAndSaysWhyNot)
{
    const ScratchFolder scratch;
    const fs::path& dir = scratch.Path();
    ASSERT_TRUE(ReplaceFile((dir / "plain").string(), "12\r\n").ok());
    ASSERT_TRUE(ReplaceFile((dir / "large").string(), "").ok());
    fs::resize_file(dir / "large", MaxFileSize + 1);
    ASSERT_TRUE(ReplaceFile((dir / "largest").string(), "").ok());
    fs::resize_file(dir / "largest", MaxFileSize);
    fs::create_symlink(dir / "plain", dir / "link");
    ASSERT_TRUE(ReplaceFile((dir / "locked").string(), "x").ok());
    fs::permissions(dir / "locked", fs::perms::none);

    // A file, and why it cannot be read (empty: it can).
    const std::pair<std::string, std::string> cases[] = {
        {"plain", ""},
        {"link", ""},
        {"largest", ""},
        {"missing", "No such file or directory"},
        {"large", "the file is larger than 16 MB, more than any game makes"},
        {"locked", ::geteuid() != 0 ? "Permission denied" : ""},
    };
    for (const auto& [name, reason] : cases) {
        const FileBytes read = ReadFileBytes((dir / name).string());
        EXPECT_EQ(read.reason, reason) << name;
        EXPECT_EQ(read.ok(), reason.empty()) << name;
    }
    EXPECT_EQ(ReadFileBytes((dir / "link").string()).bytes, "12\r\n");
}

#endif

}  // namespace
