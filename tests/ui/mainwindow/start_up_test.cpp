// The editor comes up on the first country, team and player of the game
// that editor.dat names, and only then starts carrying edits into the records.

#include "editor_fixture.h"

namespace {

using StartUp = EditorTest;

TEST_F(StartUp, OpensOnTheFirstTeamAndPlayerOfTheFirstCountry)
{
    Open();
    EXPECT_EQ(main->windowTitle(), "KOLTA editor (" + GameFolder() + ")");
    EXPECT_EQ(main->Combo1->ListCount(), 10);
    EXPECT_EQ(main->Combo1->currentText(), "Australia");
    EXPECT_EQ(Rows(*main->Combo2), (std::vector<QString>{"Perth Pelicans", "Darwin Dingoes"}));
    EXPECT_EQ(main->Combo2->ListIndex(), 0);
    EXPECT_EQ(main->lblteamno->text(), "1");
    // Empty initials leave a leading blank in the row.
    EXPECT_EQ(Rows(*main->List1), (std::vector<QString>{"H R Quillfeather", " Ormsby", "T Vanterpool"}));
    EXPECT_EQ(main->List1->ListIndex(), 0);
    EXPECT_EQ(main->Label3->text(), "1");
    EXPECT_FALSE(main->Label3->isVisible());
    EXPECT_EQ(QApplication::focusWidget(), main->List1);
    EXPECT_TRUE(ShownMessages().empty());
    // The timer carries an edit without help.
    Retype(PotentialBox, "19");
    EXPECT_TRUE(QTest::qWaitFor([&] { return game->Players[1].potential == 19; }, 2000));

    // The West Indies entry gathers the teams of code 8; a picked team shows
    // its squad, the empty place in it taking no row.
    ASSERT_TRUE(main->Combo1->SetText("West Indies and Mics."));
    EXPECT_EQ(Rows(*main->Combo2), std::vector<QString>{"Kingston Kites"});
    EXPECT_EQ(Rows(*main->List1), std::vector<QString>{"W Calloway"});
    main->Combo1->SetText("Australia");
    QTest::keyClick(main->Combo2, Qt::Key_Down);
    EXPECT_EQ(main->lblteamno->text(), "2");
    EXPECT_EQ(Rows(*main->List1), (std::vector<QString>{"K Ashgrove", "P J Brindle"}));
    EXPECT_EQ(main->List1->ItemData(1), 5);
}

TEST_F(StartUp, AFirstCountryWithoutTeamsLeavesNoCurrentTeam)
{
    // 130 English teams, so that a team numbered 123 exists for the form's
    // made-up caption to hit.
    GameBuilder b;
    b.Player(1, "Oakes", "J");
    for (int number = 1; number <= 130; ++number) {
        TeamRecord& team = b.Team(number, "Club " + std::to_string(number));
        team.homeCountry = 2;
        team.reputation = 50;
    }
    b.game->Teams[1].squad[1] = 1;
    Open(std::move(b));
    EXPECT_EQ(main->Combo2->ListCount(), 0);
    EXPECT_EQ(main->List1->ListCount(), 0);
    EXPECT_EQ(main->lblteamno->text(), "123");
    EXPECT_EQ(main->Label3->text(), "");
    Tick();
    EXPECT_EQ(game->Teams[123].teamName, "Club 123");

    // Once a team is shown, it is the one that edits go to.
    main->Combo1->SetText("England");
    EXPECT_EQ(main->Label3->text(), "1");
    Retype(ReputationBox, "61");
    Tick();
    EXPECT_EQ(game->Teams[1].reputation, 61);
    EXPECT_EQ(game->Teams[123].reputation, 50);
}

}  // namespace
