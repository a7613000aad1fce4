// Steps of editing as copies of the records they touched: taken from the
// ledger, joined, and put back. Whole sessions are undone in the main
// window's tests.
#include "data/record_changes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tuple>
#include <vector>

#include "support/game_builder.h"

using ::testing::ElementsAre;

namespace {

// Joining steps: the earliest before and the latest after of each record,
// and a record brought back to where it started drops out.
TEST(RecordChanges, JoinedStepsKeepTheEarliestBeforeAndTheLatestAfter)
{
    using Edits = std::vector<std::pair<int, int>>;  // player, new bat skill
    // Each case: the two steps' edits, the records in the joined step and their skill after it.
    const std::tuple<const char*, Edits, Edits, std::vector<int>, std::vector<int>> cases[] = {
        {"one record twice", {{3, 20}}, {{3, 30}}, {3}, {30}},
        {"back to the start", {{3, 20}}, {{3, 0}}, {}, {}},
        {"two records apart", {{5, 20}}, {{3, 30}}, {3, 5}, {30, 20}},
        {"one shared, one not", {{3, 20}, {7, 1}}, {{3, 21}, {5, 2}}, {3, 5, 7}, {21, 2, 1}},
    };
    for (const auto& [what, first, second, players, skillsAfter] : cases) {
        GameBuilder b;
        b.Players(8);
        RecordLedger ledger;
        ledger.Reset(*b.game);
        const auto step = [&](const Edits& edits) {
            for (const auto& [number, skill] : edits)
                b.game->Players[number].batSkill = std::int16_t(skill);
            return ledger.TakeAllChanges(*b.game);
        };
        RecordChange joined = step(first);
        joined.Absorb(step(second));
        EXPECT_EQ(Numbers(joined.players), players) << what;
        std::vector<int> skills;
        for (const auto& copy : joined.players) {
            EXPECT_EQ(copy.before.batSkill, 0) << what;
            skills.push_back(copy.after.batSkill);
        }
        EXPECT_EQ(skills, skillsAfter) << what;
        EXPECT_EQ(joined.Empty(), players.empty()) << what;
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
    EXPECT_THAT(Numbers(tick.players), ElementsAre(1));
    EXPECT_TRUE(tick.teams.empty());

    const RecordChange rest = ledger.TakeAllChanges(*b.game);
    EXPECT_THAT(Numbers(rest.players), ElementsAre(4));
    EXPECT_THAT(Numbers(rest.teams), ElementsAre(1));
    EXPECT_TRUE(ledger.TakeAllChanges(*b.game).Empty());

    // Put back, the copies give the records as they were before each step.
    rest.Undo(*b.game);
    tick.Undo(*b.game);
    EXPECT_EQ(b.game->Players[1].batSkill + b.game->Players[4].batSkill + b.game->Teams[1].wealth, 0);
    rest.Redo(*b.game);
    EXPECT_EQ(b.game->Teams[1].wealth, 9);

    // The counts go back and forth with the records, also once steps are joined.
    GameBuilder grown;
    grown.Players(4);
    grown.Team(1, "One");
    ledger.Reset(*grown.game);
    grown.Player(5, "New");
    RecordChange added = ledger.TakeAllChanges(*grown.game);
    grown.Team(2, "Two");
    added.Absorb(ledger.TakeAllChanges(*grown.game));
    added.Undo(*grown.game);
    EXPECT_EQ(grown.game->PlayerCount, 4);
    EXPECT_EQ(grown.game->TeamCount, TeamCountFor(1));
    added.Redo(*grown.game);
    EXPECT_EQ(grown.game->PlayerCount, 5);
    EXPECT_EQ(grown.game->TeamCount, TeamCountFor(2));
}

}  // namespace
