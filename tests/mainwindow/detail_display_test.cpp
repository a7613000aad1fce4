// How each field of a player and a team reaches its box, and that showing
// a record and ticking it back changes nothing the user did not change.

#include "editor_fixture.h"

namespace {

using DetailDisplay = EditorTest;
using Entry = std::pair<int, QString>;

// The place and text of a code list's chosen entry.
Entry Chosen(const ComboBox& box)
{
    return {box.ListIndex(), box.currentText()};
}

TEST_F(DetailDisplay, EveryFieldOfThePlayerAndTeamInItsBox)
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

    const std::vector<std::pair<int, QString>> boxes{
        {DayBox, "3"},          {MonthBox, "11"},           {YearBox, "1980"},         {BatSkillBox, "52"},
        {BatAggressionBox, "7"}, {BowlSkillBox, "-4"},       {BowlEconomyBox, "0"},     {FieldAbilityBox, "38"},
        {PotentialBox, "16"},   {InitialsBox, "H R"},       {SurnameBox, "Quillfeather"},
        {TeamNameBox, "Perth Pelicans"}, {AbbreviationBox, "PPL"}, {ReputationBox, "83"}, {WealthBox, "-250"},
        {SupportBox, "81"},
    };
    for (const auto& [box, text] : boxes)
        EXPECT_EQ(BoxText(box), text) << "Text1(" << box << ")";
    // A long value is shown from its start.
    EXPECT_EQ(main->Text1[SurnameBox]->cursorPosition(), 0);
}

TEST_F(DetailDisplay, ShowingAndTickingChangesNoStoredCode)
{
    Open();
    const auto before = std::make_unique<Game>(*game);
    Tick();
    EXPECT_EQ(game->Players[1], before->Players[1]);   // still code 29, not 13
    EXPECT_EQ(game->Teams[1], before->Teams[1]);

    // Codes with no entry leave their lists with nothing chosen, and the
    // tick leaves them as stored.
    main->List1->SetText(" Ormsby");
    EXPECT_EQ(main->Combo3->ListIndex(), -1);
    EXPECT_EQ(main->Combo4[BatPositionCombo]->ListIndex(), -1);
    EXPECT_EQ(Chosen(*main->Combo4[BatsCombo]), Entry(0, "Right Handed"));
    EXPECT_EQ(Chosen(*main->Combo4[BowlsCombo]), Entry(1, "Left Handed"));
    EXPECT_EQ(Chosen(*main->Combo4[FieldsAtCombo]), Entry(3, "Boundary"));
    Tick();
    EXPECT_EQ(game->Players[2], before->Players[2]);

    // A list with nothing chosen takes the user's pick.
    main->List1->SetText(" Ormsby");
    QTest::keyClick(main->Combo3, Qt::Key_Down);
    ASSERT_GE(main->Combo3->ListIndex(), 0);
    Tick();
    EXPECT_EQ(game->Players[2].homeCountry, main->Combo3->ListIndex() + 1);
}

TEST_F(DetailDisplay, AnotherPlayerReplacesEveryBoxOfTheLast)
{
    Open();
    main->Combo3->setCurrentIndex(5);
    Retype(YearBox, "nineteen");
    Retype(SurnameBox, "Quill");
    Tick();
    main->List1->SetText("T Vanterpool");
    EXPECT_EQ(main->Combo3->ListIndex(), 12);   // the first "Namibia", code 13
    EXPECT_EQ(Chosen(*main->Combo4[BowlTypeCombo]), Entry(8, "LB"));
    EXPECT_EQ(BoxText(YearBox), "0");
    EXPECT_EQ(BoxText(SurnameBox), "Vanterpool");

    main->List1->SetText("H R Quill");
    EXPECT_EQ(main->Combo3->currentText(), "South Africa");
    EXPECT_EQ(BoxText(YearBox), "1980");

    // Picking the chosen row again shows the record afresh too.
    Retype(BatSkillBox, "many");
    main->List1->SetText("H R Quill");
    EXPECT_EQ(BoxText(BatSkillBox), "52");
}

}  // namespace
