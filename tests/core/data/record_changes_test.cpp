// Steps of editing as copies of the records they touched: taken from the
// ledger, joined, and put back.
#include "data/record_changes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "data/players_file.h"
#include "data/squad.h"
#include "data/teams_file.h"
#include "newplayer/new_player_check.h"
#include "support/file_text.h"
#include "support/game_builder.h"

using ::testing::ElementsAre;

namespace {

std::vector<int> PlayerNumbers(const RecordChange& change)
{
    std::vector<int> numbers;
    for (const auto& copy : change.players)
        numbers.push_back(copy.number);
    return numbers;
}

std::vector<int> TeamNumbers(const RecordChange& change)
{
    std::vector<int> numbers;
    for (const auto& copy : change.teams)
        numbers.push_back(copy.number);
    return numbers;
}

// The committed sample game, read as the editor reads it.
std::unique_ptr<Game> SampleGame()
{
    auto game = NewGame();
    ReadPlayers(*game, ReadWholeFile(KOLTA_SAMPLE "/players.dat").value_or(""));
    ReadTeams(*game, ReadWholeFile(KOLTA_SAMPLE "/teams.dat").value_or(""));
    return game;
}

NewPlayerEntries Newcomer()
{
    NewPlayerEntries entries;
    entries.initials = "Q";
    entries.surname = "Newcombe";
    for (const NumberBox& number : NumberBoxes)
        entries.*number.box = "12";
    return entries;
}

// A whole session on the sample game, each step taken from the ledger as the
// editor takes it; undoing all of it gives back the files as they were read,
// and redoing all of it the files as the session left them.
TEST(RecordChanges, AWholeSessionUndoesToTheLoadedFilesAndRedoesToItsEnd)
{
    auto game = SampleGame();
    const std::string loadedPlayers = WritePlayers(*game);
    const std::string loadedTeams = WriteTeams(*game);
    ASSERT_GT(SquadCount(game->Teams[1]), 3);
    ASSERT_LT(SquadCount(game->Teams[2]), SquadSize);

    RecordLedger ledger;
    ledger.Reset(*game);
    std::vector<RecordChange> steps;
    const auto squadStep = [&](const std::function<void()>& step) {
        step();
        steps.push_back(ledger.TakeAllChanges(*game));
        EXPECT_FALSE(steps.back().Empty());
    };

    const std::int16_t moved = game->Teams[1].squad[2];
    squadStep([&] { AddToSquad(*game, 2, moved); });
    squadStep([&] { DeleteFromSquad(*game, 1, 1); });
    squadStep([&] { ASSERT_EQ(CommitNewPlayer(*game, 2, Newcomer()), NewPlayerOutcome::Added); });
    EXPECT_THAT(PlayerNumbers(steps[0]), ElementsAre(moved));
    EXPECT_THAT(TeamNumbers(steps[0]), ElementsAre(1, 2));
    EXPECT_EQ(steps[2].playerCountAfter, steps[2].playerCountBefore + 1);

    // Ten typed values, each box one step; the last two land on the same
    // box and are joined, as the window joins a box's ticks.
    const int player = game->Teams[2].squad[1];
    const std::vector<std::function<void()>> edits{
        [&] { game->Players[player].batSkill = 59; },
        [&] { game->Players[player].surname = "Renamed"; },
        [&] { game->Players[player].initials = ""; },
        [&] { game->Players[player].birthYear = -32768; },
        [&] { game->Players[player].homeCountry = 29; },
        [&] { game->Teams[2].teamName = "Renamed FC"; },
        [&] { game->Teams[2].wealth = 32767; },
        [&] { game->Teams[2].homeCountry = 0; },
        [&] { game->Players[moved].potential = 1; },
        [&] { game->Players[moved].potential = 19; },
    };
    for (const auto& edit : edits) {
        edit();
        steps.push_back(ledger.TakeChanges(*game, {player, moved}, {2}));
    }
    steps[steps.size() - 2].Absorb(steps.back());
    steps.pop_back();
    const std::string editedPlayers = WritePlayers(*game);
    const std::string editedTeams = WriteTeams(*game);

    for (auto step = steps.rbegin(); step != steps.rend(); ++step) {
        step->Undo(*game);
        ledger.Follow(*game, *step);
    }
    EXPECT_TRUE(WritePlayers(*game) == loadedPlayers);
    EXPECT_TRUE(WriteTeams(*game) == loadedTeams);
    EXPECT_TRUE(ledger.TakeAllChanges(*game).Empty());   // the ledger followed the undo

    for (const RecordChange& step : steps) {
        step.Redo(*game);
        ledger.Follow(*game, step);
    }
    EXPECT_TRUE(WritePlayers(*game) == editedPlayers);
    EXPECT_TRUE(WriteTeams(*game) == editedTeams);
    EXPECT_TRUE(ledger.TakeAllChanges(*game).Empty());
}

// Joining steps: the earliest before and the latest after of each record,
// and a record brought back to where it started drops out.
TEST(RecordChanges, JoinedStepsKeepTheEarliestBeforeAndTheLatestAfter)
{
    struct Case {
        const char* what;
        std::vector<std::pair<int, int>> first;    // player, new bat skill
        std::vector<std::pair<int, int>> second;
        std::vector<int> players;                  // records in the joined step
        std::vector<int> skillsAfter;              // their skill after it
    };
    const std::vector<Case> cases{
        {"one record twice", {{3, 20}}, {{3, 30}}, {3}, {30}},
        {"back to the start", {{3, 20}}, {{3, 0}}, {}, {}},
        {"two records apart", {{5, 20}}, {{3, 30}}, {3, 5}, {30, 20}},
        {"one shared, one not", {{3, 20}, {7, 1}}, {{3, 21}, {5, 2}}, {3, 5, 7}, {21, 2, 1}},
    };
    for (const Case& c : cases) {
        GameBuilder b;
        b.Players(8);
        RecordLedger ledger;
        ledger.Reset(*b.game);
        const auto step = [&](const std::vector<std::pair<int, int>>& edits) {
            for (const auto& [number, skill] : edits)
                b.game->Players[number].batSkill = std::int16_t(skill);
            return ledger.TakeAllChanges(*b.game);
        };
        RecordChange joined = step(c.first);
        joined.Absorb(step(c.second));
        EXPECT_EQ(PlayerNumbers(joined), c.players) << c.what;
        std::vector<int> skills;
        for (const auto& copy : joined.players) {
            EXPECT_EQ(copy.before.batSkill, 0) << c.what;
            skills.push_back(copy.after.batSkill);
        }
        EXPECT_EQ(skills, c.skillsAfter) << c.what;
        EXPECT_EQ(joined.Empty(), c.players.empty()) << c.what;
    }
}

// A tick names the records it may have written; others wait for the next
// step that looks at them, and numbers outside the tables are passed over.
TEST(RecordChanges, NamedRecordsOnlyAndTheOthersLater)
{
    GameBuilder b;
    b.Players(4);
    b.Team(1, "One", {1, 2});
    RecordLedger ledger;
    ledger.Reset(*b.game);

    b.game->Players[1].batSkill = 9;
    b.game->Players[4].batSkill = 9;
    b.game->Teams[1].wealth = 9;
    const RecordChange tick = ledger.TakeChanges(*b.game, {1, 1, 0, -3, 2001}, {0, 501});
    EXPECT_THAT(PlayerNumbers(tick), ElementsAre(1));
    EXPECT_TRUE(tick.teams.empty());

    const RecordChange rest = ledger.TakeAllChanges(*b.game);
    EXPECT_THAT(PlayerNumbers(rest), ElementsAre(4));
    EXPECT_THAT(TeamNumbers(rest), ElementsAre(1));
    EXPECT_TRUE(ledger.TakeAllChanges(*b.game).Empty());
}

}  // namespace
