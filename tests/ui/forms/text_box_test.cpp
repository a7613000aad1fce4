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
