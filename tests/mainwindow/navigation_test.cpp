// Walking countries, teams and squads with the mouse and the keys.

#include "editor_fixture.h"

namespace {

using Navigation = EditorTest;

TEST_F(Navigation, ACountryWithoutTeamsKeepsTheTeamAndPlayerShown)
{
    Open();
    QTest::keyClick(main->Combo1, Qt::Key_Down);   // England has no team
    EXPECT_EQ(main->Combo1->ListIndex(), 1);
    EXPECT_EQ(main->Combo2->ListCount(), 0);
    EXPECT_EQ(main->List1->ListCount(), 0);
    EXPECT_EQ(main->lblteamno->text(), "1");
    EXPECT_EQ(BoxText(TeamNameBox), "Perth Pelicans");

    // The edits still go to the team and player in the boxes.
    Retype(SupportBox, "12");
    Retype(BatSkillBox, "9");
    Tick();
    EXPECT_EQ(game->Teams[1].support, 12);
    EXPECT_EQ(game->Players[1].batSkill, 9);

    // India's one team has an empty squad: the team changes, the player not.
    QTest::keyClick(main->Combo1, Qt::Key_Down);
    EXPECT_EQ(Rows(*main->Combo2), std::vector<QString>{"Mumbai Mynas"});
    EXPECT_EQ(main->lblteamno->text(), "4");
    EXPECT_EQ(main->List1->ListCount(), 0);
    EXPECT_EQ(main->Label3->text(), "1");
    EXPECT_EQ(BoxText(SurnameBox), "Quillfeather");
}

TEST_F(Navigation, CountriesListTheirOwnTeamsAndTeamsTheirOwnPlayers)
{
    Open();
    // The West Indies entry gathers the teams of code 8.
    ASSERT_TRUE(main->Combo1->SetText("West Indies and Mics."));
    EXPECT_EQ(Rows(*main->Combo2), std::vector<QString>{"Kingston Kites"});
    EXPECT_EQ(Rows(*main->List1), std::vector<QString>{"W Calloway"});
    EXPECT_EQ(main->List1->ListIndex(), 0);
    EXPECT_EQ(main->Label3->text(), "6");
    EXPECT_EQ(main->lblteamno->text(), "3");

    // A team of a country outside the ten is in no list at all.
    for (const QString& country : Rows(*main->Combo1)) {
        main->Combo1->SetText(country);
        for (const QString& entry : Rows(*main->Combo2))
            EXPECT_NE(entry, "Nairobi Nomads");
    }

    // A picked team is shown with no player chosen; the empty place in its
    // squad takes no row.
    main->Combo1->SetText("Australia");
    QTest::keyClick(main->Combo2, Qt::Key_Down);
    EXPECT_EQ(main->lblteamno->text(), "2");
    EXPECT_EQ(BoxText(TeamNameBox), "Darwin Dingoes");
    EXPECT_EQ(Rows(*main->List1), (std::vector<QString>{"K Ashgrove", "P J Brindle"}));
    EXPECT_EQ(main->List1->ItemData(1), 5);
    EXPECT_EQ(main->List1->ListIndex(), -1);
    EXPECT_EQ(main->Label3->text(), "1");   // the player of the other team stays

    // Picking the country that is already chosen starts it afresh.
    main->Combo1->SetText("Australia");
    EXPECT_EQ(main->Combo2->ListIndex(), 0);
    EXPECT_EQ(main->List1->ListIndex(), 0);
    EXPECT_EQ(main->Label3->text(), "1");
}

}  // namespace
