#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tuple>

#include "data/squad.h"
#include "search/player_find.h"
#include "support/game_builder.h"

using ::testing::ElementsAre;

namespace {

class SquadTest : public ::testing::Test {
protected:
    GameBuilder b;
    Game& game = *b.game;
};

// Adds and replaces between two teams; the first and last rows are replaced
// in place, the team a candidate came from is simply short, and an add packs
// a squad read with a gap before it takes the first free place.
TEST_F(SquadTest, TwoTeamsStepByStep)
{
    b.Team(3, "Three", {11, 12, 13, 14});
    b.Team(7, "Seven", {21, 0, 22});

    EXPECT_EQ(AddToSquad(game, 7, 12), 3);
    EXPECT_THAT(Places(game.Teams[3]), ElementsAre(11, 13, 14));
    EXPECT_THAT(Places(game.Teams[7]), ElementsAre(21, 22, 12));
    EXPECT_EQ(game.Players[12].teamNumber, 7);

    const Replacement r = ReplaceInSquad(game, 7, 0, 13);
    EXPECT_EQ(r.oldTeam, 3);
    EXPECT_EQ(r.replaced, 21);
    EXPECT_THAT(Places(game.Teams[3]), ElementsAre(11, 14));
    EXPECT_THAT(Places(game.Teams[7]), ElementsAre(13, 22, 12));
    EXPECT_EQ(game.Players[13].teamNumber, 7);
    EXPECT_EQ(game.Players[21].teamNumber, 0);

    EXPECT_EQ(ReplaceInSquad(game, 7, 2, 14).replaced, 12);
    EXPECT_THAT(Places(game.Teams[7]), ElementsAre(13, 22, 14));
    EXPECT_EQ(game.Players[12].teamNumber, 0);
    ReplaceInSquad(game, 7, 3, 11);  // a row that is not there changes nothing
    EXPECT_THAT(Places(game.Teams[3]), ElementsAre(11));

    EXPECT_EQ(AddToSquad(game, 7, 21), 0);
    EXPECT_THAT(Places(game.Teams[7]), ElementsAre(13, 22, 14, 21));
}

// The squads decide where a player is, never his record's teamNumber; when
// several squads hold him, the highest team is his club, and Add Existing
// takes him out of every place, two side by side included.
TEST_F(SquadTest, APlayerInTwoSquadsBelongsToTheHighestTeam)
{
    b.Team(2, "Low", {5, 5, 7, 5, 6});
    b.Team(3, "Odd", {2001, 6, -4});
    b.Team(4, "Mid", {8});
    b.Team(6, "High", {9, 5});
    game.Teams[MaxTeams].squad[1] = 8;  // past TeamCount: no squad the game searches
    game.Players[5].teamNumber = 2;
    EXPECT_EQ(PresentClub(game, 5), 6);
    EXPECT_EQ(PresentClub(game, 6), 3);
    EXPECT_EQ(PresentClub(game, 8), 4);
    EXPECT_EQ(PresentClub(game, 30), 0);
    // The lists take every player's club from one walk over the squads.
    const std::vector<std::int16_t> clubs = PresentClubs(game);
    ASSERT_EQ(clubs.size(), std::size_t(MaxPlayers + 1));
    for (int player = 0; player <= MaxPlayers; ++player)
        EXPECT_EQ(clubs[std::size_t(player)], PresentClub(game, std::int16_t(player))) << "player " << player;

    EXPECT_EQ(AddToSquad(game, 4, 5), 6);
    EXPECT_THAT(Places(game.Teams[2]), ElementsAre(7, 6));
    EXPECT_THAT(Places(game.Teams[6]), ElementsAre(9));
    EXPECT_THAT(Places(game.Teams[4]), ElementsAre(8, 5));
    EXPECT_EQ(game.Players[5].teamNumber, 4);
}

// A player whom a game lists in two squads (or twice in one) and who leaves
// one of them keeps the number of a team that still holds him; only the
// last squad to let him go leaves him without a team.
TEST_F(SquadTest, LeavingOneOfTwoSquadsKeepsTheOther)
{
    // Player 1 stands in teams 1 and 2, and in the last case twice in team 3.
    // Each case: what happens, the squad of team 3, his teamNumber before,
    // how he leaves, and his teamNumber after.
    const std::tuple<const char*, std::vector<int>, std::int16_t, void (*)(Game&), std::int16_t> cases[] = {
        {"deleted from team 2, which his record names", {}, 2, [](Game& g) { DeleteFromSquad(g, 2, 1); }, 1},
        {"deleted from team 2, his record naming team 1", {}, 1, [](Game& g) { DeleteFromSquad(g, 2, 1); }, 1},
        {"deleted from team 1", {}, 2, [](Game& g) { DeleteFromSquad(g, 1, 1); }, 2},
        {"replaced in team 2", {}, 2, [](Game& g) { ReplaceInSquad(g, 2, 0, 9); }, 1},
        {"deleted from both", {}, 2, [](Game& g) { DeleteFromSquad(g, 2, 1); DeleteFromSquad(g, 1, 1); }, 0},
        {"deleted from one of two places in his team", {1, 4, 1}, 3, [](Game& g) { DeleteFromSquad(g, 3, 1); }, 3},
    };
    for (const auto& [what, three, before, leave, after] : cases) {
        SCOPED_TRACE(what);
        GameBuilder fresh;
        fresh.Players(9);
        fresh.Team(1, "One", {1, 2});
        fresh.Team(2, "Two", {1, 3});
        fresh.Team(3, "Three", three);
        fresh.game->Players[1].teamNumber = before;
        leave(*fresh.game);
        EXPECT_EQ(fresh.game->Players[1].teamNumber, after);
    }
}

TEST_F(SquadTest, FullSquadsAndTheirFirstAndLastPlaces)
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

    RemoveSquadSlot(game, 1, 20);
    RemoveSquadSlot(game, 1, 1);
    EXPECT_EQ(Places(game.Teams[1]), PlayerRun(3, 18));
    EXPECT_EQ(game.Players[41].teamNumber, 1) << "records are not touched";
}

}  // namespace
