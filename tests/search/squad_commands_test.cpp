#include <QLabel>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "forms/combo_box.h"
#include "main_window_fixture.h"

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

using SquadCommandsTest = MainWindowTest;

TEST_F(SquadCommandsTest, AFullSquadRefusesBothAddsBeforeAnyWindowOpens)
{
    // Harbour's own three, then players 9 to 25.
    for (int slot = 4; slot <= SquadSize; ++slot)
        game.Teams[Harbour].squad[slot] = static_cast<std::int16_t>(slot + 5);
    main->ReselectCurrentTeam();
    EXPECT_EQ(Press(main->Command1), "");
    EXPECT_EQ(Press(main->Command3), "");
    EXPECT_THAT(Texts(), ElementsAre("You already have the maximum of 20 players in the squad.",
                                     "You already have the maximum of 20 players in the squad."));
    EXPECT_THAT(Titles(), ElementsAre("Maximum Players", "Maximum Players"));
    EXPECT_EQ(ShownMessages().front().flags, MbInformation);

    // Replace and delete still work on a full squad, and nineteen players
    // leave room for one more.
    ClickRow(*main->List1, 19);
    EXPECT_EQ(Press(main->Command4), "playeradd");
    answer = IdYes;
    Click(main->Command2);
    EXPECT_EQ(game.Teams[Harbour].squad[20], 0);
    EXPECT_EQ(Press(main->Command1), "playeradd");
    EXPECT_EQ(Press(main->Command3), "nplayer");
    EXPECT_EQ(ShownMessages().size(), 3u);
}

TEST_F(SquadCommandsTest, AFullGameRefusesANewPlayer)
{
    game.PlayerCount = MaxPlayers;
    EXPECT_EQ(Press(main->Command3), "");
    EXPECT_THAT(Texts(), ElementsAre("The game already holds its maximum of 2000 players."));
    EXPECT_EQ(ShownMessages()[0].flags, MbInformation);
}

TEST_F(SquadCommandsTest, CommandsNeedATeamAndAChosenPlayer)
{
    main->ReselectCurrentTeam();  // the list rebuilt, nothing chosen
    EXPECT_EQ(Press(main->Command4), "");
    Click(main->Command2);
    EXPECT_THAT(Places(game.Teams[Harbour]), ElementsAre(1, 2, 3));

    main->Combo1->SetText("England");  // a country with no teams
    ASSERT_EQ(main->Combo2->ListCount(), 0);
    for (QPushButton* button : {main->Command1, main->Command3, main->Command4})
        EXPECT_EQ(Press(button), "");
    EXPECT_THAT(Texts(), ElementsAre("No Player Selected", "No Player Selected", "A team must be selected first.",
                                     "A team must be selected first.", "A team must be selected first."));
    EXPECT_THAT(Titles(),
                ElementsAre("Replace Player", "Delete Player", "Add Player", "Add New Player", "Replace Player"));
}

TEST_F(SquadCommandsTest, DeleteAsksFirstAndShowsThePlayerWhoFollowed)
{
    answer = IdNo;
    Click(main->Command2);
    EXPECT_THAT(Texts(), ElementsAre("Are you sure you want to delete K Venn from Harbour CC Squad ?"));
    EXPECT_THAT(Titles(), ElementsAre("Delete Player"));
    EXPECT_EQ(ShownMessages()[0].flags, MbCritical | MbYesNo);
    EXPECT_THAT(Places(game.Teams[Harbour]), ElementsAre(1, 2, 3));
    EXPECT_EQ(main->List1->ListIndex(), 0);

    answer = IdYes;
    Click(main->Command2);
    EXPECT_THAT(Places(game.Teams[Harbour]), ElementsAre(2, 3));
    EXPECT_EQ(game.Players[1].teamNumber, 0);
    EXPECT_EQ(main->List1->ListIndex(), 0);
    EXPECT_EQ(main->Label3->text(), "2");

    // The last of the squad: nothing is chosen afterwards, and the panel
    // still names him.
    ClickRow(*main->List1, 1);
    Click(main->Command2);
    EXPECT_THAT(SquadRows(), ElementsAre("A P0002"));
    EXPECT_EQ(main->List1->ListIndex(), -1);
    EXPECT_EQ(main->Label3->text(), "3");

    ClickRow(*main->List1, 0);
    Click(main->Command2);
    EXPECT_THAT(SquadRows(), IsEmpty());
    EXPECT_THAT(Places(game.Teams[Harbour]), IsEmpty());
}

TEST_F(SquadCommandsTest, TheRowAfterADeleteIsFoundByItsText)
{
    // Two players of one name: the row is chosen by its text, so the first wins.
    b.Team(Harbour, "Harbour CC", {9, 2, 3});
    game.Players[3].surname = "P0001";
    game.Players[9].surname = "P0001";
    main->ReselectCurrentTeam();
    ClickRow(*main->List1, 1);
    answer = IdYes;
    Click(main->Command2);
    EXPECT_THAT(SquadRows(), ElementsAre("A P0001", "A P0001"));
    EXPECT_EQ(main->List1->ListIndex(), 0);
    EXPECT_EQ(main->Label3->text(), "9");
}

}  // namespace
