#include <QLabel>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "forms/combo_box.h"
#include "main_window_fixture.h"

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

class SquadCommandsTest : public MainWindowTest {
protected:
    // Harbour gets `size` players: its own three, then players from 9 on.
    void GrowHarbour(int size)
    {
        for (int slot = 4; slot <= size; ++slot)
            game.Teams[Harbour].squad[slot] = static_cast<std::int16_t>(slot + 5);
        main->ReselectCurrentTeam();
    }
};

TEST_F(SquadCommandsTest, AFullSquadRefusesBothAddsBeforeAnyWindowOpens)
{
    GrowHarbour(20);
    EXPECT_EQ(OpenedBy(main->Command1), "");
    EXPECT_EQ(OpenedBy(main->Command3), "");
    EXPECT_THAT(Texts(), ElementsAre("You already have the maximum of 20 players in the squad.",
                                     "You already have the maximum of 20 players in the squad."));
    EXPECT_THAT(Titles(), ElementsAre("Maximum Players", "Maximum Players"));
    EXPECT_EQ(ShownMessages().front().flags, MbInformation);

    // Replace and delete still work on a full squad.
    ClickRow(*main->List1, 19);
    EXPECT_EQ(OpenedBy(main->Command4), "playeradd");
    answer = IdYes;
    QTest::mouseClick(main->Command2, Qt::LeftButton);
    EXPECT_EQ(game.Teams[Harbour].squad[20], 0);
    // Nineteen players leave room for one more.
    EXPECT_EQ(OpenedBy(main->Command1), "playeradd");
    EXPECT_EQ(OpenedBy(main->Command3), "nplayer");
    EXPECT_EQ(ShownMessages().size(), 3u);
}

TEST_F(SquadCommandsTest, AFullGameRefusesANewPlayer)
{
    game.PlayerCount = MaxPlayers;
    EXPECT_EQ(OpenedBy(main->Command3), "");
    EXPECT_THAT(Texts(), ElementsAre("The game already holds its maximum of 2000 players."));
}

TEST_F(SquadCommandsTest, WithoutATeamNothingOpens)
{
    main->Combo1->SetText("England");  // a country with no teams
    ASSERT_EQ(main->Combo2->ListCount(), 0);
    EXPECT_EQ(OpenedBy(main->Command1), "");
    EXPECT_EQ(OpenedBy(main->Command3), "");
    EXPECT_EQ(OpenedBy(main->Command4), "");
    EXPECT_THAT(Texts(), ElementsAre("A team must be selected first.", "A team must be selected first.",
                                     "A team must be selected first."));
    EXPECT_THAT(Titles(), ElementsAre("Add Player", "Add New Player", "Replace Player"));
}

TEST_F(SquadCommandsTest, ReplaceAndDeleteNeedAChosenPlayer)
{
    main->ReselectCurrentTeam();  // the list rebuilt, nothing chosen
    EXPECT_EQ(OpenedBy(main->Command4), "");
    QTest::mouseClick(main->Command2, Qt::LeftButton);
    EXPECT_THAT(Texts(), ElementsAre("No Player Selected", "No Player Selected"));
    EXPECT_THAT(Titles(), ElementsAre("Replace Player", "Delete Player"));
    EXPECT_THAT(Places(game.Teams[Harbour]), ElementsAre(1, 2, 3));
}

TEST_F(SquadCommandsTest, DeleteAsksFirstAndShowsThePlayerWhoFollowed)
{
    answer = IdNo;
    QTest::mouseClick(main->Command2, Qt::LeftButton);
    ASSERT_EQ(ShownMessages().size(), 1u);
    EXPECT_EQ(ShownMessages()[0].text, "Are you sure you want to delete K Venn from Harbour CC Squad ?");
    EXPECT_EQ(ShownMessages()[0].title, "Delete Player");
    EXPECT_EQ(ShownMessages()[0].flags, MbCritical | MbYesNo);
    EXPECT_THAT(Places(game.Teams[Harbour]), ElementsAre(1, 2, 3));
    EXPECT_EQ(main->List1->ListIndex(), 0);

    answer = IdYes;
    QTest::mouseClick(main->Command2, Qt::LeftButton);
    EXPECT_THAT(Places(game.Teams[Harbour]), ElementsAre(2, 3));
    EXPECT_EQ(game.Players[1].teamNumber, 0);
    EXPECT_EQ(main->List1->ListIndex(), 0);
    EXPECT_EQ(main->Label3->text(), "2");

    // The last of the squad: nothing is chosen afterwards, and the panel
    // still names him.
    ClickRow(*main->List1, 1);
    QTest::mouseClick(main->Command2, Qt::LeftButton);
    EXPECT_THAT(SquadRows(), ElementsAre("A P0002"));
    EXPECT_EQ(main->List1->ListIndex(), -1);
    EXPECT_EQ(main->Label3->text(), "3");

    ClickRow(*main->List1, 0);
    QTest::mouseClick(main->Command2, Qt::LeftButton);
    EXPECT_THAT(SquadRows(), IsEmpty());
    EXPECT_THAT(Places(game.Teams[Harbour]), IsEmpty());
}

TEST_F(SquadCommandsTest, TheRowAfterADeleteIsFoundByItsText)
{
    // Two players of one name: the row is chosen by its text, so the first wins.
    game.Players[3].surname = "P0001";
    game.Teams[Harbour].squad[1] = 9;
    game.Players[9].surname = "P0001";
    main->ReselectCurrentTeam();
    ClickRow(*main->List1, 1);
    answer = IdYes;
    QTest::mouseClick(main->Command2, Qt::LeftButton);
    EXPECT_THAT(SquadRows(), ElementsAre("A P0001", "A P0001"));
    EXPECT_EQ(main->List1->ListIndex(), 0);
    EXPECT_EQ(main->Label3->text(), "9");
}

}  // namespace
