#include "data/setting_file.h"

#include <gtest/gtest.h>

#include "support/scratch_folder.h"

namespace {

// editor.dat holds the game directory as the first field: a comma ends it
// unless the whole line is quoted, and the line ends in CR LF.
TEST(SettingFile, KeepsTheDirectoryUpToTheFirstCommaOrLineEnd)
{
    EXPECT_EQ(ReadSetting("C:\\Games, old\\KOLTA\r\n"), "C:\\Games");
    EXPECT_EQ(ReadSetting("\"C:\\Games, old\"\r\n"), "C:\\Games, old");
    EXPECT_EQ(ReadSetting("  D:\\\r\nE:\\other\r\n"), "D:\\");
    const ScratchFolder scratch;
    EXPECT_EQ(ReadSettingFile(PathText(scratch.Fixture("setting_two_lines") / "editor.dat")), "/games/kolta");
    EXPECT_EQ(ReadSettingFile(PathText(scratch / "no_such_case" / "editor.dat")), "");

    const std::string directory = "C:\\Spiele\\K\xF6lta Cricket";
    EXPECT_EQ(WriteSetting(directory), directory + "\r\n");
    const std::string file = PathText(scratch / "editor.dat");
    ASSERT_TRUE(WriteSettingFile(file, directory).ok());
    EXPECT_EQ(ReadSettingFile(file), directory);
}

}  // namespace
