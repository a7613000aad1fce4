#include "newplayer/nplayer_form.h"

#include <QClipboard>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "forms/beep.h"
#include "forms/combo_box.h"
#include "forms/list_box.h"
#include "forms/message_box.h"
#include "forms/modal.h"
#include "forms/text_box.h"
#include "mainwindow/main_form.h"

namespace {

constexpr int Club = 1;
constexpr int FirstSquadSize = 2;

const QString BadEntriesText =
    QStringLiteral("Data not in correct range.Please see help for correct range of data values.");

// The main window on an Australian club of two players, the first shown.
class NewPlayerWindow : public ::testing::Test {
protected:
    NewPlayerWindow()
    {
        game->PlayerCount = 4;
        game->TeamCount = 3;
        game->Teams[Club].teamName = "Harbour CC";
        game->Teams[Club].homeCountry = 1;
        game->Teams[Club].teamNumber = Club;
        const char* surnames[] = {"", "Venn", "Quill", "Marlowe", "Ashdown"};
        for (std::int16_t p = 1; p <= 4; ++p) {
            game->Players[p].playerNumber = p;
            game->Players[p].surname = surnames[p];
        }
        game->Teams[Club].squad[1] = 1;
        game->Teams[Club].squad[2] = 2;
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

    // Types a good player into the window, leaving one box to the test.
    static void TypeGoodPlayer(NPlayerForm& form)
    {
        QTest::keyClicks(form.Text1[InitialsBox], "T");
        QTest::keyClicks(form.Text1[SurnameBox], "Newcombe");
        QTest::keyClicks(form.Text1[DayBox], "9");
        QTest::keyClicks(form.Text1[MonthBox], "11");
        QTest::keyClicks(form.Text1[YearBox], "1982");
        QTest::keyClicks(form.Text1[BatSkillBox], "33");
        QTest::keyClicks(form.Text1[BatAggressionBox], "5");
        QTest::keyClicks(form.Text1[BowlSkillBox], "48");
        QTest::keyClicks(form.Text1[BowlEconomyBox], "16");
        QTest::keyClicks(form.Text1[FieldAbilityBox], "22");
        QTest::keyClicks(form.Text1[PotentialBox], "14");
    }

    std::unique_ptr<Game> game = std::make_unique<Game>();
    MainForm main{*game, SettingPlaces{}};
};

NPlayerForm& AsNewPlayer(QDialog& form)
{
    return dynamic_cast<NPlayerForm&>(form);
}

}  // namespace

TEST_F(NewPlayerWindow, NumberBoxesTakeDigitsAndBackspaceOnly)
{
    NPlayerForm form(*game, main);
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
    EXPECT_EQ(BeepCount() - beeps, 4);
}

TEST_F(NewPlayerWindow, NameBoxesTakeAnyKeyTheFilesCanStore)
{
    NPlayerForm form(*game, main);
    form.show();
    const int beeps = BeepCount();
    QTest::keyClicks(form.Text1[SurnameBox], "O'Neil-Smith 2nd");
    QTest::keyClicks(form.Text1[InitialsBox], "a.b");
    EXPECT_EQ(form.Text1[SurnameBox]->Text(), "O'Neil-Smith 2nd");
    EXPECT_EQ(form.Text1[InitialsBox]->Text(), "a.b");
    EXPECT_EQ(BeepCount(), beeps);

    QTest::keyClicks(form.Text1[SurnameBox], ",");
    EXPECT_EQ(form.Text1[SurnameBox]->Text(), "O'Neil-Smith 2nd");
    form.Text1[InitialsBox]->clear();
    QTest::keyClicks(form.Text1[InitialsBox], "\"");
    EXPECT_EQ(form.Text1[InitialsBox]->Text(), "");
    EXPECT_EQ(BeepCount() - beeps, 2);
}

TEST_F(NewPlayerWindow, TabRunsDownTheLeftColumnThenTheRight)
{
    NPlayerForm form(*game, main);
    const std::vector<QWidget*> expected{
        form.Command1,           form.Text1[InitialsBox],      form.Text1[SurnameBox],
        form.Text1[DayBox],      form.Text1[MonthBox],         form.Text1[YearBox],
        form.Combo3,             form.Combo4[BatPositionCombo], form.Combo4[BatsCombo],
        form.Text1[BatSkillBox], form.Text1[BatAggressionBox], form.Combo4[BowlTypeCombo],
        form.Combo4[BowlsCombo], form.Text1[BowlSkillBox],     form.Text1[BowlEconomyBox],
        form.Text1[FieldAbilityBox], form.Combo4[FieldsAtCombo], form.Text1[PotentialBox],
        form.Command2,           form.Command3,
    };
    std::vector<QWidget*> order{form.Command1};
    for (QWidget* w = form.Command1->nextInFocusChain(); w != form.Command1; w = w->nextInFocusChain()) {
        if (w->focusPolicy() & Qt::TabFocus)
            order.push_back(w);
    }
    EXPECT_EQ(order, expected);
}

TEST_F(NewPlayerWindow, EveryOpeningStartsFromTheDefaults)
{
    int openings = 0;
    SetModalDriver([&](QDialog& shown) {
        NPlayerForm& form = AsNewPlayer(shown);
        ++openings;
        EXPECT_EQ(form.parentWidget(), &main);
        EXPECT_EQ(form.windowTitle(), "New Player");
        EXPECT_EQ(form.Combo3->currentText(), "Australia");
        EXPECT_EQ(form.Combo4[BatPositionCombo]->currentText(), "Opener");
        EXPECT_EQ(form.Combo4[BatsCombo]->currentText(), "Right Handed");
        EXPECT_EQ(form.Combo4[BowlTypeCombo]->currentText(), "F");
        EXPECT_EQ(form.Combo4[BowlsCombo]->currentText(), "Right Handed");
        EXPECT_EQ(form.Combo4[FieldsAtCombo]->currentText(), "WK");
        for (TextBox* box : form.Text1) {
            if (box) {
                EXPECT_EQ(box->Text(), "");
            }
        }
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
        EXPECT_EQ(QApplication::focusWidget(), form.Command1) << "the focus starts on OK";

        // Change everything, then leave with Cancel.
        form.Combo3->setCurrentIndex(5);
        form.Combo4[FieldsAtCombo]->setCurrentIndex(3);
        TypeGoodPlayer(form);
        form.Command2->click();
    });
    OpenNewPlayerWindow(*game, main);
    OpenNewPlayerWindow(*game, main);
    EXPECT_EQ(openings, 2);
    EXPECT_EQ(game->PlayerCount, 4) << "Cancel stores nothing";
    EXPECT_EQ(main.List1->ListCount(), FirstSquadSize);
}

TEST_F(NewPlayerWindow, ARefusedCommitKeepsTheWindowAndItsEntries)
{
    SetModalDriver([&](QDialog& shown) {
        NPlayerForm& form = AsNewPlayer(shown);
        form.Command1->click();  // nothing typed yet
        TypeGoodPlayer(form);
        form.Text1[FieldAbilityBox]->clear();
        QTest::keyClicks(form.Text1[FieldAbilityBox], "41");
        form.Command1->click();

        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(form.Text1[SurnameBox]->Text(), "Newcombe");
        EXPECT_EQ(form.Text1[FieldAbilityBox]->Text(), "41");
    });
    OpenNewPlayerWindow(*game, main);

    ASSERT_EQ(ShownMessages().size(), 2u);
    for (const ShownMessage& message : ShownMessages()) {
        EXPECT_EQ(message.text, BadEntriesText);
        EXPECT_EQ(message.title, "Error");
        EXPECT_EQ(message.flags, MbInformation);
    }
    EXPECT_EQ(game->PlayerCount, 4);
    EXPECT_EQ(game->Teams[Club].squad[3], 0);
}

TEST_F(NewPlayerWindow, AGoodCommitJoinsTheSquadAndCloses)
{
    main.List1->SetText(main.List1->List(1));
    ASSERT_EQ(main.Label3->text(), "2");
    bool closed = false;
    SetModalDriver([&](QDialog& shown) {
        NPlayerForm& form = AsNewPlayer(shown);
        TypeGoodPlayer(form);
        form.Combo3->setCurrentIndex(1);
        form.Command1->click();
        closed = !form.isVisible();
    });
    OpenNewPlayerWindow(*game, main);

    EXPECT_TRUE(closed);
    EXPECT_TRUE(ShownMessages().empty()) << "success is not announced";
    EXPECT_EQ(game->PlayerCount, 5);
    EXPECT_EQ(game->Players[5].surname, "Newcombe");
    EXPECT_EQ(game->Players[5].homeCountry, 2);
    EXPECT_EQ(game->Players[5].teamNumber, Club);
    ASSERT_EQ(main.List1->ListCount(), FirstSquadSize + 1);
    EXPECT_EQ(main.List1->ItemData(FirstSquadSize), 5);
    EXPECT_EQ(main.List1->ListIndex(), -1);
    EXPECT_EQ(main.Label3->text(), "2") << "the player shown before stays shown";
}

// Pasting skips the key filter; the length limit still holds, and OK judges
// what was pasted like anything typed.
TEST_F(NewPlayerWindow, PastedTextIsTakenAndJudgedAtOk)
{
    const auto pasteInto = [](TextBox* box, const QString& text) {
        box->clear();
        QApplication::clipboard()->setText(text);
        box->paste();
    };
    SetModalDriver([&](QDialog& shown) {
        NPlayerForm& form = AsNewPlayer(shown);
        TypeGoodPlayer(form);
        const int beeps = BeepCount();
        pasteInto(form.Text1[BatSkillBox], "-5");
        EXPECT_EQ(form.Text1[BatSkillBox]->Text(), "-5");
        EXPECT_EQ(BeepCount(), beeps);
        form.Command1->click();
        EXPECT_TRUE(form.isVisible()) << "a negative skill is refused";

        pasteInto(form.Text1[BatSkillBox], "6e1");
        EXPECT_EQ(form.Text1[BatSkillBox]->Text(), "6e") << "two characters at most";
        pasteInto(form.Text1[BatSkillBox], "+9");
        pasteInto(form.Text1[PotentialBox], ".5");
        pasteInto(form.Text1[YearBox], "19821");
        EXPECT_EQ(form.Text1[YearBox]->Text(), "1982");
        form.Command1->click();
    });
    OpenNewPlayerWindow(*game, main);

    EXPECT_EQ(ShownMessages().size(), 1u);
    EXPECT_EQ(game->PlayerCount, 5);
    EXPECT_EQ(game->Players[5].batSkill, 9);
    EXPECT_EQ(game->Players[5].potential, 0) << "a half goes to the even number";
    EXPECT_EQ(game->Players[5].birthYear, 1982);
}

TEST_F(NewPlayerWindow, HelpOpensOverTheWindowAndLeavesItAsItWas)
{
    QWidget* helpOwner = nullptr;
    SetModalDriver([&](QDialog& shown) {
        if (shown.objectName() == "Help1") {
            helpOwner = shown.parentWidget();
            return;
        }
        NPlayerForm& form = AsNewPlayer(shown);
        QTest::keyClicks(form.Text1[SurnameBox], "Kept");
        form.Command3->click();
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(form.Text1[SurnameBox]->Text(), "Kept");
        EXPECT_EQ(helpOwner, &form);
    });
    OpenNewPlayerWindow(*game, main);
    EXPECT_NE(helpOwner, nullptr) << "Help1 was shown";
    EXPECT_EQ(game->PlayerCount, 4);
}

TEST_F(NewPlayerWindow, AFullGameRefusesBeforeTheWindowOpens)
{
    game->PlayerCount = MaxPlayers;
    bool opened = false;
    SetModalDriver([&](QDialog&) { opened = true; });
    OpenNewPlayerWindow(*game, main);

    EXPECT_FALSE(opened);
    ASSERT_EQ(ShownMessages().size(), 1u);
    EXPECT_EQ(ShownMessages()[0].text, "The game already holds its maximum of 2000 players.");
    EXPECT_EQ(ShownMessages()[0].flags, MbInformation);
    EXPECT_EQ(game->PlayerCount, MaxPlayers);
}
