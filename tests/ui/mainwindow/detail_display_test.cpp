// The editor comes up on the first country, team and player of the game that
// editor.dat names. Each field of a player and a team reaches its box and
// comes back, showing a record changes nothing the user did not, and what is
// typed into a box goes into the current player's or team's record.

#include <QStatusBar>

#include "editor_fixture.h"
#include "forms/beep.h"

namespace {

using StartUp = EditorTest;
using DetailDisplay = EditorTest;
using Entry = std::pair<int, QString>;

// The place and text of a code list's chosen entry.
Entry Chosen(const QComboBox& box)
{
    return {box.currentIndex(), box.currentText()};
}

TEST_F(StartUp, OpensOnTheFirstTeamAndPlayerOfTheFirstCountryAndShowsTheirCodes)
{
    Open();
    EXPECT_EQ(Place(), (std::vector<QString>{"Australia", "Perth Pelicans", "H R Quillfeather", "Quillfeather"}));
    EXPECT_EQ(Rows(Combo("teamList")), (std::vector<QString>{"Perth Pelicans", "Darwin Dingoes"}));
    EXPECT_EQ(TeamNumber(), "1");
    // Empty initials leave a leading blank in the row.
    EXPECT_EQ(Rows(Squad()), (std::vector<QString>{"H R Quillfeather", " Ormsby", "T Vanterpool"}));
    EXPECT_EQ(main->CurrentPlayer(), 1);
    EXPECT_EQ(QApplication::focusWidget(), &Squad());
    EXPECT_TRUE(ShownMessages().empty());
    EXPECT_FALSE(Find<QWidget>(*main, "problemsBar").isVisible()) << "a game without errors shows no bar";

    // The second "Namibia", code 29, is shown as itself. The hands count
    // from 0, the other codes from 1.
    const std::pair<const char*, Entry> codes[] = {
        {"homeCountry", {28, "Namibia"}}, {"batPosition", {0, "Opener"}},     {"bats", {1, "Left Handed"}},
        {"bowlType", {6, "None"}},        {"bowls", {0, "Right Handed"}},     {"fieldsAt", {1, "Close"}},
        {"team.homeCountry", {0, "Australia"}},
    };
    for (const auto& [list, entry] : codes)
        EXPECT_EQ(Chosen(Combo(list)), entry) << list;
    const auto before = std::make_unique<Game>(*game);
    Pick(Squad(), " Ormsby");
    Pick(Squad(), "H R Quillfeather");
    EXPECT_EQ(game->Players[1], before->Players[1]);   // still code 29, not 13
    EXPECT_EQ(game->Teams[1], before->Teams[1]);
    Pick(Squad(), "T Vanterpool");
    EXPECT_EQ(Chosen(Combo("homeCountry")), Entry(12, "Namibia"));   // the first one, code 13

    // Codes with no entry leave their lists with nothing chosen, and the
    // record as stored.
    Pick(Squad(), " Ormsby");
    EXPECT_EQ(Combo("homeCountry").currentIndex(), -1);
    EXPECT_EQ(Combo("batPosition").currentIndex(), -1);
    EXPECT_EQ(game->Players[2], before->Players[2]);

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

TEST_F(DetailDisplay, EveryBoxShowsAndWritesItsOwnField)
{
    Open();
    struct Box {
        const char* box;
        QString shown, typed;
    };
    const std::vector<Box> boxes{
        {"birthDay", "3", "28"},           {"birthMonth", "11", "2"},          {"birthYear", "1980", "1990"},
        {"batSkill", "52", "11"},     {"batAggression", "7", "12"},  {"bowlSkill", "-4", "13"},
        {"bowlEconomy", "0", "14"},   {"fieldAbility", "38", "15"},  {"potential", "16", "-16"},
        {"initials", "H R", "J"},     {"surname", "Quillfeather", "Quill"},
        {"team.teamName", "Perth Pelicans", "Perth Pelicans II"},          {"team.abbreviation", "PPL", ""},
        {"team.reputation", "83", "90"},   {"team.wealth", "-250", "-3000"},   {"team.support", "81", "5"},
    };
    for (const Box& b : boxes) {
        EXPECT_EQ(BoxText(b.box), b.shown) << b.box;
        Retype(b.box, b.typed);
    }
    const std::pair<const char*, int> picks[] = {{"homeCountry", 2}, {"batPosition", 5}, {"bats", 0},
                                                 {"bowlType", 0},    {"bowls", 1},       {"fieldsAt", 3}};
    for (const auto& [list, entry] : picks)
        Combo(list).setCurrentIndex(entry);
    QTest::keyClick(&Combo("team.homeCountry"), Qt::Key_Down);
    // Number, team and the game's hidden value are never written.
    const PlayerRecord player{.playerNumber = 1, .initials = "J", .surname = "Quill", .birthDay = 28,
                              .birthMonth = 2, .birthYear = 1990, .homeCountry = 3, .teamNumber = 1,
                              .batPosition = 6, .bats = 0, .batSkill = 11, .batAggression = 12, .bowlType = 1,
                              .bowls = 1, .bowlSkill = 13, .bowlEconomy = 14, .fieldAbility = 15, .fieldsAt = 4,
                              .potential = -16, .carriedValue = 99};
    const TeamRecord team{.teamName = "Perth Pelicans II", .abbreviation = "", .homeCountry = 2, .teamNumber = 1,
                          .squad = SmallWorld().game->Teams[1].squad, .reputation = 90, .wealth = -3000, .support = 5};
    EXPECT_EQ(game->Players[1], player);
    EXPECT_EQ(game->Teams[1], team);
    // The team now stands under its new country, with its new name.
    Pick(Combo("countryList"), "England");
    EXPECT_EQ(Rows(Combo("teamList")), std::vector<QString>{"Perth Pelicans II"});
}

// A new name shows in the squad list at once. Every name box turns away a
// key the files cannot carry, with a beep and the reason in the status bar
// (what each name refuses is the core's NameRefusal); only the surname
// refuses to become empty, as the search lists players by it. (How a number
// box takes a text is unsaved_work_test's.)
TEST_F(DetailDisplay, NameBoxesShowANewNameAtOnceAndRefuseWhatTheFilesCannotCarry)
{
    Open();
    TextBox& surname = Find<TextBox>(*main, "surname");
    surname.setFocus();
    surname.end(false);
    QTest::keyClicks(&surname, "s");
    const int caret = surname.cursorPosition();
    EXPECT_EQ(game->Players[1].surname, "Quillfeathers");
    EXPECT_EQ(Rows(Squad()), (std::vector<QString>{"H R Quillfeathers", " Ormsby", "T Vanterpool"}));
    EXPECT_EQ(Squad().ChosenRow(), 0);  // his row stays chosen, so Delete and Replace still find him
    EXPECT_EQ(main->CurrentPlayer(), 1);
    // The box being typed in is left alone.
    EXPECT_EQ(QApplication::focusWidget(), &surname);
    EXPECT_EQ(surname.cursorPosition(), caret);

    // Another field of his leaves the list and its choice.
    Pick(Squad(), " Ormsby");
    Retype("batSkill", "13");
    EXPECT_EQ(Squad().ChosenRow(), 1);

    const QStatusBar& status = *main->statusBar();
    for (const char* box : {"initials", "surname", "team.teamName", "team.abbreviation"}) {
        const int beeps = BeepCount();
        Retype(box, "O");
        QTest::keyClicks(&Find<TextBox>(*main, box), ",\"");
        EXPECT_EQ(status.currentMessage(), "A name cannot hold a comma") << box;
        EXPECT_EQ(BoxText(box), "O\"") << box;
        EXPECT_EQ(BeepCount(), beeps + 1) << box;
    }
    surname.setFocus();
    surname.end(false);
    for (int key = 0; key < 3; ++key)
        QTest::keyClick(&surname, Qt::Key_Backspace);
    EXPECT_EQ(surname.text(), "O");
    EXPECT_EQ(game->Players[2].surname, "O");
    EXPECT_EQ(status.currentMessage(),
              "A player needs a surname: type the new one before deleting the last letter");
    Retype("initials", "");
    EXPECT_EQ(game->Players[2].initials, "");
}

}  // namespace
