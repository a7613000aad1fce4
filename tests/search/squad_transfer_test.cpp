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
};

TEST_F(SquadTest, RemovingAPlaceClosesTheGapAndKeepsTheOrder)
{
    b.Team(1, "A", {1, 2, 3, 4});
    RemoveSquadSlot(game, 1, 1);
    RemoveSquadSlot(game, 1, 2);
    EXPECT_THAT(Places(game.Teams[1]), ElementsAre(2, 4));
    EXPECT_EQ(game.Players[3].teamNumber, 1) << "records are not touched";

    // Last and first place of a full squad: place 20 is emptied.
    b.Team(2, "Full", PlayerRun(1, SquadSize));
    RemoveSquadSlot(game, 2, 20);
    EXPECT_EQ(Places(game.Teams[2]), PlayerRun(1, 19));
    b.Team(3, "Full", PlayerRun(21, SquadSize));
    RemoveSquadSlot(game, 3, 1);
    EXPECT_EQ(Places(game.Teams[3]), PlayerRun(22, 19));
}

// The squads decide where a player is, never his record's teamNumber; when
// several squads hold him, the highest team is his club.
TEST_F(SquadTest, APlayerInTwoSquadsBelongsToTheHighestTeam)
{
    b.Team(2, "Low", {5, 7, 5, 6});
    b.Team(4, "Mid", {8});
    b.Team(6, "High", {9, 5});
    game.Players[5].teamNumber = 4;
    game.Players[30].teamNumber = 4;
    EXPECT_EQ(PresentClub(game, 5), 6);
    EXPECT_EQ(PresentClub(game, 6), 2);
    EXPECT_EQ(PresentClub(game, 30), 0);

    EXPECT_EQ(DetachFromSquads(game, 5), 6);
    EXPECT_THAT(Places(game.Teams[2]), ElementsAre(7, 6));
    EXPECT_THAT(Places(game.Teams[6]), ElementsAre(9));
    EXPECT_THAT(Places(game.Teams[4]), ElementsAre(8));
    EXPECT_EQ(game.Players[5].teamNumber, 4);
    EXPECT_EQ(DetachFromSquads(game, 30), 0);

    // Teams up to TeamCount (8 here) are looked at, none beyond.
    game.Teams[8].squad[1] = 31;
    game.Teams[9].squad[1] = 32;
    EXPECT_EQ(PresentClub(game, 31), 8);
    EXPECT_EQ(DetachFromSquads(game, 32), 0);
    EXPECT_EQ(game.Teams[9].squad[1], 32);
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

TEST_F(SquadTest, AddingToAndFromFullSquads)
{
    b.Team(1, "Full", PlayerRun(1, SquadSize));
    b.Team(2, "B", {40});
    const TeamRecord before = game.Teams[2];
    AddToSquad(game, 1, 40);  // refused: the full squad and his own stay as they were
    EXPECT_EQ(game.Teams[2], before);
    EXPECT_EQ(game.Players[40].teamNumber, 2);
    EXPECT_EQ(SquadCount(game.Teams[1]), 20);

    // Taking the first player of the full squad makes room at its end.
    EXPECT_EQ(AddToSquad(game, 2, 1), 1);
    EXPECT_EQ(Places(game.Teams[1]), PlayerRun(2, 19));
    EXPECT_EQ(AddToSquad(game, 1, 41), 0);
    EXPECT_EQ(game.Teams[1].squad[20], 41);
}

// Rows count over filled places only; an add closes the gaps first.
TEST_F(SquadTest, ASquadReadWithGaps)
{
    TeamRecord& t = b.Team(1, "Gappy");
    t.squad[2] = 4;
    t.squad[5] = 6;
    EXPECT_EQ(SlotOfRow(t, 0), 2);
    EXPECT_EQ(SlotOfRow(t, 1), 5);
    EXPECT_EQ(SlotOfRow(t, 2), 0);
    EXPECT_EQ(SlotOfRow(t, -1), 0);

    EXPECT_EQ(ReplaceInSquad(game, 1, 1, 9).replaced, 6);
    EXPECT_EQ(t.squad[5], 9);
    // A row that is not there changes nothing, not even the candidate's old squad.
    b.Team(2, "B", {20});
    ReplaceInSquad(game, 1, 2, 20);
    EXPECT_THAT(Places(game.Teams[2]), ElementsAre(20));

    t.squad[3] = 5;
    AddToSquad(game, 1, 10);
    EXPECT_THAT(Places(t), ElementsAre(4, 5, 9, 10));
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

TEST_F(SquadTest, DeletingLeavesThePlayerWithoutATeam)
{
    b.Team(1, "A", {1, 2, 3});
    EXPECT_EQ(DeleteFromSquad(game, 1, 2), 2);
    EXPECT_THAT(Places(game.Teams[1]), ElementsAre(1, 3));
    EXPECT_EQ(game.Players[2].teamNumber, 0);
    EXPECT_FALSE(IsInSquad(game, 1, 2));
    EXPECT_TRUE(IsInSquad(game, 1, 3));
}

TEST_F(SquadTest, NumbersOutsideTheTablesAreNeverTransferred)
{
    // 2500 and -3 name no player: the squad list shows player 5 alone.
    TeamRecord& t = b.Team(1, "Odd", {2500, -3, 5});
    EXPECT_EQ(SquadCount(t), 1);
    EXPECT_EQ(ReplaceInSquad(game, 1, 0, 9).replaced, 5);
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

}  // namespace
