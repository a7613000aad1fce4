// A box of the game's text: the rule that turns away what the files could
// not carry, and the code page between the box and the game.
#include "forms/beep.h"
#include "forms/game_text.h"
#include "forms/text_box.h"

#include <QApplication>
#include <QClipboard>
#include <QTest>

#include <gtest/gtest.h>

namespace {

class TextBoxTest : public ::testing::Test {
protected:
    TextBoxTest()
    {
        box.show();
        box.setFocus();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&box));
    }

    void Paste(const QString& text)
    {
        QApplication::clipboard()->setText(text);
        QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    }

    TextBox box;
};

}  // namespace

TEST_F(TextBoxTest, TextRuleJudgesTypingPastingAndTypingOverASelection)
{
    box.SetTextRule(
        [](const QString& text) { return text.contains(',') ? std::optional<QString>("no comma") : std::nullopt; });
    box.setText("Smith");
    const int before = BeepCount();

    QTest::keyClick(&box, Qt::Key_Home);
    QTest::keyClick(&box, Qt::Key_Right);
    QTest::keyClicks(&box, ",");
    EXPECT_EQ(box.text(), "Smith");
    EXPECT_EQ(box.cursorPosition(), 1);   // the caret stays where the user was typing
    QTest::keyClicks(&box, "x");
    EXPECT_EQ(box.text(), "Sxmith");

    Paste("a,b");
    EXPECT_EQ(box.text(), "Sxmith");
    Paste("ab");
    EXPECT_EQ(box.text(), "Sxabmith");
    EXPECT_EQ(BeepCount() - before, 2);

    // Selecting and typing over cannot dodge the rule.
    box.SetTextRule(
        [](const QString& text) { return text.size() == 1 ? std::optional<QString>("not one letter") : std::nullopt; });
    box.setText("abc");
    box.selectAll();
    QTest::keyClicks(&box, "z");
    EXPECT_EQ(box.text(), "abc");
    QTest::keyClick(&box, Qt::Key_End);
    QTest::keyClick(&box, Qt::Key_Backspace);
    QTest::keyClick(&box, Qt::Key_Backspace);
    EXPECT_EQ(box.text(), "ab");

    // A locked box takes no keys at all.
    box.setReadOnly(true);
    QTest::keyClicks(&box, "xy");
    Paste("z");
    EXPECT_EQ(box.text(), "ab");
}

TEST(GameText, RoundTripsEveryByteOfTheCodePageAndNamesOnlyWhatItCanHold)
{
    std::string all;
    for (int byte = 1; byte < 256; ++byte)
        all.push_back(static_cast<char>(byte));
    EXPECT_EQ(ToGame(FromGame(all)), all);
    EXPECT_EQ(FromGame("Zo\xEB\x80"), QString::fromUtf8("Zoë€"));
    EXPECT_EQ(ToGame(QString::fromUtf8("Łukasz")), "ukasz");

    // What the files cannot carry is refused in the core's tests; here, what
    // the code page cannot: "ŁQ" would be shortened to a storable "Q", but the
    // box must not let the user believe the whole name was kept.
    for (const char* name : {"Zoë", "Šimonek"})
        EXPECT_EQ(NameRefusalOf(QString::fromUtf8(name)), std::nullopt) << name;
    EXPECT_EQ(NameRefusalOf(QString::fromUtf8("ŁQ")).value_or(QString()), QString::fromUtf8("A name cannot hold the character Ł"));
    EXPECT_EQ(NameRefusalOf(QStringLiteral("O,Neil")).value_or(QString()), "A name cannot hold a comma");
}
