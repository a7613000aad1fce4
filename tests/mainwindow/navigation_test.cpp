// Walking countries, teams and squads with the mouse and the keys.

#include <QLabel>
#include <QTest>

#include "editor_fixture.h"
#include "forms/combo_box.h"
#include "forms/list_box.h"
#include "forms/text_box.h"

namespace {

using Navigation = EditorTest;

void ClickRow(ListBox& list, int row)
{
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(row)).center());
}

TEST_F(Navigation, ACountryWithoutTeamsKeepsTheTeamAndPlayerShown)
{
    Open();
    QTest::keyClick(main->Combo1, Qt::Key_Down);   // England has no team
    EXPECT_EQ(main->Combo1->ListIndex(), 1);
    EXPECT_EQ(main->Combo2->ListCount(), 0);
    EXPECT_EQ(main->List1->ListCount(), 0);
    EXPECT_EQ(main->lblteamno->text(), "1");
    EXPECT_EQ(main->Text1[TeamNameBox]->Text(), "Perth Pelicans");
    EXPECT_EQ(main->Label3->text(), "1");

    // The edits still go to the team and player in the boxes.
    Retype(SupportBox, "12");
    Retype(BatSkillBox, "9");
    Tick();
    EXPECT_EQ(game->Teams[1].support, 12);
    EXPECT_EQ(game->Players[1].batSkill, 9);

    // India's one team has an empty squad: the team changes, the player not.
    QTest::keyClick(main->Combo1, Qt::Key_Down);
    EXPECT_EQ(TeamEntries(), std::vector<QString>{"Mumbai Mynas"});
    EXPECT_EQ(main->lblteamno->text(), "4");
    EXPECT_EQ(main->List1->ListCount(), 0);
    EXPECT_EQ(main->Label3->text(), "1");
    EXPECT_EQ(main->Text1[SurnameBox]->Text(), "Quillfeather");
}

TEST_F(Navigation, EveryCountryListsItsOwnTeamsAndEndsOnTheirFirstPlayer)
{
    Open();
    // The West Indies entry gathers the teams of code 8.
    ASSERT_TRUE(main->Combo1->SetText("West Indies and Mics."));
    EXPECT_EQ(TeamEntries(), std::vector<QString>{"Kingston Kites"});
    EXPECT_EQ(SquadRows(), std::vector<QString>{"W Calloway"});
    EXPECT_EQ(main->List1->ListIndex(), 0);
    EXPECT_EQ(main->Label3->text(), "6");
    EXPECT_EQ(main->lblteamno->text(), "3");

    // A team of a country outside the ten is in no list at all.
    for (int country = 0; country < main->Combo1->ListCount(); ++country) {
        main->Combo1->SetText(main->Combo1->List(country));
        for (const QString& entry : TeamEntries())
            EXPECT_NE(entry, "Nairobi Nomads");
    }

    // Picking the country that is already chosen starts it afresh.
    main->Combo1->SetText("Australia");
    QTest::keyClick(main->Combo2, Qt::Key_Down);
    main->Combo1->SetText("Australia");
    EXPECT_EQ(main->Combo2->ListIndex(), 0);
    EXPECT_EQ(main->List1->ListIndex(), 0);
    EXPECT_EQ(main->Label3->text(), "1");
}

TEST_F(Navigation, PickingATeamShowsItAndChoosesNoPlayer)
{
    Open();
    QTest::keyClick(main->Combo2, Qt::Key_Down);
    EXPECT_EQ(main->lblteamno->text(), "2");
    EXPECT_EQ(main->Text1[TeamNameBox]->Text(), "Darwin Dingoes");
    EXPECT_EQ(main->Text1[AbbreviationBox]->Text(), "DDG");
    EXPECT_EQ(main->Text1[ReputationBox]->Text(), "40");

    // The empty place between the two players takes no row.
    EXPECT_EQ(SquadRows(), (std::vector<QString>{"K Ashgrove", "P J Brindle"}));
    EXPECT_EQ(main->List1->ItemData(0), 4);
    EXPECT_EQ(main->List1->ItemData(1), 5);
    EXPECT_EQ(main->List1->ListIndex(), -1);

    // The player of the other team stays in the boxes and takes the edits.
    EXPECT_EQ(main->Label3->text(), "1");
    EXPECT_EQ(main->Text1[SurnameBox]->Text(), "Quillfeather");
    Retype(PotentialBox, "3");
    Tick();
    EXPECT_EQ(game->Players[1].potential, 3);
}

TEST_F(Navigation, ARowPickedByMouseOrKeysShowsItsPlayer)
{
    Open();
    ClickRow(*main->List1, 2);
    EXPECT_EQ(main->List1->ListIndex(), 2);
    EXPECT_EQ(main->Label3->text(), "3");
    EXPECT_EQ(main->Text1[SurnameBox]->Text(), "Vanterpool");

    main->List1->setFocus();
    QTest::keyClick(main->List1, Qt::Key_Up);
    EXPECT_EQ(main->Label3->text(), "2");
    EXPECT_EQ(main->Text1[SurnameBox]->Text(), "Ormsby");

    // Clicking the chosen row again shows the record again: a text that
    // never reached it is gone, an edit that did stays.
    Retype(BatSkillBox, "many");
    Retype(FieldAbilityBox, "33");
    Tick();
    ClickRow(*main->List1, 1);
    EXPECT_EQ(main->Text1[BatSkillBox]->Text(), "12");
    EXPECT_EQ(main->Text1[FieldAbilityBox]->Text(), "33");
}

}  // namespace
