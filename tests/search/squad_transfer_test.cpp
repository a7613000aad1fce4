#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/squad.h"
#include "game_builder.h"

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

class SquadTest : public ::testing::Test {
protected:
    GameBuilder b;
    Game& game = *b.game;

    void SetUp() override { b.Players(60); }

    void FullTeam(int team, int firstPlayer)
    {
        TeamRecord& t = b.Team(team, "Full");
        for (int slot = 1; slot <= SquadSize; ++slot) {
            t.squad[slot] = static_cast<std::int16_t>(firstPlayer + slot - 1);
            game.Players[firstPlayer + slot - 1].teamNumber = static_cast<std::int16_t>(team);
        }
    }
};

TEST_F(SquadTest, RemovingAPlaceClosesTheGapAndKeepsTheOrder)
{
    b.Team(1, "A", {1, 2, 3, 4});
    RemoveSquadSlot(game, 1, 1);
    EXPECT_THAT(Places(game.Teams[1]), ElementsAre(2, 3, 4));
    RemoveSquadSlot(game, 1, 2);
    EXPECT_THAT(Places(game.Teams[1]), ElementsAre(2, 4));
    RemoveSquadSlot(game, 1, 2);
    EXPECT_THAT(Places(game.Teams[1]), ElementsAre(2));
    // Records are not touched: the squad alone changes.
    EXPECT_EQ(game.Players[3].teamNumber, 1);
}

TEST_F(SquadTest, RemovingFromAFullSquadEmptiesPlaceTwenty)
{
    FullTeam(1, 1);
    RemoveSquadSlot(game, 1, 20);
    EXPECT_EQ(game.Teams[1].squad[20], 0);
    EXPECT_EQ(game.Teams[1].squad[19], 19);
    FullTeam(2, 21);
    RemoveSquadSlot(game, 2, 1);
    EXPECT_EQ(game.Teams[2].squad[1], 22);
    EXPECT_EQ(game.Teams[2].squad[19], 40);
    EXPECT_EQ(game.Teams[2].squad[20], 0);
}

TEST_F(SquadTest, DetachingLeavesEverySquadAndNamesTheHighestTeam)
{
    b.Team(2, "Low", {5, 7, 5});
    b.Team(4, "Mid", {8});
    b.Team(6, "High", {9, 5});
    game.Players[5].teamNumber = 4;  // stale: the squads decide, not the record

    EXPECT_EQ(DetachFromSquads(game, 5), 6);
    EXPECT_THAT(Places(game.Teams[2]), ElementsAre(7));
    EXPECT_THAT(Places(game.Teams[6]), ElementsAre(9));
    EXPECT_THAT(Places(game.Teams[4]), ElementsAre(8));
    EXPECT_EQ(game.Players[5].teamNumber, 4);

    // A teamNumber that names a team which does not list him counts as no team.
    game.Players[30].teamNumber = 4;
    EXPECT_EQ(DetachFromSquads(game, 30), 0);
}

TEST_F(SquadTest, DetachingLooksAtTeamsUpToTeamCountOnly)
{
    b.Team(1, "A", {1});
    game.Teams[4].squad[1] = 2;  // TeamCount is 3 after b.Team(1): team 4 lies beyond
    game.Teams[3].squad[1] = 3;  // team 3 equals TeamCount and is looked at
    EXPECT_EQ(DetachFromSquads(game, 2), 0);
    EXPECT_EQ(game.Teams[4].squad[1], 2);
    EXPECT_EQ(DetachFromSquads(game, 3), 3);
}

TEST_F(SquadTest, TheExampleOfTwoTeamsStepByStep)
{
    b.Team(3, "Three", {11, 12, 13});
    b.Team(7, "Seven", {21, 22});

    EXPECT_EQ(AddToSquad(game, 7, 12), 3);
    EXPECT_THAT(Places(game.Teams[3]), ElementsAre(11, 13));
    EXPECT_THAT(Places(game.Teams[7]), ElementsAre(21, 22, 12));
    EXPECT_EQ(game.Players[12].teamNumber, 7);

    const Replacement r = ReplaceInSquad(game, 7, 0, 13);
    EXPECT_EQ(r.oldTeam, 3);
    EXPECT_EQ(r.replaced, 21);
    EXPECT_THAT(Places(game.Teams[3]), ElementsAre(11));
    EXPECT_THAT(Places(game.Teams[7]), ElementsAre(13, 22, 12));
    EXPECT_EQ(game.Players[13].teamNumber, 7);
    EXPECT_EQ(game.Players[21].teamNumber, 0);

    EXPECT_EQ(AddToSquad(game, 7, 21), 0);
    EXPECT_THAT(Places(game.Teams[7]), ElementsAre(13, 22, 12, 21));
    EXPECT_EQ(game.Players[21].teamNumber, 7);
}

TEST_F(SquadTest, AddingFromTheFirstPlaceOfAFullSquadMakesRoomThere)
{
    FullTeam(1, 1);
    b.Team(2, "B", {40});
    EXPECT_EQ(AddToSquad(game, 2, 1), 1);
    EXPECT_EQ(game.Teams[1].squad[1], 2);
    EXPECT_EQ(game.Teams[1].squad[19], 20);
    EXPECT_EQ(game.Teams[1].squad[20], 0);
    EXPECT_EQ(SquadCount(game.Teams[1]), 19);
    EXPECT_EQ(AddToSquad(game, 1, 41), 0);
    EXPECT_EQ(game.Teams[1].squad[20], 41);
}

TEST_F(SquadTest, AddingToAFullSquadChangesNothing)
{
    FullTeam(1, 1);
    b.Team(2, "B", {40});
    const TeamRecord before = game.Teams[2];
    AddToSquad(game, 1, 40);
    EXPECT_EQ(game.Teams[2], before);
    EXPECT_EQ(game.Players[40].teamNumber, 2);
    EXPECT_EQ(SquadCount(game.Teams[1]), 20);
}

TEST_F(SquadTest, AddingToASquadReadWithGapsClosesThemFirst)
{
    TeamRecord& t = b.Team(1, "Gappy");
    t.squad[2] = 4;
    t.squad[5] = 6;
    t.squad[3] = 5;
    AddToSquad(game, 1, 9);
    EXPECT_THAT(Places(game.Teams[1]), ElementsAre(4, 5, 6, 9));
}

TEST_F(SquadTest, ReplacingTheFirstOrLastKeepsTheOthersInPlace)
{
    b.Team(1, "A", {1, 2, 3});
    b.Team(2, "B", {10, 11});
    ReplaceInSquad(game, 1, 2, 10);
    EXPECT_THAT(Places(game.Teams[1]), ElementsAre(1, 2, 10));
    ReplaceInSquad(game, 1, 0, 11);
    EXPECT_THAT(Places(game.Teams[1]), ElementsAre(11, 2, 10));
    // The team the candidates came from is simply short: no swap.
    EXPECT_THAT(Places(game.Teams[2]), IsEmpty());
    EXPECT_EQ(game.Players[3].teamNumber, 0);
    EXPECT_EQ(game.Players[1].teamNumber, 0);
}

TEST_F(SquadTest, RowsCountOverFilledPlacesOnly)
{
    TeamRecord& t = b.Team(1, "Gappy");
    t.squad[2] = 4;
    t.squad[5] = 6;
    EXPECT_EQ(SlotOfRow(t, 0), 2);
    EXPECT_EQ(SlotOfRow(t, 1), 5);
    EXPECT_EQ(SlotOfRow(t, 2), 0);
    EXPECT_EQ(SlotOfRow(t, -1), 0);

    const Replacement r = ReplaceInSquad(game, 1, 1, 9);
    EXPECT_EQ(r.replaced, 6);
    EXPECT_EQ(t.squad[5], 9);
    // A row that is not there changes nothing, not even the candidate's old squad.
    b.Team(2, "B", {20});
    ReplaceInSquad(game, 1, 2, 20);
    EXPECT_THAT(Places(game.Teams[2]), ElementsAre(20));
}

TEST_F(SquadTest, DeletingLeavesThePlayerWithoutATeam)
{
    b.Team(1, "A", {1, 2, 3});
    EXPECT_EQ(DeleteFromSquad(game, 1, 2), 2);
    EXPECT_THAT(Places(game.Teams[1]), ElementsAre(1, 3));
    EXPECT_EQ(game.Players[2].teamNumber, 0);
    EXPECT_FALSE(IsInSquad(game, 1, 2));
    EXPECT_TRUE(IsInSquad(game, 1, 3));
    // He is a player like any other and can join the squad he left.
    AddToSquad(game, 1, 2);
    EXPECT_THAT(Places(game.Teams[1]), ElementsAre(1, 3, 2));
}

TEST_F(SquadTest, NumbersOutsideTheTablesAreNeverTransferred)
{
    // The squad list shows player 5 alone, as its first row: the other two
    // numbers name no player and count as free places.
    TeamRecord& t = b.Team(1, "Odd");
    t.squad[1] = 2500;
    t.squad[2] = -3;
    t.squad[3] = 5;
    EXPECT_EQ(SquadCount(t), 1);
    const Replacement r = ReplaceInSquad(game, 1, 0, 9);
    EXPECT_EQ(r.replaced, 5);
    EXPECT_THAT(Places(t), ElementsAre(2500, -3, 9));
    EXPECT_EQ(DetachFromSquads(game, 2500), 0);
    EXPECT_EQ(PresentClub(game, -3), 0);
    // An add packs the players to the front and takes the first free place.
    EXPECT_EQ(AddToSquad(game, 1, 10), 0);
    EXPECT_THAT(Places(t), ElementsAre(9, 10, -3));
    EXPECT_EQ(AddToSquad(game, 0, 11), 0);
    EXPECT_EQ(AddToSquad(game, 1, 2001), 0);
    EXPECT_THAT(Places(t), ElementsAre(9, 10, -3));
}

TEST_F(SquadTest, ThePresentClubIsTheHighestTeamWhoseSquadHoldsHim)
{
    b.Team(2, "Low", {5, 6});
    b.Team(5, "High", {7, 5});
    game.Players[6].teamNumber = 5;  // the record's team plays no part
    EXPECT_EQ(PresentClub(game, 5), 5);
    EXPECT_EQ(PresentClub(game, 6), 2);
    EXPECT_EQ(PresentClub(game, 8), 0);
    // Teams past TeamCount are not looked at.
    game.Teams[8].squad[1] = 8;
    EXPECT_EQ(PresentClub(game, 8), 0);
}

}  // namespace
