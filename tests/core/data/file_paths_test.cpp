// Files as each system keeps them: bytes go out and come back exactly (no
// CR added or lost), an existing file is replaced, folders may be named in
// any script, in editor.dat too, or be a drive's root, and on Windows a file
// the game holds open stops the save with both old files left as they were.
// What a file read refuses, and why. (What a load had to leave out is in the
// readers' tables of players_file_test and teams_file_test.) These run on Linux and, built for Windows, under Wine.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#if defined(_WIN32)
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#undef ReplaceFile
#else
#include <unistd.h>
#endif

#include "data/file_io.h"
#include "data/save.h"
#include "data/setting_file.h"
#include "support/file_text.h"
#include "support/scratch_folder.h"

namespace fs = std::filesystem;

namespace {

// Folder names as UTF-8 text, the form paths take inside the program.
const std::vector<std::string> FolderNames = {
    "KOLTA",
    "Spiele/K\xC3\xB6lta",                                   // Költa
    "\xD0\x9A\xD0\xBE\xD0\xBB\xD1\x8C\xD1\x82\xD0\xB0 2",  // Кольта 2
};

// Bytes a text-mode stream would change: lone CR and LF, CR LF, Ctrl-Z (the
// end of a text file to the Windows C library), a NUL and high bytes.
const std::string AwkwardBytes = std::string("a\r\nb\nc\rd\x1a" "e") + '\0' + "\xF6\xFF\r\n";

class FilePaths : public testing::TestWithParam<std::string> {
protected:
    // A new folder named `name` under a scratch folder of this test.
    fs::path Folder(const std::string& name) { return scratch_.Folder(NativePath(name)); }

    // The sample game copied into `dir` and loaded from the folder as named by `asText`.
    std::unique_ptr<Game> LoadSampleIn(const fs::path& dir, const std::string& asText)
    {
        CopySampleInto(dir);
        auto game = NewGame();
        LoadFolder(*game, asText);
        return game;
    }

    // Saves the loaded game twice, the second time over files the first
    // wrote, and checks each file and its backup byte for byte.
    void SaveTwiceAndCompare(Game& game, const fs::path& dir)
    {
        const FilePair old = PairIn(dir);
        game.Players[1].surname = "Renamed";
        for (int round = 0; round < 2; ++round) {
            const FileResult saved = SaveGame(game);
            ASSERT_TRUE(saved.ok()) << saved.path << ": " << saved.reason;
        }
        EXPECT_TRUE(PairIn(dir) == WrittenPair(game));
        EXPECT_TRUE(PairIn(dir, ".bak") == old);
        EXPECT_EQ(SaveLeftovers(dir), std::vector<std::string>{});
    }

    ScratchFolder scratch_;
};

TEST_P(FilePaths, AFileIsReplacedByteForByteAndTheGameNamedInEditorDatSavesInTheFolder)
{
    const fs::path dir = Folder(GetParam());
    const std::string file = JoinPath(PathText(dir), "editor.dat");
    ASSERT_TRUE(ReplaceFile(file, "old contents, longer than the new ones\r\n").ok());
    const FileResult replaced = ReplaceFile(file, AwkwardBytes);
    ASSERT_TRUE(replaced.ok()) << replaced.reason;
    EXPECT_EQ(ReadWholeFile(file), AwkwardBytes);
    EXPECT_EQ(fs::file_size(NativePath(file)), AwkwardBytes.size());

    // editor.dat names the game's folder, whatever its script.
    ASSERT_TRUE(WriteSettingFile(file, PathText(dir)).ok());
    EXPECT_EQ(ReadSettingFile(file), PathText(dir));
    const auto game = LoadSampleIn(dir, ReadSettingFile(file));
    EXPECT_EQ(game->PlayersPath, PathText(dir / "players.dat"));
    SaveTwiceAndCompare(*game, dir);
}

INSTANTIATE_TEST_SUITE_P(Scripts, FilePaths, testing::ValuesIn(FolderNames));

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
        {"plain", ""}, {"link", ""}, {"largest", ""}, {"missing", "No such file or directory"},
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

// A drive's root as the game's folder ("K:\"), where there is no folder name
// to join to. The test runs where a scratch drive is named in KOLTA_DRIVE_ROOT.
TEST_F(FilePaths, TheGameSavesInADriveRoot)
{
    const char* root = std::getenv("KOLTA_DRIVE_ROOT");
    if (!root || !*root)
        GTEST_SKIP() << "no scratch drive named in KOLTA_DRIVE_ROOT";
    const fs::path dir = NativePath(root);
    for (const char* file : {"players.dat.bak", "teams.dat.bak"})
        fs::remove(dir / file);
    const auto game = LoadSampleIn(dir, root);
    EXPECT_EQ(game->PlayersPath, std::string(root) + "players.dat");
    SaveTwiceAndCompare(*game, dir);
}

#if defined(_WIN32)
// The game's own editor wrote editor.dat in the game's code page.
TEST_F(FilePaths, AnEditorSettingInWindows1252FindsTheFolder)
{
    const fs::path dir = Folder("Spiele/K\xC3\xB6lta");
    const std::string setting = PathText(dir.parent_path() / "editor.dat");
    ASSERT_TRUE(ReplaceFile(setting, PathText(dir.parent_path()) + "\\K\xF6lta\r\n").ok());
    LoadSampleIn(dir, ReadSettingFile(setting));  // which expects both files read
}

// Another program (the game) holds one file open and does not let it be
// deleted or replaced, as Windows programs commonly open their files.
TEST_F(FilePaths, AFileHeldOpenStopsTheSaveAndBothFilesStay)
{
    for (const char* heldName : {"players.dat", "teams.dat"}) {
        SCOPED_TRACE(heldName);
        const fs::path dir = Folder(std::string("held ") + heldName);
        const auto game = LoadSampleIn(dir, PathText(dir));
        const FilePair old = PairIn(dir);
        game->Players[1].surname = "Renamed";
        FileResult saved;
        {
            const std::unique_ptr<void, decltype(&CloseHandle)> held(
                CreateFileW((dir / heldName).c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                            OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr),
                CloseHandle);
            ASSERT_NE(held.get(), INVALID_HANDLE_VALUE);
            saved = SaveGame(*game);
        }
        EXPECT_FALSE(saved.ok());
        EXPECT_EQ(saved.path, PathText(dir / heldName));
        EXPECT_NE(saved.reason.find("another program"), std::string::npos) << saved.reason;
        EXPECT_TRUE(PairIn(dir) == old);
        EXPECT_EQ(SaveLeftovers(dir), std::vector<std::string>{});
        // Once the game lets go, the same edit saves.
        EXPECT_TRUE(SaveGame(*game).ok());
    }
}
#endif

}  // namespace
