#include "newplayerwindow/new_player_window.h"

#include <QClipboard>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QToolTip>

#include <gtest/gtest.h>

#include "forms/beep.h"
#include "forms/choice_list.h"
#include "forms/message_box.h"
#include "forms/modal.h"
#include "forms/text_box.h"
#include "editor/editor.h"
#include "support/game_builder.h"
#include "support/window_parts.h"

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
    Editor editor{SettingPlaces{}, std::move(b.game)};
    MainWindow& main = editor.Window();
    main.ShowFirstEntries();
    auto& squad = Find<ChoiceList>(main, "squadList");
    ClickRow(squad, 1);
    ASSERT_EQ(main.CurrentPlayer(), 2);
    ClearShownMessages();
    SetMessageAnswerer([](const ShownMessage&) { return QMessageBox::Ok; });

    bool closed = false;
    Press<NewPlayerWindow>(Find<QPushButton>(main, "addNewPlayerButton"), [&](NewPlayerWindow& form) {
        const auto box = [&](const char* name) { return &Find<TextBox>(form, name); };
        EXPECT_EQ(form.parentWidget(), &main);
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
        QTest::keyClicks(box("birthYear"), "198234");
        EXPECT_EQ(box("birthYear")->text(), "1982");
        // The names take any key the files can store, but no comma, nor a
        // quote to begin with.
        QTest::keyClicks(box("surname"), "O'Neil-Smith 2nd,");
        QTest::keyClicks(box("initials"), "\"a.b");
        EXPECT_EQ(box("surname")->text(), "O'Neil-Smith 2nd");
        EXPECT_EQ(box("initials")->text(), "a.b");
        EXPECT_EQ(QToolTip::text(), "A name cannot begin with a double quote") << "the refusal says why";
        EXPECT_EQ(BeepCount() - beeps, 6);

        Find<QPushButton>(form, "okButton").click();  // the date and most skills are still empty
        const std::pair<const char*, const char*> typed[] = {
            {"initials", "T"},     {"surname", "Newcombe"}, {"birthDay", "9"},           {"birthMonth", "11"},
            {"birthYear", "1982"},      {"batSkill", "33"},      {"batAggression", "5"}, {"bowlSkill", "48"},
            {"bowlEconomy", "16"}, {"fieldAbility", "22"},  {"potential", "14"},
        };
        for (const auto& [name, text] : typed) {
            box(name)->clear();
            QTest::keyClicks(box(name), text);
        }
        Paste(skill, "-5");
        EXPECT_EQ(BeepCount() - beeps, 6);
        Find<QPushButton>(form, "okButton").click();
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(box("surname")->text(), "Newcombe");
        EXPECT_EQ(skill->text(), "-5");
        EXPECT_EQ(game.PlayerCount, 4);
        EXPECT_EQ(game.Teams[Club].squad[3], 0);
        Paste(box("birthYear"), "19821");
        EXPECT_EQ(box("birthYear")->text(), "1982");

        Paste(skill, "33");
        Find<QComboBox>(form, "homeCountry").setCurrentIndex(1);
        Find<QPushButton>(form, "okButton").click();
        closed = !form.isVisible();
    });
    SetMessageAnswerer({});
    ASSERT_EQ(ShownMessages().size(), 2u) << "success is not announced";
    // Each refusal names the first box at fault (which one is the core's FirstBadEntry).
    const QString refusal = "Data not in correct range.Please see help for correct range of data values.\n\n";
    const char* said[] = {"Date of birth is empty.", "Bat skill must lie from 0 to 60, not -5."};
    for (std::size_t i = 0; i < std::size(said); ++i)
        EXPECT_EQ(ShownMessages()[i].text, refusal + said[i]);
    for (const ShownMessage& message : ShownMessages()) {
        EXPECT_EQ(message.title, "Error");
        EXPECT_EQ(Look(message), Look(QMessageBox::Information));
    }
    EXPECT_TRUE(closed);
    EXPECT_EQ(game.Players[5].surname, "Newcombe");
    EXPECT_EQ(game.Players[5].homeCountry, 2);
    EXPECT_EQ(Places(game.Teams[Club]), (std::vector<int>{1, 2, 5}));
    ASSERT_EQ(squad.count(), 3);
    EXPECT_EQ(squad.NumberAt(2), 5);
    EXPECT_EQ(squad.ChosenRow(), 1);
    EXPECT_EQ(main.CurrentPlayer(), 2) << "the player shown before stays shown and chosen";
}

}  // namespace
