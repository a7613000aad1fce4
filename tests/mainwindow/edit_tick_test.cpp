// The tick that carries what the boxes hold into the current player and team.

#include "editor_fixture.h"
#include "forms/beep.h"

namespace {

using EditTick = EditorTest;

TEST_F(EditTick, ANumberReachesTheRecordAndAnythingElseLeavesTheLastGoodValue)
{
    Open();
    // Each text in turn, with the value the field holds after its tick.
    const std::vector<std::pair<QString, int>> cases{
        {"44", 44}, {" -7 ", -7}, {"13.5", 14}, {"1e2", 100}, {"abc", 100}, {"32768", 100},
        {"1,000", 100}, {"-32768", -32768}, {"5", 5}, {"", 5}, {" ", 5},
    };
    for (const auto& [text, value] : cases) {
        Retype(BatSkillBox, text);
        Tick();
        Tick();
        EXPECT_EQ(game->Players[1].batSkill, value) << text.toStdString();
        EXPECT_EQ(BoxText(BatSkillBox), text);   // the box keeps what was typed
    }
    EXPECT_EQ(BeepCount(), 0);   // no sound, no message: the box just waits
    EXPECT_TRUE(ShownMessages().empty());
}

TEST_F(EditTick, EveryBoxGoesToItsField)
{
    Open();
    main->Combo3->setCurrentIndex(2);
    main->Combo4[BatPositionCombo]->setCurrentIndex(5);
    main->Combo4[BatsCombo]->setCurrentIndex(0);
    main->Combo4[BowlTypeCombo]->setCurrentIndex(0);
    main->Combo4[BowlsCombo]->setCurrentIndex(1);
    main->Combo4[FieldsAtCombo]->setCurrentIndex(3);
    QTest::keyClick(main->Combo4[TeamCountryCombo], Qt::Key_Down);
    const std::vector<std::pair<int, QString>> typed{
        {DayBox, "28"},         {MonthBox, "2"},           {YearBox, "1990"},     {BatSkillBox, "11"},
        {BatAggressionBox, "12"}, {BowlSkillBox, "13"},    {BowlEconomyBox, "14"}, {FieldAbilityBox, "15"},
        {PotentialBox, "-16"},  {TeamNameBox, "Perth Pelicans II"}, {AbbreviationBox, ""}, {ReputationBox, "90"},
        {WealthBox, "-3000"},   {SupportBox, "5"},
    };
    for (const auto& [box, text] : typed)
        Retype(box, text);
    // Number, team and the game's hidden value are never written.
    const PlayerRecord player{.playerNumber = 1, .initials = "H R", .surname = "Quillfeather", .birthDay = 28,
                              .birthMonth = 2, .birthYear = 1990, .homeCountry = 3, .teamNumber = 1,
                              .batPosition = 6, .bats = 0, .batSkill = 11, .batAggression = 12, .bowlType = 1,
                              .bowls = 1, .bowlSkill = 13, .bowlEconomy = 14, .fieldAbility = 15, .fieldsAt = 4,
                              .potential = -16, .carriedValue = 99};
    const TeamRecord team{.teamName = "Perth Pelicans II", .abbreviation = "", .homeCountry = 2, .teamNumber = 1,
                          .squad = SmallWorld().game->Teams[1].squad, .reputation = 90, .wealth = -3000, .support = 5};
    Tick();
    EXPECT_EQ(game->Players[1], player);
    EXPECT_EQ(game->Teams[1], team);

    // The team keeps its entry until its new country is picked; then it
    // stands under that country with its new name.
    EXPECT_EQ(Rows(*main->Combo2), (std::vector<QString>{"Perth Pelicans", "Darwin Dingoes"}));
    main->Combo1->SetText("Australia");
    EXPECT_EQ(Rows(*main->Combo2), std::vector<QString>{"Darwin Dingoes"});
    main->Combo1->SetText("England");
    EXPECT_EQ(Rows(*main->Combo2), std::vector<QString>{"Perth Pelicans II"});
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
    EXPECT_EQ(Rows(*main->List1), (std::vector<QString>{"H R Quillfeathers", " Ormsby", "T Vanterpool"}));
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
    EXPECT_EQ(main->List1->List(0), "H QUILLFEATHERS");

    // A tick that finds the name unchanged leaves the list and its choice.
    main->List1->SetText(" Ormsby");
    Tick();
    EXPECT_EQ(main->List1->ListIndex(), 1);

    // A name edited after picking another team leaves that team's list.
    main->Combo2->SetText("Darwin Dingoes");
    Retype(SurnameBox, "Orms");
    Tick();
    EXPECT_EQ(game->Players[2].surname, "Orms");
    EXPECT_EQ(Rows(*main->List1), (std::vector<QString>{"K Ashgrove", "P J Brindle"}));
}

TEST_F(EditTick, NameBoxesRefuseWhatTheFilesCannotCarry)
{
    Open();
    for (int box : {InitialsBox, SurnameBox, TeamNameBox, AbbreviationBox}) {
        const int beeps = BeepCount();
        Retype(box, "\"O,Neil\"s");   // a quote inside a name is fine
        EXPECT_EQ(BoxText(box), "ONeil\"s") << "Text1(" << box << ")";
        EXPECT_EQ(BeepCount(), beeps + 2);
    }
    // The skill boxes take anything; the tick sorts out what is a number.
    Retype(BatSkillBox, "1,5");
    EXPECT_EQ(BoxText(BatSkillBox), "1,5");
}

}  // namespace
