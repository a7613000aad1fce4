#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "csv/csv_folder.h"
#include "diff/game_files.h"
#include "support/scratch_folder.h"

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

std::vector<std::string> Texts(const std::vector<Difference>& changes)
{
    std::vector<std::string> texts;
    for (const Difference& change : changes)
        texts.push_back(change.text);
    return texts;
}

std::vector<std::string> Lines(const std::vector<RowFault>& faults)
{
    std::vector<std::string> lines;
    for (const RowFault& fault : faults)
        lines.push_back(RowFaultLine(fault));
    return lines;
}

class CsvFolderTest : public ::testing::Test {
protected:
    ScratchFolder scratch;
    std::unique_ptr<Game> game = ReadGameFiles(scratch.Fixture("game_with_changes").string());
};

// The rows go into a copy; the game itself is never touched.
TEST_F(CsvFolderTest, ImportListsTheChangesOrEveryWrongRowAndLeavesTheGameAlone)
{
    const Game before = *game;
    const CsvImport changes = ImportCsvFolder(*game, scratch.Fixture("csv_changes").string());
    EXPECT_TRUE(changes.read);
    EXPECT_THAT(changes.faults, IsEmpty());
    EXPECT_THAT(Texts(changes.changes), ElementsAre("player 5 (E Ellerby): surname \"Ellery\" -> \"Ellerby\"",
                                                    "player 5 (E Ellerby): batSkill 40 -> 44",
                                                    "team 3 (Kentish Town): wealth 30 -> 99"));
    ASSERT_TRUE(changes.game);
    EXPECT_EQ(changes.game->Players[5].surname, "Ellerby");
    EXPECT_EQ(changes.game->Players[5].birthYear, before.Players[5].birthYear) << "columns left out keep their values";

    const CsvImport faulty = ImportCsvFolder(*game, scratch.Fixture("csv_faulty").string());
    EXPECT_TRUE(faulty.read);
    EXPECT_THAT(Lines(faulty.faults),
                ElementsAre("players.csv:2: batAggression \"fast\" is not a whole number from -32768 to 32767",
                            "players.csv:3: player numbers run from 1 to 2000, not 2001"));
    EXPECT_FALSE(faulty.game);
    EXPECT_THAT(faulty.changes, IsEmpty());

    const CsvImport none = ImportCsvFolder(*game, (scratch / "game_with_changes").string());
    EXPECT_FALSE(none.read);
    EXPECT_FALSE(none.game);
    EXPECT_TRUE(before.Players == game->Players && before.Teams == game->Teams);
}

TEST_F(CsvFolderTest, AnExportReadsBackWithoutAChange)
{
    const FileResult written = ExportCsvFolder(*game, (scratch / "made" / "here").string());
    ASSERT_TRUE(written.ok()) << written.reason;
    const CsvImport again = ImportCsvFolder(*game, (scratch / "made" / "here").string());
    EXPECT_TRUE(again.read);
    EXPECT_THAT(again.faults, IsEmpty());
    EXPECT_THAT(again.changes, IsEmpty());

    // A folder that can't be made: a file stands where it would go.
    std::ofstream(scratch / "plain") << "x";
    EXPECT_FALSE(ExportCsvFolder(*game, (scratch / "plain" / "sheets").string()).ok());
}

}  // namespace
