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
// Links and permission bits are Unix things.
class ReadFile : public testing::Test {
protected:
    ScratchFolder scratch_;
    const fs::path dir_ = scratch_.Path();
};

// A link to a file is followed, and a file of exactly the limit is read;
// what is refused says why. Pipes, devices and folders are refused by every
// command of kolta-data, in its tests.
TEST_F(ReadFile, ReadsUpToTheLimitAndSaysWhyNot)
{
    ASSERT_TRUE(ReplaceFile((dir_ / "plain").string(), "12\r\n").ok());
    ASSERT_TRUE(ReplaceFile((dir_ / "large").string(), "").ok());
    fs::resize_file(dir_ / "large", MaxFileSize + 1);
    ASSERT_TRUE(ReplaceFile((dir_ / "largest").string(), "").ok());
    fs::resize_file(dir_ / "largest", MaxFileSize);
    fs::create_symlink(dir_ / "plain", dir_ / "link");
    ASSERT_TRUE(ReplaceFile((dir_ / "locked").string(), "x").ok());
    fs::permissions(dir_ / "locked", fs::perms::none);

    const struct {
        std::string name;
        std::string reason;
    } cases[] = {
        {"plain", ""},
        {"link", ""},
        {"largest", ""},
        {"missing", "No such file or directory"},
        {"large", "the file is larger than 16 MB, more than any game makes"},
        {"locked", ::geteuid() != 0 ? "Permission denied" : ""},
    };
    for (const auto& c : cases) {
        const FileBytes read = ReadFileBytes((dir_ / c.name).string());
        EXPECT_EQ(read.reason, c.reason) << c.name;
        EXPECT_EQ(read.ok(), c.reason.empty()) << c.name;
    }
    EXPECT_EQ(ReadFileBytes((dir_ / "link").string()).bytes, "12\r\n");
}

#endif

}  // namespace
