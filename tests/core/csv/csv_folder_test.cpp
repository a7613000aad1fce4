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

// The rows go into a copy; the game itself is never touched. (The window's
// test lists csv_faulty's rows at fault and exports the game back unchanged.)
TEST(CsvFolder, ImportListsTheChangesAndLeavesTheGameAlone)
{
    const ScratchFolder scratch;
    const std::unique_ptr<Game> game = ReadGameFiles(scratch.Fixture("game_with_changes").string());
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

    const CsvImport none = ImportCsvFolder(*game, (scratch / "game_with_changes").string());
    EXPECT_FALSE(none.read);
    EXPECT_FALSE(none.game);
    EXPECT_TRUE(before.Players == game->Players && before.Teams == game->Teams);

    // A folder that can't be made: a file stands where it would go.
    std::ofstream(scratch / "plain") << "x";
    EXPECT_FALSE(ExportCsvFolder(*game, (scratch / "plain" / "sheets").string()).ok());
}

}  // namespace
