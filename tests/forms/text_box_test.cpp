#include "forms/beep.h"
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

    int BeepsSince(int before) const { return BeepCount() - before; }

    TextBox box;
    std::vector<int> seen;
};

// Digits, Backspace and Enter only, as the number boxes take them.
void DigitsOnly(int& key)
{
    if (key != 8 && key != 13 && (key < '0' || key > '9'))
        key = 0;
}

}  // namespace

TEST_F(TextBoxTest, KeyFilterSeesTypedCharactersOnly)
{
    box.SetKeyFilter([this](int& key) { seen.push_back(key); });
    box.setText("ab");
    QTest::keyClicks(&box, "x1 ");
    QTest::keyClick(&box, Qt::Key_Backspace);
    QTest::keyClick(&box, Qt::Key_Return);
    QTest::keyClick(&box, Qt::Key_Left);
    QTest::keyClick(&box, Qt::Key_Home);
    QTest::keyClick(&box, Qt::Key_Tab);
    QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&box, Qt::Key_C, Qt::ControlModifier);
    QTest::keyClick(&box, Qt::Key_Delete);
    QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_Eacute, QString(QChar(0xE9)), Qt::NoModifier);   // é, the same code in the game's code page
    EXPECT_EQ(seen, (std::vector<int>{'x', '1', ' ', 8, 13, 0xE9}));
}

TEST_F(TextBoxTest, RefusedKeysBeepAndChangeNothing)
{
    box.SetKeyFilter(DigitsOnly);
    box.setText("12");
    const int before = BeepCount();
    QTest::keyClicks(&box, "3a-4");
    EXPECT_EQ(box.Text(), "1234");
    EXPECT_EQ(BeepsSince(before), 2);

    box.SetKeyFilter([](int& key) {
        if (key == 8)
            key = 0;
    });
    QTest::keyClick(&box, Qt::Key_Backspace);
    EXPECT_EQ(box.Text(), "1234");
    EXPECT_EQ(BeepsSince(before), 3);
}

TEST_F(TextBoxTest, KeyFilterMayReplaceTheKey)
{
    box.SetKeyFilter([](int& key) {
        if (key >= 'a' && key <= 'z')
            key -= 'a' - 'A';
    });
    QTest::keyClicks(&box, "ab1");
    EXPECT_EQ(box.Text(), "AB1");
}

TEST_F(TextBoxTest, TextRuleJudgesTypingAndPasting)
{
    box.SetTextRule([](const QString& text) { return !text.contains(','); });
    box.setText("Smith");
    const int before = BeepCount();

    QTest::keyClick(&box, Qt::Key_Home);
    QTest::keyClick(&box, Qt::Key_Right);
    QTest::keyClicks(&box, ",");
    EXPECT_EQ(box.Text(), "Smith");
    EXPECT_EQ(box.cursorPosition(), 1);   // the caret stays where the user was typing
    QTest::keyClicks(&box, "x");
    EXPECT_EQ(box.Text(), "Sxmith");

    Paste("a,b");
    EXPECT_EQ(box.Text(), "Sxmith");
    Paste("ab");
    EXPECT_EQ(box.Text(), "Sxabmith");
    EXPECT_EQ(BeepsSince(before), 2);

    // The program's own texts are not judged, and the next refusal goes back to them.
    box.setText("Lamb,");
    Paste(",");
    EXPECT_EQ(box.Text(), "Lamb,");
}

TEST_F(TextBoxTest, TextRuleCannotBeDodgedBySelectingAndTyping)
{
    box.SetTextRule([](const QString& text) { return text.size() != 1; });
    box.setText("abc");
    box.selectAll();
    QTest::keyClicks(&box, "z");
    EXPECT_EQ(box.Text(), "abc");
    QTest::keyClick(&box, Qt::Key_End);
    QTest::keyClick(&box, Qt::Key_Backspace);
    QTest::keyClick(&box, Qt::Key_Backspace);
    EXPECT_EQ(box.Text(), "ab");
}

TEST_F(TextBoxTest, LockedBoxTakesNoKeys)
{
    int filtered = 0;
    box.SetKeyFilter([&](int&) { ++filtered; });
    box.setText("Kent");
    box.SetLocked(true);
    QTest::keyClicks(&box, "xy");
    Paste("z");
    EXPECT_EQ(box.Text(), "Kent");
    EXPECT_EQ(filtered, 0);
}

TEST_F(TextBoxTest, MaxLengthHoldsForPastes)
{
    box.setMaxLength(4);
    Paste("Gatting");
    EXPECT_EQ(box.Text(), "Gatt");
}
