// How each field of a player and a team reaches its box and comes back, and
// that showing a record and ticking it back changes nothing the user did not.

#include "editor_fixture.h"

namespace {

using DetailDisplay = EditorTest;
using Entry = std::pair<int, QString>;

// The place and text of a code list's chosen entry.
Entry Chosen(const ComboBox& box)
{
    return {box.ListIndex(), box.currentText()};
}

TEST_F(DetailDisplay, CodesShowAsTheirEntriesAndTickBackUnchanged)
{
    Open();
    // The second "Namibia", code 29, is shown as itself. The hands count
    // from 0, the other codes from 1.
    EXPECT_EQ(Chosen(*main->Combo3), Entry(28, "Namibia"));
    EXPECT_EQ(Chosen(*main->Combo4[BatPositionCombo]), Entry(0, "Opener"));
    EXPECT_EQ(Chosen(*main->Combo4[BatsCombo]), Entry(1, "Left Handed"));
    EXPECT_EQ(Chosen(*main->Combo4[BowlTypeCombo]), Entry(6, "None"));
    EXPECT_EQ(Chosen(*main->Combo4[BowlsCombo]), Entry(0, "Right Handed"));
    EXPECT_EQ(Chosen(*main->Combo4[FieldsAtCombo]), Entry(1, "Close"));
    EXPECT_EQ(Chosen(*main->Combo4[TeamCountryCombo]), Entry(0, "Australia"));
    const auto before = std::make_unique<Game>(*game);
    Tick();
    EXPECT_EQ(game->Players[1], before->Players[1]);   // still code 29, not 13
    EXPECT_EQ(game->Teams[1], before->Teams[1]);
    main->List1->SetText("T Vanterpool");
    EXPECT_EQ(Chosen(*main->Combo3), Entry(12, "Namibia"));   // the first one, code 13

    // Codes with no entry leave their lists with nothing chosen, and the
    // tick leaves them as stored.
    main->List1->SetText(" Ormsby");
    EXPECT_EQ(main->Combo3->ListIndex(), -1);
    EXPECT_EQ(main->Combo4[BatPositionCombo]->ListIndex(), -1);
    Tick();
    EXPECT_EQ(game->Players[2], before->Players[2]);
}

TEST_F(DetailDisplay, EveryBoxShowsAndWritesItsOwnField)
{
    Open();
    struct Box {
        int box;
        QString shown, typed;
    };
    const std::vector<Box> boxes{
        {DayBox, "3", "28"},           {MonthBox, "11", "2"},          {YearBox, "1980", "1990"},
        {BatSkillBox, "52", "11"},     {BatAggressionBox, "7", "12"},  {BowlSkillBox, "-4", "13"},
        {BowlEconomyBox, "0", "14"},   {FieldAbilityBox, "38", "15"},  {PotentialBox, "16", "-16"},
        {InitialsBox, "H R", "J"},     {SurnameBox, "Quillfeather", "Quill"},
        {TeamNameBox, "Perth Pelicans", "Perth Pelicans II"},          {AbbreviationBox, "PPL", ""},
        {ReputationBox, "83", "90"},   {WealthBox, "-250", "-3000"},   {SupportBox, "81", "5"},
    };
    for (const Box& b : boxes) {
        EXPECT_EQ(BoxText(b.box), b.shown) << "Text1(" << b.box << ")";
        Retype(b.box, b.typed);
    }
    main->Combo3->setCurrentIndex(2);
    main->Combo4[BatPositionCombo]->setCurrentIndex(5);
    main->Combo4[BatsCombo]->setCurrentIndex(0);
    main->Combo4[BowlTypeCombo]->setCurrentIndex(0);
    main->Combo4[BowlsCombo]->setCurrentIndex(1);
    main->Combo4[FieldsAtCombo]->setCurrentIndex(3);
    QTest::keyClick(main->Combo4[TeamCountryCombo], Qt::Key_Down);
    // Number, team and the game's hidden value are never written.
    const PlayerRecord player{.playerNumber = 1, .initials = "J", .surname = "Quill", .birthDay = 28,
                              .birthMonth = 2, .birthYear = 1990, .homeCountry = 3, .teamNumber = 1,
                              .batPosition = 6, .bats = 0, .batSkill = 11, .batAggression = 12, .bowlType = 1,
                              .bowls = 1, .bowlSkill = 13, .bowlEconomy = 14, .fieldAbility = 15, .fieldsAt = 4,
                              .potential = -16, .carriedValue = 99};
    const TeamRecord team{.teamName = "Perth Pelicans II", .abbreviation = "", .homeCountry = 2, .teamNumber = 1,
                          .squad = SmallWorld().game->Teams[1].squad, .reputation = 90, .wealth = -3000, .support = 5};
    Tick();
    EXPECT_EQ(game->Players[1], player);
    EXPECT_EQ(game->Teams[1], team);
    // The team now stands under its new country, with its new name.
    main->Combo1->SetText("England");
    EXPECT_EQ(Rows(*main->Combo2), std::vector<QString>{"Perth Pelicans II"});
}

}  // namespace
