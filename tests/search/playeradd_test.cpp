#include <QLabel>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "forms/combo_box.h"
#include "forms/shape.h"
#include "forms/text_box.h"
#include "main_window_fixture.h"

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

using SearchWindowTest = MainWindowTest;

// The second opening shows nothing of what the first one did.
TEST_F(SearchWindowTest, EachOpeningStartsAfreshWithEveryClub)
{
    ASSERT_EQ(Press(main->Command4, [&](PlayerAddForm& form) {
                  EXPECT_EQ(form.windowTitle(), "Replace player..");
                  EXPECT_FALSE(form.Command1->isVisible());
                  EXPECT_TRUE(form.Command4->isVisible());
                  SearchAndPick(form, "P0030");
                  form.Combo3[1]->SetText("India");
                  form.Combo4[SortKeyCombo]->SetText("Bat Skill");
                  Click(form.Command2);
              }),
              "playeradd");
    Press(main->Command1, [&](PlayerAddForm& form) {
        EXPECT_EQ(form.windowTitle(), "Add Player..");
        EXPECT_TRUE(form.Command1->isVisible());
        EXPECT_FALSE(form.Command4->isVisible());
        ASSERT_EQ(form.Combo2->ListCount(), 5);  // no double rows from the earlier opening
        EXPECT_EQ(form.Combo2->List(Kiwis), "Kiwis XI");
        EXPECT_EQ(form.Combo2->ItemData(Newlands), Newlands);
        for (ComboBox* selector : {form.Combo2, form.Combo3[1], form.Combo4[5], form.Combo4[6], form.Combo4[7],
                                   form.Combo4[SortKeyCombo]})
            EXPECT_EQ(selector->ListIndex(), 0);
        EXPECT_EQ(form.List1->ListCount(), 0);
        EXPECT_TRUE(form.Label3->text().isEmpty());
        EXPECT_TRUE(form.Text1[SurnameBox]->Text().isEmpty());
        EXPECT_FALSE(form.Text1[BatSkillBox]->isEnabled());
    });
    // Cancel changes nothing, the main window's choice included.
    EXPECT_THAT(Places(game.Teams[Harbour]), ElementsAre(1, 2, 3));
    EXPECT_EQ(main->List1->ListIndex(), 0);
    EXPECT_THAT(Texts(), IsEmpty());
}

// Rows show surnames and hold numbers; filters and order take effect when
// Search is pressed.
TEST_F(SearchWindowTest, SearchListsSurnamesWithTheirNumbersInTheChosenOrder)
{
    game.Players[7].batSkill = 30;
    game.Players[6].batSkill = 10;
    Press(main->Command1, [&](PlayerAddForm& form) {
        const int fullBar = form.Shape2->width();
        Search(form);
        ASSERT_EQ(form.List1->ListCount(), 40);
        EXPECT_EQ(form.List1->List(38), "Quill");
        EXPECT_EQ(form.List1->ItemData(38), 5);
        form.Combo2->SetText("Kiwis XI");
        form.Combo4[SortKeyCombo]->SetText("Bat Skill");
        EXPECT_EQ(form.List1->ListCount(), 40);
        Search(form);
        EXPECT_THAT(Rows(*form.List1), ElementsAre("P0007", "P0006"));
        // One pair of sweeps over two rows: the bar was set to half of 2500
        // twips and is hidden again.
        EXPECT_FALSE(form.Shape2->isVisible());
        EXPECT_EQ(form.Shape2->width(), std::lround(1250.0 / 2505 * fullBar));
    });
}

TEST_F(SearchWindowTest, PickingACandidateShowsHimAsHeStandsNow)
{
    PlayerRecord& quill = game.Players[5];
    quill.homeCountry = 29;  // the second "Namibia"
    quill.batPosition = 6;
    quill.birthYear = 1982;
    quill.batSkill = 33;
    game.Teams[Newlands].squad[2] = 5;  // in two squads: the higher team is his club
    game.Players[30].homeCountry = 0;   // a code with no entry

    Press(main->Command1, [&](PlayerAddForm& form) {
        SearchAndPick(form, "Quill");
        EXPECT_EQ(form.Label3->text(), "5");
        EXPECT_EQ(form.Text1[InitialsBox]->Text(), "S T");
        EXPECT_EQ(form.Combo3[0]->ListIndex(), 28);
        EXPECT_EQ(form.Combo4[BatPositionCombo]->currentText(), "Tail Ender");
        EXPECT_EQ(form.Text1[YearBox]->Text(), "1982");
        EXPECT_EQ(form.Text1[BatSkillBox]->Text(), "33");
        EXPECT_EQ(form.Text1[TeamNameBox]->Text(), "Newlands");

        // A changed record shows at the next pick, though the row is the search's.
        quill.batSkill = 44;
        game.Teams[Newlands].squad[2] = 0;
        ClickRow(*form.List1, form.List1->ListIndex());
        EXPECT_EQ(form.Text1[BatSkillBox]->Text(), "44");
        EXPECT_EQ(form.Text1[TeamNameBox]->Text(), "Bayside");

        // A player with no squad has no club; a country code with no entry
        // leaves the box on the entry it showed before.
        SearchAndPick(form, "P0030");
        EXPECT_EQ(form.Text1[TeamNameBox]->Text(), "None");
        EXPECT_EQ(form.Combo3[0]->ListIndex(), 28);
        EXPECT_EQ(form.Text1[SurnameBox]->Text(), "P0030");

        // A search that finds nobody leaves the panel and the candidate alone.
        form.Combo4[FieldingFilterCombo]->SetText("WK");
        Search(form);
        EXPECT_EQ(form.List1->ListCount(), 0);
        EXPECT_EQ(form.Label3->text(), "30");
        EXPECT_EQ(form.Text1[SurnameBox]->Text(), "P0030");
    });
}

// The last candidate picked still counts after a new search, which leaves
// no row chosen.
TEST_F(SearchWindowTest, AddRefusesInItsOrderAndChangesNothing)
{
    const auto teams = game.Teams;
    Press(main->Command1, [&](PlayerAddForm& form) {
        Click(form.Command1);               // no candidate yet
        SearchAndPick(form, "P0002");       // already in the squad
        Click(form.Command1);
        EXPECT_EQ(game.Teams, teams);
        SearchAndPick(form, "P0030");
        form.Combo2->SetText("Kiwis XI");
        Search(form);
        Click(form.Command1);
        Click(form.Command1);               // him again
        EXPECT_TRUE(form.isVisible());
    });
    EXPECT_THAT(Texts(), ElementsAre("No Player Selected", "Player already in team",
                                     "A P0030 has been added to the Harbour CC squad.", "Player already in team"));
    EXPECT_THAT(Titles(), ElementsAre("Add Player", "Error", "Add Player", "Error"));
    EXPECT_THAT(Places(game.Teams[Harbour]), ElementsAre(1, 2, 3, 30));
}

TEST_F(SearchWindowTest, AddFillsTheSquadToTwentyAndThenRefuses)
{
    Press(main->Command1, [&](PlayerAddForm& form) {
        // From another squad: he leaves it, and the message says so.
        SearchAndPick(form, "Quill");
        Click(form.Command1);
        EXPECT_THAT(Texts(), ElementsAre("S T Quill has been added to the Harbour CC squad and removed from "
                                         "Bayside squad."));
        EXPECT_EQ(ShownMessages().back().flags, MbInformation);
        EXPECT_THAT(SquadRows(), ElementsAre("K Venn", "A P0002", "A P0003", "S T Quill"));
        EXPECT_EQ(main->List1->ListIndex(), -1);
        // The panel is not refreshed: the old club stays until the next pick.
        EXPECT_EQ(form.Text1[TeamNameBox]->Text(), "Bayside");

        // Players without a team, up to the twentieth.
        for (int number = 9; number <= 24; ++number) {
            SearchAndPick(form, QStringLiteral("P00%1").arg(number, 2, 10, QLatin1Char('0')));
            Click(form.Command1);
        }
        EXPECT_EQ(Texts().back(), "A P0024 has been added to the Harbour CC squad.");
        EXPECT_EQ(main->List1->ListCount(), 20);

        // The limit comes first, also for a candidate who is in the squad.
        ClearShownMessages();
        SearchAndPick(form, "P0025");
        Click(form.Command1);
        SearchAndPick(form, "P0002");
        Click(form.Command1);
    });
    EXPECT_THAT(Titles(), ElementsAre("Maximum Players", "Maximum Players"));
    EXPECT_EQ(Texts().front(), "You already have the maximum of 20 players in the squad.");
    EXPECT_EQ(game.Teams[Harbour].squad[20], 24);
}

TEST_F(SearchWindowTest, ReplaceTakesTheChosenRowAndCloses)
{
    // The last row, by a player from another squad.
    ClickRow(*main->List1, 2);
    bool closed = false;
    Press(main->Command4, [&](PlayerAddForm& form) {
        SearchAndPick(form, "Quill");
        Click(form.Command4);
        closed = !form.isVisible();
    });
    EXPECT_TRUE(closed);
    EXPECT_THAT(Texts(), ElementsAre("S T Quill from Bayside has replaced A P0003 in the Harbour CC squad."));
    EXPECT_THAT(Titles(), ElementsAre("Replace Player"));
    EXPECT_THAT(SquadRows(), ElementsAre("K Venn", "A P0002", "S T Quill"));
    EXPECT_EQ(main->List1->ListIndex(), -1);

    // The first row, by a player without a team.
    ClearShownMessages();
    ClickRow(*main->List1, 0);
    Press(main->Command4, [&](PlayerAddForm& form) {
        SearchAndPick(form, "P0003");
        Click(form.Command4);
    });
    EXPECT_THAT(Texts(), ElementsAre("A P0003 has replaced K Venn in the Harbour CC squad."));
    EXPECT_THAT(SquadRows(), ElementsAre("A P0003", "A P0002", "S T Quill"));
}

TEST_F(SearchWindowTest, ReplaceRefusalsKeepTheWindowOpen)
{
    ClickRow(*main->List1, 1);
    const auto teams = game.Teams;
    const auto players = game.Players;
    Press(main->Command4, [&](PlayerAddForm& form) {
        Click(form.Command4);          // no candidate
        SearchAndPick(form, "Venn");   // himself or a team mate
        Click(form.Command4);
        // A name edit carried over under the window rebuilds the squad list
        // and leaves no row chosen.
        SearchAndPick(form, "P0030");
        main->ReselectCurrentTeam();
        Click(form.Command4);
        EXPECT_TRUE(form.isVisible());
    });
    EXPECT_THAT(Texts(), ElementsAre("No Player Selected", "Player already in team", "No Player Selected"));
    EXPECT_THAT(Titles(), ElementsAre("Replace Player", "Error", "Replace Player"));
    EXPECT_EQ(game.Teams, teams);
    EXPECT_EQ(game.Players, players);
}

}  // namespace
