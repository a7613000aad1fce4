// How each field of a player and a team reaches its box and comes back, and
// that showing a record changes nothing the user did not.

#include "editor_fixture.h"

namespace {

using DetailDisplay = EditorTest;
using Entry = std::pair<int, QString>;

// The place and text of a code list's chosen entry.
Entry Chosen(const QComboBox& box)
{
    return {box.currentIndex(), box.currentText()};
}

TEST_F(DetailDisplay, CodesShowAsTheirEntriesAndTickBackUnchanged)
{
    Open();
    // The second "Namibia", code 29, is shown as itself. The hands count
    // from 0, the other codes from 1.
    EXPECT_EQ(Chosen(Combo("homeCountry")), Entry(28, "Namibia"));
    EXPECT_EQ(Chosen(Combo("batPosition")), Entry(0, "Opener"));
    EXPECT_EQ(Chosen(Combo("bats")), Entry(1, "Left Handed"));
    EXPECT_EQ(Chosen(Combo("bowlType")), Entry(6, "None"));
    EXPECT_EQ(Chosen(Combo("bowls")), Entry(0, "Right Handed"));
    EXPECT_EQ(Chosen(Combo("fieldsAt")), Entry(1, "Close"));
    EXPECT_EQ(Chosen(Combo("team.homeCountry")), Entry(0, "Australia"));
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
    Combo("homeCountry").setCurrentIndex(2);
    Combo("batPosition").setCurrentIndex(5);
    Combo("bats").setCurrentIndex(0);
    Combo("bowlType").setCurrentIndex(0);
    Combo("bowls").setCurrentIndex(1);
    Combo("fieldsAt").setCurrentIndex(3);
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

}  // namespace
