#include "newplayer/nplayer_form.h"

#include <QClipboard>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>

#include <gtest/gtest.h>

#include "forms/beep.h"
#include "forms/combo_box.h"
#include "forms/list_box.h"
#include "forms/message_box.h"
#include "forms/modal.h"
#include "forms/text_box.h"
#include "mainwindow/main_form.h"
#include "search/game_builder.h"

namespace {

constexpr int Club = 1;

// The main window on an Australian club of two players, the first shown.
class NewPlayerWindow : public ::testing::Test {
protected:
    NewPlayerWindow()
    {
        b.Players(4);
        b.Team(Club, "Harbour CC", {1, 2}).homeCountry = 1;
        main.RunStartupChain();
        main.Timer1->stop();
        ClearShownMessages();
        SetMessageAnswerer([](const ShownMessage&) { return IdOk; });
    }
    ~NewPlayerWindow() override
    {
        SetMessageAnswerer({});
        SetModalDriver({});
    }

    // Opens the window from the main window and lets `drive` work in it.
    void Open(std::function<void(NPlayerForm&)> drive)
    {
        SetModalDriver([drive](QDialog& shown) {
            if (auto* form = dynamic_cast<NPlayerForm*>(&shown))
                drive(*form);
        });
        OpenNewPlayerWindow(game, main);
    }

    // Types a good player into the window.
    static void TypeGoodPlayer(NPlayerForm& form)
    {
        const std::pair<int, const char*> typed[] = {
            {InitialsBox, "T"},   {SurnameBox, "Newcombe"}, {DayBox, "9"},         {MonthBox, "11"},
            {YearBox, "1982"},    {BatSkillBox, "33"},      {BatAggressionBox, "5"}, {BowlSkillBox, "48"},
            {BowlEconomyBox, "16"}, {FieldAbilityBox, "22"}, {PotentialBox, "14"},
        };
        for (const auto& [box, text] : typed)
            QTest::keyClicks(form.Text1[box], text);
    }

    GameBuilder b;
    Game& game = *b.game;
    MainForm main{game, SettingPlaces{}};
};

TEST_F(NewPlayerWindow, TheKeyFilterBeepsAtWhatABoxCannotTake)
{
    NPlayerForm form(game, main);
    form.show();
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

    // The names take any key the files can store, but no comma, nor a quote
    // to begin with.
    QTest::keyClicks(form.Text1[SurnameBox], "O'Neil-Smith 2nd,");
    QTest::keyClicks(form.Text1[InitialsBox], "\"a.b");
    EXPECT_EQ(form.Text1[SurnameBox]->Text(), "O'Neil-Smith 2nd");
    EXPECT_EQ(form.Text1[InitialsBox]->Text(), "a.b");
    EXPECT_EQ(BeepCount() - beeps, 6);
}

TEST_F(NewPlayerWindow, EveryOpeningStartsFromTheDefaults)
{
    int openings = 0;
    Open([&](NPlayerForm& form) {
        ++openings;
        EXPECT_EQ(form.parentWidget(), &main);
        EXPECT_EQ(form.Combo3->currentText(), "Australia");
        for (ComboBox* list : form.Combo4)
            EXPECT_EQ(list->ListIndex(), 0);
        for (TextBox* box : form.Text1)
            EXPECT_TRUE(!box || box->Text().isEmpty());
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
        EXPECT_EQ(QApplication::focusWidget(), form.Command1) << "the focus starts on OK";

        // Change everything, then leave with Cancel.
        form.Combo3->setCurrentIndex(5);
        for (ComboBox* list : form.Combo4)
            list->setCurrentIndex(1);
        TypeGoodPlayer(form);
        form.Command2->click();
    });
    OpenNewPlayerWindow(game, main);
    EXPECT_EQ(openings, 2);
    EXPECT_EQ(game.PlayerCount, 4) << "Cancel stores nothing";
    EXPECT_EQ(main.List1->ListCount(), 2);
}

// Pasting skips the key filter, but not the length limit; OK judges what
// was pasted like anything typed, and a refusal keeps the window and its entries.
TEST_F(NewPlayerWindow, ARefusedCommitKeepsTheWindowAndItsEntries)
{
    const auto paste = [](TextBox* box, const QString& text) {
        box->clear();
        QApplication::clipboard()->setText(text);
        box->paste();
    };
    Open([&](NPlayerForm& form) {
        form.Command1->click();  // nothing typed yet
        TypeGoodPlayer(form);
        const int beeps = BeepCount();
        paste(form.Text1[BatSkillBox], "-5");
        EXPECT_EQ(BeepCount(), beeps);
        form.Command1->click();
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(form.Text1[SurnameBox]->Text(), "Newcombe");
        EXPECT_EQ(form.Text1[BatSkillBox]->Text(), "-5");

        paste(form.Text1[YearBox], "19821");
        EXPECT_EQ(form.Text1[YearBox]->Text(), "1982");
    });
    ASSERT_EQ(ShownMessages().size(), 2u);
    for (const ShownMessage& message : ShownMessages()) {
        EXPECT_EQ(message.text, "Data not in correct range.Please see help for correct range of data values.");
        EXPECT_EQ(message.title, "Error");
        EXPECT_EQ(message.flags, MbInformation);
    }
    EXPECT_EQ(game.PlayerCount, 4);
    EXPECT_EQ(game.Teams[Club].squad[3], 0);
}

TEST_F(NewPlayerWindow, AGoodCommitJoinsTheSquadAndCloses)
{
    main.List1->SetText(main.List1->List(1));
    ASSERT_EQ(main.Label3->text(), "2");
    bool closed = false;
    Open([&](NPlayerForm& form) {
        TypeGoodPlayer(form);
        form.Combo3->setCurrentIndex(1);
        form.Command1->click();
        closed = !form.isVisible();
    });
    EXPECT_TRUE(closed);
    EXPECT_TRUE(ShownMessages().empty()) << "success is not announced";
    EXPECT_EQ(game.Players[5].surname, "Newcombe");
    EXPECT_EQ(game.Players[5].homeCountry, 2);
    EXPECT_EQ(Places(game.Teams[Club]), (std::vector<int>{1, 2, 5}));
    ASSERT_EQ(main.List1->ListCount(), 3);
    EXPECT_EQ(main.List1->ItemData(2), 5);
    EXPECT_EQ(main.List1->ListIndex(), -1);
    EXPECT_EQ(main.Label3->text(), "2") << "the player shown before stays shown";
}

TEST_F(NewPlayerWindow, HelpOpensOverTheWindowAndLeavesItAsItWas)
{
    QWidget* helpOwner = nullptr;
    SetModalDriver([&](QDialog& shown) {
        if (shown.objectName() == "Help1") {
            helpOwner = shown.parentWidget();
            return;
        }
        auto& form = dynamic_cast<NPlayerForm&>(shown);
        QTest::keyClicks(form.Text1[SurnameBox], "Kept");
        form.Command3->click();
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(form.Text1[SurnameBox]->Text(), "Kept");
        EXPECT_EQ(helpOwner, &form);
    });
    OpenNewPlayerWindow(game, main);
    EXPECT_NE(helpOwner, nullptr) << "Help1 was shown";
    EXPECT_EQ(game.PlayerCount, 4);
}

}  // namespace
