#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "forms/combo_box.h"
#include "forms/list_box.h"
#include "forms/message_box.h"
#include "forms/modal.h"
#include "forms/shape.h"
#include "forms/text_box.h"
#include "support/game_builder.h"
#include "mainwindow/main_form.h"
#include "searchwindow/playeradd_form.h"

using ::testing::ElementsAre;

namespace {

// Teams of the small game the window tests play on. Harbour and Bayside are
// Australian, so the main window opens on Harbour with its first player chosen.
enum { Harbour = 1, Bayside, Kiwis, Newlands };

void Click(QPushButton* button) { QTest::mouseClick(button, Qt::LeftButton); }

// Clicks a row of a list as a person would.
void ClickRow(ListBox& list, int row)
{
    ASSERT_GE(row, 0);
    ASSERT_LT(row, list.ListCount());
    list.scrollToItem(list.item(row));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(row)).center());
}

std::vector<QString> Rows(const ListBox& list)
{
    std::vector<QString> rows;
    for (int row = 0; row < list.ListCount(); ++row)
        rows.push_back(list.List(row));
    return rows;
}

// Searches with the filters as they stand and picks the candidate with that surname.
void SearchAndPick(PlayerAddForm& form, const QString& surname)
{
    Click(form.Command3);  // Search
    const auto rows = Rows(*form.List1);
    const auto at = std::find(rows.begin(), rows.end(), surname);
    ASSERT_NE(at, rows.end()) << surname.toStdString();
    ClickRow(*form.List1, int(at - rows.begin()));
}

class SearchWindowTest : public ::testing::Test {
protected:
    SearchWindowTest()
    {
        // Players 1 to 40, named P0001 and so on, with initials A.
        b.Players(40);
        b.Player(1, "Venn", "K");
        b.Player(5, "Quill", "S T");
        b.Team(Harbour, "Harbour CC", {1, 2, 3}).homeCountry = 1;
        b.Team(Bayside, "Bayside", {4, 5}).homeCountry = 1;
        b.Team(Kiwis, "Kiwis XI", {6, 7}).homeCountry = 4;
        b.Team(Newlands, "Newlands", {8}).homeCountry = 4;

        main = std::make_unique<MainForm>(game, SettingPlaces{});
        main->RunStartupChain();
        main->Timer1->stop();
        ClearShownMessages();
        SetMessageAnswerer([this](const ShownMessage&) { return answer; });
    }
    ~SearchWindowTest() override
    {
        SetMessageAnswerer({});
        SetModalDriver({});
    }

    // Presses `button` of the main window and gives the name of the window it
    // opened, "" if none; `work` drives the search window if that opens.
    QString Press(QPushButton* button, std::function<void(PlayerAddForm&)> work = {})
    {
        QString opened;
        SetModalDriver([&](QDialog& form) {
            opened = form.objectName();
            if (auto* search = dynamic_cast<PlayerAddForm*>(&form); search && work)
                work(*search);
        });
        Click(button);
        SetModalDriver({});
        return opened;
    }

    // The texts, or the titles, of the messages shown so far, in order.
    static std::vector<QString> Shown(QString ShownMessage::*part)
    {
        std::vector<QString> parts;
        for (const ShownMessage& m : ShownMessages())
            parts.push_back(m.*part);
        return parts;
    }
    static std::vector<QString> Texts() { return Shown(&ShownMessage::text); }
    static std::vector<QString> Titles() { return Shown(&ShownMessage::title); }

    GameBuilder b;
    Game& game = *b.game;
    std::unique_ptr<MainForm> main;
    int answer = IdOk;
};

// Add mode from the first press to a full squad. The last candidate picked
// still counts after a new search, which leaves no row chosen.
TEST_F(SearchWindowTest, AddWalksFromTheFirstRefusalToAFullSquad)
{
    game.Players[7].batSkill = 30;
    game.Players[6].batSkill = 10;
    game.Teams[Newlands].squad[2] = 7;  // in two squads: the higher team is his club
    const auto teams = game.Teams;
    Press(main->Command1, [&](PlayerAddForm& form) {
        EXPECT_EQ(form.windowTitle(), "Add Player..");
        Click(form.Command1);  // no candidate yet
        SearchAndPick(form, "P0002");  // already in the squad
        Click(form.Command1);
        EXPECT_EQ(game.Teams, teams);

        SearchAndPick(form, "P0030");
        // Filters and order take effect when Search is pressed.
        form.Combo2->SetText("Kiwis XI");
        form.Combo4[SortKeyCombo]->SetText("Bat Skill");
        EXPECT_EQ(form.List1->ListCount(), 40);
        Click(form.Command3);  // Search
        EXPECT_THAT(Rows(*form.List1), ElementsAre("P0007", "P0006"));
        EXPECT_FALSE(form.Shape2->isVisible()) << "the bar is hidden after the sort";
        Click(form.Command1);
        Click(form.Command1);  // him again

        // From other squads: he leaves them, and the message names his club.
        ClickRow(*form.List1, 0);
        EXPECT_EQ(form.Label3->text(), "7");
        EXPECT_EQ(form.Text1[TeamNameBox]->Text(), "Newlands");
        Click(form.Command1);
        EXPECT_EQ(ShownMessages().back().flags, MbInformation);
        EXPECT_THAT(Rows(*main->List1), ElementsAre("K Venn", "A P0002", "A P0003", "A P0030", "A P0007"));
        EXPECT_EQ(main->List1->ListIndex(), -1);
        EXPECT_THAT(Places(game.Teams[Newlands]), ElementsAre(8));
        // The panel is not refreshed: the old club stays until the next pick.
        EXPECT_EQ(form.Text1[TeamNameBox]->Text(), "Newlands");
        EXPECT_THAT(Texts(), ElementsAre("No Player Selected", "Player already in team",
                                         "A P0030 has been added to the Harbour CC squad.", "Player already in team",
                                         "A P0007 has been added to the Harbour CC squad and removed from "
                                         "Newlands squad."));
        EXPECT_THAT(Titles(), ElementsAre("Add Player", "Error", "Add Player", "Error", "Add Player"));

        // Players without a team, up to the twentieth; then the limit comes
        // first, also for a candidate who is in the squad.
        form.Combo2->SetText(form.Combo2->List(0));
        for (int number = 9; number <= 23; ++number) {
            SearchAndPick(form, QStringLiteral("P00%1").arg(number, 2, 10, QLatin1Char('0')));
            Click(form.Command1);
        }
        EXPECT_EQ(Texts().back(), "A P0023 has been added to the Harbour CC squad.");
        EXPECT_EQ(main->List1->ListCount(), 20);
        ClearShownMessages();
        SearchAndPick(form, "P0025");
        Click(form.Command1);
        SearchAndPick(form, "P0002");
        Click(form.Command1);
    });
    EXPECT_EQ(game.Teams[Harbour].squad[20], 23);
    // A full squad refuses both adds before any window opens.
    EXPECT_EQ(Press(main->Command1), "");
    EXPECT_EQ(Press(main->Command3), "");
    EXPECT_THAT(Titles(), ElementsAre("Maximum Players", "Maximum Players", "Maximum Players", "Maximum Players"));
    EXPECT_EQ(Texts().back(), "You already have the maximum of 20 players in the squad.");
}

// Replace mode twice: the last row, then the first; refusals keep the window
// open and change nothing, and the second opening shows nothing of the first.
TEST_F(SearchWindowTest, ReplaceWalksThroughBothEndsOfTheSquad)
{
    ClickRow(*main->List1, 2);
    const auto teams = game.Teams;
    bool closed = false;
    ASSERT_EQ(Press(main->Command4, [&](PlayerAddForm& form) {
                  EXPECT_EQ(form.windowTitle(), "Replace player..");
                  EXPECT_FALSE(form.Command1->isVisible()) << "no Add in this mode";
                  Click(form.Command4);         // no candidate
                  SearchAndPick(form, "Venn");  // himself or a team mate
                  Click(form.Command4);
                  EXPECT_EQ(game.Teams, teams);
                  SearchAndPick(form, "Quill");
                  form.Combo3[1]->SetText("India");
                  form.Combo4[SortKeyCombo]->SetText("Bat Skill");
                  Click(form.Command4);
                  closed = !form.isVisible();
              }),
              "playeradd");
    EXPECT_TRUE(closed);
    EXPECT_THAT(Rows(*main->List1), ElementsAre("K Venn", "A P0002", "S T Quill"));
    EXPECT_EQ(main->List1->ListIndex(), -1);
    EXPECT_EQ(Press(main->Command4), "");  // no row chosen

    ClickRow(*main->List1, 0);
    Press(main->Command4, [&](PlayerAddForm& form) {
        ASSERT_EQ(form.Combo2->ListCount(), 5);  // no double rows from the earlier opening
        EXPECT_EQ(form.Combo3[1]->ListIndex(), 0);
        EXPECT_EQ(form.Combo4[SortKeyCombo]->ListIndex(), 0);
        EXPECT_EQ(form.List1->ListCount(), 0);
        EXPECT_TRUE(form.Label3->text().isEmpty());
        // A name edit carried over under the window rebuilds the squad list
        // and leaves no row chosen.
        SearchAndPick(form, "P0003");
        main->ReselectCurrentTeam();
        Click(form.Command4);
        ClickRow(*main->List1, 0);
        Click(form.Command4);
    });
    EXPECT_THAT(Texts(), ElementsAre("No Player Selected", "Player already in team",
                                     "S T Quill from Bayside has replaced A P0003 in the Harbour CC squad.",
                                     "No Player Selected", "No Player Selected",
                                     "A P0003 has replaced K Venn in the Harbour CC squad."));
    EXPECT_THAT(Titles(), ElementsAre("Replace Player", "Error", "Replace Player", "Replace Player", "Replace Player",
                                      "Replace Player"));
    EXPECT_THAT(Rows(*main->List1), ElementsAre("A P0003", "A P0002", "S T Quill"));
}

TEST_F(SearchWindowTest, DeleteAsksFirstAndShowsThePlayerWhoFollowed)
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

    // The last of the squad: nothing is chosen afterwards, so there is
    // nothing more to delete.
    ClickRow(*main->List1, 1);
    Click(main->Command2);
    EXPECT_EQ(main->List1->ListIndex(), -1);
    ClearShownMessages();
    Click(main->Command2);
    EXPECT_THAT(Places(game.Teams[Harbour]), ElementsAre(2));
    // A full game refuses a new player before his window opens.
    game.PlayerCount = MaxPlayers;
    EXPECT_EQ(Press(main->Command3), "");
    EXPECT_THAT(Texts(), ElementsAre("No Player Selected", "The game already holds its maximum of 2000 players."));
    EXPECT_THAT(Titles(), ElementsAre("Delete Player", "Maximum Players"));
}

}  // namespace
