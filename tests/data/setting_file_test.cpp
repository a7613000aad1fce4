#include "data/setting_file.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

TEST(SettingFile, TakesTheFirstFieldOfTheFileAsTheDirectory)
{
    EXPECT_EQ(ReadSetting("C:\\Games\\KOLTA\r\n"), "C:\\Games\\KOLTA");
    EXPECT_EQ(ReadSetting("C:\\Games\\KOLTA"), "C:\\Games\\KOLTA");
    EXPECT_EQ(ReadSetting("  D:\\\r\nE:\\other\r\n"), "D:\\");
    EXPECT_EQ(ReadSetting("C:\\Games, old\\KOLTA\r\n"), "C:\\Games");
    EXPECT_EQ(ReadSetting("\"C:\\Games, old\"\r\n"), "C:\\Games, old");
    EXPECT_EQ(ReadSetting(""), "");
    EXPECT_EQ(ReadSetting("\r\nC:\\Games\r\n"), "");
}

TEST(SettingFile, WritesOneLineThatReadsBackTheSame)
{
    const std::string directory = "C:\\Spiele\\K\xF6lta Cricket";
    EXPECT_EQ(WriteSetting(directory), directory + "\r\n");
    EXPECT_EQ(ReadSetting(WriteSetting(directory)), directory);
}

TEST(SettingFile, ReadsTheFileOrNothing)
{
    EXPECT_EQ(ReadSettingFile(KOLTA_FIXTURES "/setting_two_lines/editor.dat"), "/games/kolta");
    EXPECT_EQ(ReadSettingFile(KOLTA_FIXTURES "/no_such_case/editor.dat"), "");

    const std::filesystem::path file = std::filesystem::temp_directory_path() / "kolta-setting-test-editor.dat";
    ASSERT_TRUE(WriteSettingFile(file.string(), "/games/new").ok());
    EXPECT_EQ(ReadSettingFile(file.string()), "/games/new");
    std::filesystem::remove(file);
}

}  // namespace
