#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tuple>
#include <vector>

#include "game_builder.h"
#include "search/search_filters.h"

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

class SearchFiltersTest : public ::testing::Test {
protected:
    GameBuilder b;
    Game& game = *b.game;

    // Six players with distinct codes in every field the filters read.
    void SetUp() override
    {
        // Country, batting position, bowling type, fielding position.
        const std::int16_t codes[][4] = {{1, 1, 1, 1}, {2, 2, 7, 2}, {13, 3, 7, 3},
                                         {29, 1, 9, 4}, {1, 6, 2, 1}, {2, 1, 7, 1}};
        for (const auto& c : codes) {
            PlayerRecord& p = b.Player(game.PlayerCount + 1, "S" + std::to_string(game.PlayerCount + 1));
            std::tie(p.homeCountry, p.batPosition, p.bowlType, p.fieldsAt) = std::tie(c[0], c[1], c[2], c[3]);
        }
    }

    // Runs the filters and gives the player numbers of the last table's rows in use.
    std::vector<int> Search(const SearchFilters& filters)
    {
        RunFilters(game, filters);
        std::vector<int> numbers;
        for (int row = 1; row <= RowsInUse(game.FieldMatches); ++row)
            numbers.push_back(game.FieldMatches[row].playerNumber);
        return numbers;
    }
};

TEST_F(SearchFiltersTest, EachStageComparesItsCodeDirectly)
{
    EXPECT_THAT(Search({}), ElementsAre(1, 2, 3, 4, 5, 6));
    // The copies are whole records, and changing them leaves the players alone.
    EXPECT_EQ(game.FieldMatches[3], game.Players[3]);
    game.FieldMatches[3].surname = "Changed";
    EXPECT_EQ(game.Players[3].surname, "S3");

    EXPECT_THAT(Search({.nationality = 2}), ElementsAre(2, 6));
    // "Namibia" twice in the list: two codes, two different answers.
    EXPECT_THAT(Search({.nationality = 13}), ElementsAre(3));
    EXPECT_THAT(Search({.nationality = 29}), ElementsAre(4));
    EXPECT_THAT(Search({.batPosition = 1}), ElementsAre(1, 4, 6));
    EXPECT_THAT(Search({.bowlType = 7}), ElementsAre(2, 3, 6));  // "None" is a bowling type like the rest
    EXPECT_THAT(Search({.fieldsAt = 1}), ElementsAre(1, 5, 6));
    EXPECT_THAT(Search({.nationality = 2, .batPosition = 1, .bowlType = 7, .fieldsAt = 1}), ElementsAre(6));
    EXPECT_THAT(Search({.nationality = 3}), IsEmpty());
    // A code of 0 passes only an open filter.
    game.Players[2].bowlType = 0;
    EXPECT_THAT(Search({.bowlType = 7}), ElementsAre(3, 6));
    EXPECT_THAT(Search({}), ElementsAre(1, 2, 3, 4, 5, 6));
}

TEST_F(SearchFiltersTest, AnEmptySurnameEndsTheListOnlyWhereHeSurvives)
{
    game.Players[3].surname.clear();
    EXPECT_THAT(Search({}), ElementsAre(1, 2));
    // A search that drops him finds the players behind him; one that keeps him stops there.
    EXPECT_THAT(Search({.batPosition = 1}), ElementsAre(1, 4, 6));
    EXPECT_THAT(Search({.bowlType = 7}), ElementsAre(2));
}

TEST_F(SearchFiltersTest, AClubListsItsSquadInPlaceOrder)
{
    TeamRecord& t = b.Team(4, "Club");
    // Places that name no player give no row; the same number twice gives two.
    t.squad = {0, 5, 0, 2, -1, 2001, 4, 2};
    EXPECT_THAT(Search({.team = 4}), ElementsAre(5, 2, 4, 2));
    // The squad decides, not the players' own team numbers.
    game.Players[1].teamNumber = 4;
    game.Players[5].teamNumber = 0;
    EXPECT_THAT(Search({.team = 4}), ElementsAre(5, 2, 4, 2));
    // The club and the nationality are independent: the team's country plays no part.
    t.homeCountry = 5;
    EXPECT_THAT(Search({.team = 4, .nationality = 1}), ElementsAre(5));
    EXPECT_THAT(Search({.team = 4, .bowlType = 7}), ElementsAre(2, 2));
    EXPECT_THAT(Search({.team = 2}), IsEmpty());
}

}  // namespace
