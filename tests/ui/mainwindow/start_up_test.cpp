// The editor comes up on the first country, team and player of the game
// that editor.dat names, and what is typed there goes into the records.

#include <QDir>

#include "editor_fixture.h"

namespace {

using StartUp = EditorTest;

TEST_F(StartUp, OpensOnTheFirstTeamAndPlayerOfTheFirstCountry)
{
    Open();
    EXPECT_EQ(ShownTitle(*main), "KOLTA editor (" + QDir::toNativeSeparators(GameFolder()) + ")");
    EXPECT_EQ(Combo("countryList").currentText(), "Australia");
    EXPECT_EQ(Rows(Combo("teamList")), (std::vector<QString>{"Perth Pelicans", "Darwin Dingoes"}));
    EXPECT_EQ(Combo("teamList").currentIndex(), 0);
    EXPECT_EQ(TeamNumber(), "1");
    // Empty initials leave a leading blank in the row.
    EXPECT_EQ(Rows(Squad()), (std::vector<QString>{"H R Quillfeather", " Ormsby", "T Vanterpool"}));
    EXPECT_EQ(Squad().ChosenRow(), 0);
    EXPECT_EQ(main->CurrentPlayer(), 1);
    EXPECT_EQ(QApplication::focusWidget(), &Squad());
    EXPECT_TRUE(ShownMessages().empty());
    EXPECT_FALSE(Find<QWidget>(*main, "problemsBar").isVisible()) << "a game without errors shows no bar";

    // The West Indies entry gathers the teams of code 8; a picked team shows
    // its squad, the empty place in it taking no row.
    ASSERT_TRUE(Pick(Combo("countryList"), "West Indies and Mics."));
    EXPECT_EQ(Rows(Combo("teamList")), std::vector<QString>{"Kingston Kites"});
    EXPECT_EQ(Rows(Squad()), std::vector<QString>{"W Calloway"});
    Pick(Combo("countryList"), "Australia");
    QTest::keyClick(&Combo("teamList"), Qt::Key_Down);
    EXPECT_EQ(TeamNumber(), "2");
    EXPECT_EQ(Rows(Squad()), (std::vector<QString>{"K Ashgrove", "P J Brindle"}));
    EXPECT_EQ(Squad().NumberAt(1), 5);
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
    EXPECT_EQ(Combo("teamList").count(), 0);
    EXPECT_EQ(Squad().count(), 0);
    EXPECT_EQ(TeamNumber(), "");
    EXPECT_EQ(main->CurrentPlayer(), std::nullopt);
    Retype("team.teamName", "Renamed");
    EXPECT_EQ(game->Teams[123].teamName, "Club 123");

    // Once a team is shown, it is the one that edits go to.
    Pick(Combo("countryList"), "England");
    EXPECT_EQ(main->CurrentPlayer(), 1);
    Retype("team.reputation", "61");
    EXPECT_EQ(game->Teams[1].reputation, 61);
    EXPECT_EQ(game->Teams[123].reputation, 50);
}

}  // namespace
