// The tick that carries what the boxes hold into the current player and team.

#include <QLabel>
#include <QTest>
#include <QTimer>

#include "editor_fixture.h"
#include "forms/beep.h"
#include "forms/combo_box.h"
#include "forms/list_box.h"
#include "forms/text_box.h"

namespace {

using EditTick = EditorTest;

TEST_F(EditTick, TextsThatAreNumbersReachTheRecord)
{
    Open();
    const std::vector<std::pair<QString, int>> cases{
        {"44", 44}, {" -7 ", -7}, {"+8", 8}, {"12.5", 12}, {"13.5", 14}, {"1e2", 100},
        {"500", 500}, {"-32768", -32768},
    };
    for (const auto& [text, value] : cases) {
        Retype(BatSkillBox, text);
        Tick();
        EXPECT_EQ(game->Players[1].batSkill, value) << text.toStdString();
        EXPECT_EQ(main->Text1[BatSkillBox]->Text(), text);   // the box keeps what was typed
    }
}

TEST_F(EditTick, TextsThatAreNoNumbersLeaveTheLastGoodValue)
{
    Open();
    for (const QString text : {"abc", "32768", "1,000", "0x10", "", " "}) {
        Retype(BowlEconomyBox, "6");
        Tick();
        Retype(BowlEconomyBox, text);
        Tick();
        Tick();
        EXPECT_EQ(game->Players[1].bowlEconomy, 6) << text.toStdString();
        EXPECT_EQ(main->Text1[BowlEconomyBox]->Text(), text);
    }
    EXPECT_EQ(BeepCount(), 0);   // no sound, no message: the box just waits
    EXPECT_TRUE(ShownMessages().empty());
}

TEST_F(EditTick, DeletingDigitsOneByOneKeepsTheLastNumberStanding)
{
    Open();
    TextBox& skill = *main->Text1[BatSkillBox];
    skill.setFocus();
    skill.end(false);
    QTest::keyClick(&skill, Qt::Key_Backspace);
    Tick();
    EXPECT_EQ(game->Players[1].batSkill, 5);
    QTest::keyClick(&skill, Qt::Key_Backspace);
    Tick();
    EXPECT_EQ(skill.Text(), "");
    EXPECT_EQ(game->Players[1].batSkill, 5);

    // Emptied at one stroke, the box leaves the value from before.
    Retype(FieldAbilityBox, "");
    Tick();
    EXPECT_EQ(game->Players[1].fieldAbility, 38);
}

TEST_F(EditTick, EveryBoxOfThePlayerGoesToItsField)
{
    Open();
    main->Combo3->setCurrentIndex(2);
    main->Combo4[BatPositionCombo]->setCurrentIndex(5);
    main->Combo4[BatsCombo]->setCurrentIndex(0);
    main->Combo4[BowlTypeCombo]->setCurrentIndex(0);
    main->Combo4[BowlsCombo]->setCurrentIndex(1);
    main->Combo4[FieldsAtCombo]->setCurrentIndex(3);
    const std::vector<std::pair<int, QString>> typed{
        {DayBox, "28"},        {MonthBox, "2"},          {YearBox, "1990"},
        {BatSkillBox, "11"},   {BatAggressionBox, "12"}, {BowlSkillBox, "13"},
        {BowlEconomyBox, "14"}, {FieldAbilityBox, "15"}, {PotentialBox, "-16"},
    };
    for (const auto& [box, text] : typed)
        Retype(box, text);
    Tick();

    // Number, team and the game's hidden value are never written.
    PlayerRecord expected = SmallWorld().game->Players[1];
    expected.homeCountry = 3;
    expected.batPosition = 6;
    expected.bats = 0;
    expected.bowlType = 1;
    expected.bowls = 1;
    expected.fieldsAt = 4;
    expected.birthDay = 28;
    expected.birthMonth = 2;
    expected.birthYear = 1990;
    expected.batSkill = 11;
    expected.batAggression = 12;
    expected.bowlSkill = 13;
    expected.bowlEconomy = 14;
    expected.fieldAbility = 15;
    expected.potential = -16;
    EXPECT_EQ(game->Players[1], expected);
}

TEST_F(EditTick, EveryBoxOfTheTeamGoesToItsField)
{
    Open();
    Retype(TeamNameBox, "Perth Pelicans II");
    Retype(AbbreviationBox, "");
    Retype(ReputationBox, "90");
    Retype(WealthBox, "-3000");
    Retype(SupportBox, "5");
    QTest::keyClick(main->Combo4[TeamCountryCombo], Qt::Key_Down);
    Tick();

    const TeamRecord& perth = game->Teams[1];
    EXPECT_EQ(perth.teamName, "Perth Pelicans II");
    EXPECT_EQ(perth.abbreviation, "");
    EXPECT_EQ(perth.reputation, 90);
    EXPECT_EQ(perth.wealth, -3000);
    EXPECT_EQ(perth.support, 5);
    EXPECT_EQ(perth.homeCountry, 2);
    EXPECT_EQ(perth.teamNumber, 1);
    EXPECT_EQ(perth.squad, SmallWorld().game->Teams[1].squad);

    // The team keeps its entry until its new country is picked; then it
    // stands under that country with its new name.
    EXPECT_EQ(TeamEntries(), (std::vector<QString>{"Perth Pelicans", "Darwin Dingoes"}));
    main->Combo1->SetText("Australia");
    EXPECT_EQ(TeamEntries(), std::vector<QString>{"Darwin Dingoes"});
    main->Combo1->SetText("England");
    EXPECT_EQ(TeamEntries(), std::vector<QString>{"Perth Pelicans II"});
}

TEST_F(EditTick, ANewNameRebuildsTheSquadListAndKeepsThePlayer)
{
    Open();
    TextBox& surname = *main->Text1[SurnameBox];
    surname.setFocus();
    surname.end(false);
    QTest::keyClicks(&surname, "s");
    const int caret = surname.cursorPosition();
    Tick();

    EXPECT_EQ(game->Players[1].surname, "Quillfeathers");
    EXPECT_EQ(SquadRows(), (std::vector<QString>{"H R Quillfeathers", " Ormsby", "T Vanterpool"}));
    EXPECT_EQ(main->List1->ListIndex(), -1);
    EXPECT_EQ(main->Label3->text(), "1");
    // The box being typed in is left alone.
    EXPECT_EQ(QApplication::focusWidget(), &surname);
    EXPECT_EQ(surname.cursorPosition(), caret);

    // A change of case alone is a new name; initials count too.
    Retype(SurnameBox, "QUILLFEATHERS");
    Tick();
    EXPECT_EQ(main->List1->List(0), "H R QUILLFEATHERS");
    Retype(InitialsBox, "H");
    Tick();
    EXPECT_EQ(game->Players[1].initials, "H");
    EXPECT_EQ(main->List1->List(0), "H QUILLFEATHERS");

    // A tick that finds the name unchanged leaves the list and its choice.
    main->List1->SetText(" Ormsby");
    Tick();
    EXPECT_EQ(main->List1->ListIndex(), 1);
}

TEST_F(EditTick, ANameEditedAfterPickingAnotherTeamLeavesThatTeamsList)
{
    Open();
    main->Combo2->SetText("Darwin Dingoes");
    Retype(SurnameBox, "Quillon");
    Tick();
    EXPECT_EQ(game->Players[1].surname, "Quillon");
    EXPECT_EQ(SquadRows(), (std::vector<QString>{"K Ashgrove", "P J Brindle"}));
}

TEST_F(EditTick, NameBoxesRefuseWhatTheFilesCannotCarry)
{
    Open();
    for (int box : {InitialsBox, SurnameBox, TeamNameBox, AbbreviationBox}) {
        const int beeps = BeepCount();
        Retype(box, "\"O,Neil");
        EXPECT_EQ(main->Text1[std::size_t(box)]->Text(), "ONeil") << "Text1(" << box << ")";
        EXPECT_EQ(BeepCount(), beeps + 2);
        // A quote inside a name is fine.
        QTest::keyClicks(main->Text1[std::size_t(box)], "\"s");
        EXPECT_EQ(main->Text1[std::size_t(box)]->Text(), "ONeil\"s");
    }
    // The skill boxes take anything; the tick sorts out what is a number.
    Retype(BatSkillBox, "1,5");
    EXPECT_EQ(main->Text1[BatSkillBox]->Text(), "1,5");
}

TEST_F(EditTick, TheTimerCarriesAnEditWithoutHelp)
{
    Open();
    Retype(PotentialBox, "19");
    EXPECT_TRUE(QTest::qWaitFor([&] { return game->Players[1].potential == 19; }, 2000));
}

}  // namespace
