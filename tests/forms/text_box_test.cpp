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

    TextBox box;
};

}  // namespace

TEST_F(TextBoxTest, KeyFilterSeesTypedCharactersAndMayReplaceOrRefuseThem)
{
    std::vector<int> seen;
    box.SetKeyFilter([&](int& key) {
        seen.push_back(key);
        if (key == '-' || key == 8)
            key = 0;
        else if (key >= 'a' && key <= 'z')
            key -= 'a' - 'A';
    });
    box.setText("12");
    const int before = BeepCount();
    QTest::keyClicks(&box, "3a-4 ");
    QTest::keyClick(&box, Qt::Key_Backspace);
    EXPECT_EQ(box.Text(), "123A4 ");
    EXPECT_EQ(BeepCount() - before, 2);   // a refused key beeps and changes nothing

    for (Qt::Key key : {Qt::Key_Return, Qt::Key_Left, Qt::Key_Home, Qt::Key_Tab, Qt::Key_Delete})
        QTest::keyClick(&box, key);
    QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&box, Qt::Key_C, Qt::ControlModifier);
    QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_Eacute, QString(QChar(0xE9)), Qt::NoModifier);   // é, the same code in the game's code page
    EXPECT_EQ(seen, (std::vector<int>{'3', 'a', '-', '4', ' ', 8, 13, 0xE9}));

    // A locked box takes no keys at all.
    box.setText("Kent");
    box.SetLocked(true);
    QTest::keyClicks(&box, "xy");
    Paste("z");
    EXPECT_EQ(box.Text(), "Kent");
    EXPECT_EQ(seen.size(), 8u);
}

TEST_F(TextBoxTest, TextRuleJudgesTypingPastingAndTypingOverASelection)
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
    EXPECT_EQ(BeepCount() - before, 2);

    // The program's own texts are not judged, and the next refusal goes back to them.
    box.setText("Lamb,");
    Paste(",");
    EXPECT_EQ(box.Text(), "Lamb,");

    box.setText("");
    box.setMaxLength(4);
    Paste("Gatting");
    EXPECT_EQ(box.Text(), "Gatt");

    // Selecting and typing over cannot dodge the rule.
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
