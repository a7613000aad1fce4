#include "newplayerwindow/nplayer_form.h"

#include <QClipboard>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include "forms/beep.h"
#include "forms/combo_box.h"
#include "forms/list_box.h"
#include "forms/message_box.h"
#include "forms/modal.h"
#include "forms/text_box.h"
#include "mainwindow/main_form.h"
#include "support/game_builder.h"

namespace {

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
TEST(NewPlayerWindow, FromTheKeyFilterToTheNewPlayerInTheSquad)
{
    constexpr int Club = 1;
    GameBuilder b;  // the main window on an Australian club of two players
    b.Players(4);
    b.Team(Club, "Harbour CC", {1, 2}).homeCountry = 1;
    Game& game = *b.game;
    MainForm main{game, SettingPlaces{}};
    main.RunStartupChain();
    main.Timer1->stop();
    main.List1->SetText(main.List1->List(1));
    ASSERT_EQ(main.Label3->text(), "2");
    ClearShownMessages();
    SetMessageAnswerer([](const ShownMessage&) { return IdOk; });

    bool closed = false;
    SetModalDriver([&](QDialog& shown) {
        auto& form = dynamic_cast<NPlayerForm&>(shown);
        EXPECT_EQ(form.parentWidget(), &main);
        TextBox* skill = form.Text1[BatSkillBox];
        const int beeps = BeepCount();
        QTest::keyClicks(skill, "a-.");
        QTest::keyClick(skill, Qt::Key_Return);
        EXPECT_EQ(skill->Text(), "");
        EXPECT_EQ(BeepCount() - beeps, 4);
        EXPECT_TRUE(form.isVisible()) << "Enter in a number box presses no button";
        QTest::keyClicks(skill, "456");
        EXPECT_EQ(skill->Text(), "45") << "two digits at most";
        QTest::keyClick(skill, Qt::Key_Backspace);
        EXPECT_EQ(skill->Text(), "4");
        QTest::keyClicks(form.Text1[YearBox], "198234");
        EXPECT_EQ(form.Text1[YearBox]->Text(), "1982");
        for (int box : {DayBox, MonthBox})
            EXPECT_EQ(form.Text1[box]->maxLength(), 2);
        // The names take any key the files can store, but no comma, nor a
        // quote to begin with.
        QTest::keyClicks(form.Text1[SurnameBox], "O'Neil-Smith 2nd,");
        QTest::keyClicks(form.Text1[InitialsBox], "\"a.b");
        EXPECT_EQ(form.Text1[SurnameBox]->Text(), "O'Neil-Smith 2nd");
        EXPECT_EQ(form.Text1[InitialsBox]->Text(), "a.b");
        EXPECT_EQ(BeepCount() - beeps, 6);

        form.Command1->click();  // the date and most skills are still empty
        const std::pair<int, const char*> typed[] = {
            {InitialsBox, "T"},     {SurnameBox, "Newcombe"}, {DayBox, "9"},           {MonthBox, "11"},
            {YearBox, "1982"},      {BatSkillBox, "33"},      {BatAggressionBox, "5"}, {BowlSkillBox, "48"},
            {BowlEconomyBox, "16"}, {FieldAbilityBox, "22"},  {PotentialBox, "14"},
        };
        for (const auto& [box, text] : typed) {
            form.Text1[box]->clear();
            QTest::keyClicks(form.Text1[box], text);
        }
        Paste(skill, "-5");
        EXPECT_EQ(BeepCount() - beeps, 6);
        form.Command1->click();
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(form.Text1[SurnameBox]->Text(), "Newcombe");
        EXPECT_EQ(skill->Text(), "-5");
        EXPECT_EQ(game.PlayerCount, 4);
        EXPECT_EQ(game.Teams[Club].squad[3], 0);
        Paste(form.Text1[YearBox], "19821");
        EXPECT_EQ(form.Text1[YearBox]->Text(), "1982");

        Paste(skill, "33");
        form.Combo3->setCurrentIndex(1);
        form.Command1->click();
        closed = !form.isVisible();
    });
    OpenNewPlayerWindow(game, main);
    SetModalDriver({});
    SetMessageAnswerer({});
    ASSERT_EQ(ShownMessages().size(), 2u) << "success is not announced";
    for (const ShownMessage& message : ShownMessages()) {
        EXPECT_EQ(message.text, "Data not in correct range.Please see help for correct range of data values.");
        EXPECT_EQ(message.title, "Error");
        EXPECT_EQ(message.flags, MbInformation);
    }
    EXPECT_TRUE(closed);
    EXPECT_EQ(game.Players[5].surname, "Newcombe");
    EXPECT_EQ(game.Players[5].homeCountry, 2);
    EXPECT_EQ(Places(game.Teams[Club]), (std::vector<int>{1, 2, 5}));
    ASSERT_EQ(main.List1->ListCount(), 3);
    EXPECT_EQ(main.List1->ItemData(2), 5);
    EXPECT_EQ(main.List1->ListIndex(), -1);
    EXPECT_EQ(main.Label3->text(), "2") << "the player shown before stays shown";
}

}  // namespace
