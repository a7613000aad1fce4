// Files no game would make: devices, pipes, folders, links and giants are
// refused at once with their reason, and what a load could not keep is never
// dropped by a save the user did not ask for.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

#include <sys/stat.h>

#include "cli_folder.h"

using testing::HasSubstr;

namespace {

using HostileFiles = CliTest;

// Every command stops with exit 2 on a game file that is there but cannot
// be read, info included, which loads a game with a file missing; import
// does on such a CSV file too. (A file past the size limit is refused in
// file_paths_test.)
TEST_F(HostileFiles, AreRefusedWithTheirReasonByEveryCommandAndNothingChanges)
{
    // The game file, what stands in its place, how it is put there, and what every command says.
    const std::tuple<const char*, const char*, void (*)(const fs::path&), const char*> cases[] = {
        {"players.dat", "a link to /dev/zero", [](const fs::path& file) { fs::create_symlink("/dev/zero", file); },
         "players.dat (it is not a regular file)"},
        {"players.dat", "a pipe nobody writes to",
         [](const fs::path& file) { ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0); },
         "players.dat (it is not a regular file)"},
        {"teams.dat", "a folder", [](const fs::path& file) { fs::create_directory(file); },
         "teams.dat (it is a folder, not a file)"},
    };
    const fs::path csv = Export(SampleCopy());
    for (const auto& [file, what, spoil, says] : cases) {
        SCOPED_TRACE(std::string(file) + " " + what);
        const fs::path dir = SampleCopy();
        fs::remove(dir / file);
        spoil(dir / file);
        const fs::path out = NewFolder("out");
        for (const std::vector<ToolArg>& args : std::vector<std::vector<ToolArg>>{
                 {"info", dir}, {"check", dir}, {"normalize", dir}, {"export", dir, out}, {"import", dir, csv},
                 {"diff", dir, dir}}) {
            SCOPED_TRACE(args.front());
            const ToolRun run = RunTool(args);
            EXPECT_EQ(run.code, 2);
            EXPECT_THAT(run.err, HasSubstr(says));
        }
        EXPECT_FALSE(fs::exists(dir / "players.dat.bak"));  // nothing was saved
        EXPECT_TRUE(fs::is_empty(out));
    }

    // An unreadable CSV file stops the import the same way.
    const fs::path game = SampleCopy();
    fs::remove(csv / "players.csv");
    fs::create_directory(csv / "players.csv");
    const ToolRun run = RunTool({"import", game, csv});
    EXPECT_EQ(run.code, 2);
    EXPECT_THAT(run.err, HasSubstr("players.csv (it is a folder, not a file); nothing was changed"));
    EXPECT_FALSE(fs::exists(game / "players.dat.bak"));
}

TEST_F(HostileFiles, WhatTheLoadCouldNotKeepIsSavedAwayOnlyWhenForced)
{
    Lines teams;
    for (int i = 1; i <= 501; ++i)
        teams = Cat(std::move(teams), TeamRecordLines("Side", i));
    const fs::path dir = GameOf(PlayerRecordLines(1), teams);
    const std::string original = Bytes(dir / "teams.dat");
    const fs::path csv = Export(dir);
    std::string rows = Bytes(csv / "players.csv");
    WriteBytes(csv / "players.csv", rows.replace(rows.find("Mardle"), 6, "Marble"));
    EXPECT_EQ(RunTool({"import", dir, csv}).code, 1);

    const ToolRun refused = RunTool({"normalize", dir});
    EXPECT_EQ(refused.code, 1);
    EXPECT_THAT(refused.err, HasSubstr("teams.dat: 1 team after the 500th"));
    EXPECT_EQ(Bytes(dir / "teams.dat"), original);

    const ToolRun forced = RunTool({"normalize", "--force", dir});
    EXPECT_EQ(forced.code, 0) << forced.err;
    EXPECT_EQ(Bytes(dir / "teams.dat.orig"), original);
    EXPECT_NE(Bytes(dir / "teams.dat"), original);
    // The first original stays however often the folder is saved again.
    EXPECT_EQ(RunTool({"normalize", dir}).code, 0);
    EXPECT_EQ(Bytes(dir / "teams.dat.orig"), original);
    EXPECT_EQ(RunTool({"diff", "--orig", dir}).code, 0);  // team 501 had no slot: the tables agree
    EXPECT_EQ(RunTool({"diff", "--orig", dir, dir}).code, 2);
}

TEST_F(HostileFiles, ALinkedGameFileStaysALinkAndItsTargetIsSaved)
{
    const fs::path dir = SampleCopy();
    const fs::path elsewhere = NewFolder("elsewhere");
    fs::rename(dir / "teams.dat", elsewhere / "teams.dat");
    fs::create_symlink(elsewhere / "teams.dat", dir / "teams.dat");
    const std::string before = Bytes(elsewhere / "teams.dat");
    WriteBytes(elsewhere / "teams.dat", before + "\r\n");  // one more empty line, gone after a save

    const ToolRun run = RunTool({"normalize", dir});
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_TRUE(fs::is_symlink(dir / "teams.dat"));
    EXPECT_EQ(Bytes(elsewhere / "teams.dat"), before);
    EXPECT_EQ(Bytes(dir / "teams.dat.bak"), before + "\r\n");
}

TEST_F(HostileFiles, CheckListsTheFirstHundredUncarriableLinesAndCountsTheRest)
{
    const fs::path dir = GameFolder(Join(Lines(5000, ",")), TeamsBytes({}));
    const ToolRun run = RunTool({"check", dir});
    EXPECT_EQ(run.code, 1);
    EXPECT_THAT(run.out, HasSubstr("players.dat: 239: lines: error: 4900 more lines like these, not listed"));
    EXPECT_EQ(std::count(run.out.begin(), run.out.end(), '\n'), 100 + 1 + 1);
}

}  // namespace
