// The windows a squad's buttons open: search (Add, Replace), Delete's
// question and the new player's form.
#include <QClipboard>
#include <QPushButton>
#include <QToolTip>

#include <gmock/gmock.h>

#include "forms/beep.h"
#include "newplayerwindow/new_player_window.h"
#include "searchwindow/search_window.h"
#include "ui/mainwindow/editor_fixture.h"

using ::testing::ElementsAre;

namespace {

enum { Harbour = 1, Bayside, Kiwis, Newlands };

void Click(QPushButton& button) { QTest::mouseClick(&button, Qt::LeftButton); }

class SearchWindowTest : public EditorTest {
protected:
    // Players 1 to 40, named P0001 and so on with initials A, but for K Venn
    // and S T Quill. Harbour and Bayside are Australian, so the window opens
    // on Harbour with its first player chosen.
    void SetUp() override
    {
        GameBuilder b;
        b.Players(40);
        b.Player(1, "Venn", "K");
        b.Player(5, "Quill", "S T");
        b.game->Players[2].batPosition = 2;
        b.game->Players[30].batPosition = 7;  // a code with no entry: his list stays on the entry before
        b.game->Players[6].batSkill = 10;     // Kiwis XI by bat skill: 7, then 6
        b.game->Players[7].batSkill = 30;
        b.Team(Harbour, "Harbour CC", {1, 2, 3}).homeCountry = 1;
        b.Team(Bayside, "Bayside", {4, 5}).homeCountry = 1;
        b.Team(Kiwis, "Kiwis XI", {6, 7}).homeCountry = 4;
        b.Team(Newlands, "Newlands", {8}).homeCountry = 4;
        b.game->Teams[Newlands].squad[2] = 7;  // in two squads: the higher team is his club
        Open(std::move(b));
    }

    // Presses the main window's button `name`; `work` drives the search window if that opens.
    QString Press(const char* name, const std::function<void(SearchWindow&)>& work = {})
    {
        return ::Press<SearchWindow>(Find<QPushButton>(*main, name), work);
    }
};

// Add mode from the first refusal to a full squad; a new search leaves no
// candidate, and after an add the panel names his new club.
TEST_F(SearchWindowTest, AddWalksFromTheFirstRefusalToAFullSquad)
{
    const auto teams = game->Teams;
    Press("addExistingPlayerButton", [&](SearchWindow& form) {
        QPushButton& add = Find<QPushButton>(form, "addButton");
        EXPECT_EQ(form.windowTitle(), "Add Player..");
        Click(add);  // no candidate yet
        SearchAndPick(form, "A P0002");  // already in the squad
        Click(add);
        EXPECT_EQ(game->Teams, teams);

        Pick(Find<ChoiceList>(form, "resultList"), "A P0030");
        // The candidate's panel is read-only, and a code with no entry leaves
        // its list on the entry before.
        EXPECT_EQ(Find<QComboBox>(form, "batPosition").currentIndex(), 1);
        EXPECT_FALSE(Find<TextBox>(form, "surname").isEnabled());
        Click(add);
        Click(add);  // him again
        // Filters and order take effect when Search is pressed, and a new
        // search leaves no candidate to add.
        Pick(Find<QComboBox>(form, "clubFilter"), "Kiwis XI");
        Pick(Find<QComboBox>(form, "sortKeyList"), "Bat Skill");
        EXPECT_EQ(Find<ChoiceList>(form, "resultList").count(), 40);
        Click(Find<QPushButton>(form, "searchButton"));
        EXPECT_THAT(Rows(Find<ChoiceList>(form, "resultList")), ElementsAre("A P0007", "A P0006"));
        EXPECT_FALSE(Find<QWidget>(form, "sortBar").isVisible()) << "the bar is hidden after the sort";
        EXPECT_EQ(form.Candidate(), std::nullopt);
        EXPECT_EQ(Find<TextBox>(form, "presentClub").text(), "");
        Click(add);

        // From other squads: he leaves them, and the message names his club.
        ClickRow(Find<ChoiceList>(form, "resultList"), 0);
        EXPECT_EQ(form.Candidate(), 7);
        EXPECT_EQ(Find<TextBox>(form, "presentClub").text(), "Newlands");
        Click(add);
        EXPECT_EQ(Look(ShownMessages().back()), Look("Add Player", QMessageBox::Information));
        EXPECT_THAT(Rows(Squad()), ElementsAre("K Venn", "A P0002", "A P0003", "A P0030", "A P0007"));
        EXPECT_EQ(Squad().ChosenRow(), 0);  // the player shown stays chosen
        EXPECT_THAT(Places(game->Teams[Newlands]), ElementsAre(8));
        EXPECT_EQ(Find<TextBox>(form, "presentClub").text(), "Harbour CC");
        EXPECT_THAT(ShownTexts(), ElementsAre("No Player Selected", "Player already in team",
                                              "A P0030 has been added to the Harbour CC squad.",
                                              "Player already in team", "No Player Selected",
                                              "A P0007 has been added to the Harbour CC squad and removed from "
                                              "Newlands squad."));
        EXPECT_THAT(ShownTexts(&ShownMessage::title),
                    ElementsAre("Add Player", "Error", "Add Player", "Error", "Add Player", "Add Player"));

        // Players without a team, up to the twentieth; then the limit comes
        // first, also for a candidate who is in the squad.
        Pick(Find<QComboBox>(form, "clubFilter"), "All Clubs");
        for (int number = 9; number <= 23; ++number) {
            SearchAndPick(form, QStringLiteral("A P00%1").arg(number, 2, 10, QLatin1Char('0')));
            Click(add);
        }
        EXPECT_EQ(ShownTexts().back(), "A P0023 has been added to the Harbour CC squad.");
        EXPECT_EQ(Squad().count(), 20);
        ClearShownMessages();
        for (const char* name : {"A P0025", "A P0002"}) {
            SearchAndPick(form, name);
            Click(add);
        }
    });
    EXPECT_EQ(game->Teams[Harbour].squad[20], 23);
    // A full squad refuses both adds before any window opens.
    EXPECT_EQ(Press("addExistingPlayerButton"), "");
    EXPECT_EQ(Press("addNewPlayerButton"), "");
    EXPECT_EQ(ShownTexts(&ShownMessage::title), std::vector<QString>(4, "Maximum Players"));
    EXPECT_EQ(ShownTexts().back(), "You already have the maximum of 20 players in the squad.");
}

// Replace mode twice: the last row, then the first; refusals keep the window
// open and change nothing, and the second opening shows nothing of the first.
TEST_F(SearchWindowTest, ReplaceWalksThroughBothEndsOfTheSquad)
{
    ClickRow(Squad(), 2);
    const auto teams = game->Teams;
    bool closed = false;
    ASSERT_EQ(Press("replacePlayerButton", [&](SearchWindow& form) {
                  QPushButton& replace = Find<QPushButton>(form, "replaceButton");
                  EXPECT_EQ(form.windowTitle(), "Replace player..");
                  EXPECT_FALSE(Find<QPushButton>(form, "addButton").isVisible()) << "no Add in this mode";
                  Click(replace);  // no candidate
                  SearchAndPick(form, "K Venn");  // himself or a team mate
                  Click(replace);
                  EXPECT_EQ(game->Teams, teams);
                  SearchAndPick(form, "S T Quill");
                  Pick(Find<QComboBox>(form, "nationalityFilter"), "India");
                  Pick(Find<QComboBox>(form, "sortKeyList"), "Bat Skill");
                  Click(replace);
                  closed = !form.isVisible();
              }),
              "searchWindow");
    EXPECT_TRUE(closed);
    EXPECT_THAT(Rows(Squad()), ElementsAre("K Venn", "A P0002", "S T Quill"));
    EXPECT_EQ(Squad().ChosenRow(), -1);
    EXPECT_EQ(Press("replacePlayerButton"), "");  // no row chosen

    ClickRow(Squad(), 0);
    Press("replacePlayerButton", [&](SearchWindow& form) {
        ASSERT_EQ(Find<QComboBox>(form, "clubFilter").count(), 5);  // no double rows from the earlier opening
        EXPECT_EQ(Find<QComboBox>(form, "nationalityFilter").currentIndex(), 0);
        EXPECT_EQ(Find<QComboBox>(form, "sortKeyList").currentIndex(), 0);
        EXPECT_EQ(Find<ChoiceList>(form, "resultList").count(), 0);
        EXPECT_EQ(form.Candidate(), std::nullopt);
        SearchAndPick(form, "A P0003");
        Click(Find<QPushButton>(form, "replaceButton"));
    });
    EXPECT_THAT(ShownTexts(),
                ElementsAre("No Player Selected", "Player already in team",
                            "S T Quill from Bayside has replaced A P0003 in the Harbour CC squad.",
                            "No Player Selected", "A P0003 has replaced K Venn in the Harbour CC squad."));
    EXPECT_THAT(ShownTexts(&ShownMessage::title),
                ElementsAre("Replace Player", "Error", "Replace Player", "Replace Player", "Replace Player"));
    EXPECT_THAT(Rows(Squad()), ElementsAre("A P0003", "A P0002", "S T Quill"));
}

TEST_F(SearchWindowTest, DeleteAsksFirstAndShowsThePlayerWhoFollowed)
{
    QPushButton& remove = Find<QPushButton>(*main, "deletePlayerButton");
    Answer({QMessageBox::No});
    Click(remove);
    EXPECT_THAT(ShownTexts(), ElementsAre("Are you sure you want to delete K Venn from Harbour CC Squad ?"));
    EXPECT_EQ(Look(ShownMessages()[0]),
              Look("Delete Player", QMessageBox::Critical, QMessageBox::Yes | QMessageBox::No));
    EXPECT_THAT(Places(game->Teams[Harbour]), ElementsAre(1, 2, 3));
    EXPECT_EQ(Squad().ChosenRow(), 0);

    Answer({QMessageBox::Yes, QMessageBox::Yes});
    Click(remove);
    EXPECT_THAT(Places(game->Teams[Harbour]), ElementsAre(2, 3));
    EXPECT_EQ(game->Players[1].teamNumber, 0);
    EXPECT_EQ(Squad().ChosenRow(), 0);
    EXPECT_EQ(main->CurrentPlayer(), 2);

    // The last of the squad: nothing is chosen afterwards, so there is
    // nothing more to delete.
    ClickRow(Squad(), 1);
    Click(remove);
    EXPECT_EQ(Squad().ChosenRow(), -1);
    ClearShownMessages();
    Click(remove);
    EXPECT_THAT(Places(game->Teams[Harbour]), ElementsAre(2));
    // A full game refuses a new player before his window opens.
    Document().Change("fill the game", {}, [](Game& full) { full.PlayerCount = MaxPlayers; });
    EXPECT_EQ(Press("addNewPlayerButton"), "");
    EXPECT_THAT(ShownTexts(), ElementsAre("No Player Selected", "The game already holds its maximum of 2000 players."));
    EXPECT_THAT(ShownTexts(&ShownMessage::title), ElementsAre("Delete Player", "Maximum Players"));
}

void Paste(TextBox* box, const QString& text)
{
    box->clear();
    QApplication::clipboard()->setText(text);
    box->paste();
}

// The key filter beeps at what a box cannot take. Pasting skips it, but not
// the length limit; OK judges what was pasted like anything typed, and a
// refusal keeps the window and its entries. Once the entries are good, OK
// stores the player, silently, and closes.
TEST_F(SearchWindowTest, NewPlayerFromTheKeyFilterToTheSquad)
{
    ClickRow(Squad(), 1);
    ASSERT_EQ(main->CurrentPlayer(), 2);

    bool closed = false;
    ::Press<NewPlayerWindow>(Find<QPushButton>(*main, "addNewPlayerButton"), [&](NewPlayerWindow& form) {
        const auto box = [&](const char* name) { return &Find<TextBox>(form, name); };
        EXPECT_EQ(form.parentWidget(), main);
        TextBox* skill = box("batSkill");
        const int beeps = BeepCount();
        QTest::keyClicks(skill, "a-.");
        QTest::keyClick(skill, Qt::Key_Return);
        EXPECT_EQ(skill->text(), "");
        EXPECT_EQ(BeepCount() - beeps, 4);
        EXPECT_TRUE(form.isVisible()) << "Enter in a number box presses no button";
        QTest::keyClicks(skill, "456");
        EXPECT_EQ(skill->text(), "45") << "two digits at most";
        QTest::keyClick(skill, Qt::Key_Backspace);
        EXPECT_EQ(skill->text(), "4");
        // The names take any key the files can store, but no comma, nor a
        // quote to begin with.
        QTest::keyClicks(box("surname"), "O'Neil-Smith 2nd,");
        QTest::keyClicks(box("initials"), "\"a.b");
        EXPECT_EQ(box("surname")->text(), "O'Neil-Smith 2nd");
        EXPECT_EQ(box("initials")->text(), "a.b");
        EXPECT_EQ(QToolTip::text(), "A name cannot begin with a double quote") << "the refusal says why";
        EXPECT_EQ(BeepCount() - beeps, 6);

        Find<QPushButton>(form, "okButton").click();  // the date and most skills are still empty
        FillNewPlayer(form, "Newcombe");
        Paste(skill, "-5");
        EXPECT_EQ(BeepCount() - beeps, 6);
        Find<QPushButton>(form, "okButton").click();
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(box("surname")->text(), "Newcombe");
        EXPECT_EQ(skill->text(), "-5");
        EXPECT_EQ(game->PlayerCount, 40);
        EXPECT_EQ(game->Teams[Harbour].squad[4], 0);
        Paste(box("birthYear"), "19821");
        EXPECT_EQ(box("birthYear")->text(), "1982");

        Paste(skill, "33");
        Find<QComboBox>(form, "homeCountry").setCurrentIndex(1);
        Find<QPushButton>(form, "okButton").click();
        closed = !form.isVisible();
    });
    // Each refusal names the first box at fault (which one is the core's FirstBadEntry).
    const QString refusal = "Data not in correct range.Please see help for correct range of data values.\n\n";
    EXPECT_THAT(ShownTexts(), ElementsAre(refusal + "Date of birth is empty.",
                                          refusal + "Bat skill must lie from 0 to 60, not -5."))
        << "success is not announced";
    for (const ShownMessage& message : ShownMessages())
        EXPECT_EQ(Look(message), Look("Error", QMessageBox::Information));
    EXPECT_TRUE(closed);
    EXPECT_EQ(game->Players[41].surname, "Newcombe");
    EXPECT_EQ(game->Players[41].homeCountry, 2);
    EXPECT_THAT(Places(game->Teams[Harbour]), ElementsAre(1, 2, 3, 41));
    EXPECT_EQ(Squad().count(), 4);
    EXPECT_EQ(Squad().NumberAt(3), 41);
    EXPECT_EQ(Squad().ChosenRow(), 1);
    EXPECT_EQ(main->CurrentPlayer(), 2) << "the player shown before stays shown and chosen";
}

}  // namespace
