#include "forms/combo_box.h"
#include "forms/list_box.h"

#include <QTest>

#include <gtest/gtest.h>

namespace {

template <typename Control>
void Fill(Control& control, std::initializer_list<const char*> rows)
{
    for (const char* row : rows)
        control.AddItem(row);
}

// The row chosen as each Click handler ran, one entry a click.
template <typename Control>
struct Clicks {
    std::vector<int> rows;
    explicit Clicks(Control& control)
    {
        QObject::connect(&control, &Control::Click, [this, &control] { rows.push_back(control.ListIndex()); });
    }
};

// Shows the control as a window of its own and focuses it, so that QTest
// input reaches it.
void ShowFocused(QWidget& control)
{
    control.resize(200, 150);
    control.show();
    control.setFocus();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&control));
}

}  // namespace

template <typename Control>
class ListControl : public ::testing::Test {};
using ListControls = ::testing::Types<ComboBox, ListBox>;
TYPED_TEST_SUITE(ListControl, ListControls);

TYPED_TEST(ListControl, SetTextAndKeysClickOnceEachEvenOnTheChosenRow)
{
    TypeParam control;
    ShowFocused(control);
    Fill(control, {"Kent", "Essex", "Surrey", "Kent"});
    Clicks clicks(control);
    EXPECT_TRUE(control.SetText("Kent"));   // the first exact match
    EXPECT_TRUE(control.SetText("Kent"));
    EXPECT_FALSE(control.SetText("kent"));
    EXPECT_FALSE(control.SetText("Esse"));
    EXPECT_EQ(control.ListIndex(), 0);
    QTest::keyClick(&control, Qt::Key_Down);
    QTest::keyClick(&control, Qt::Key_S);   // typing jumps to the next row starting so
    // Changes the program makes itself run no handler.
    control.AddItem("Sussex");
    control.Clear();
    EXPECT_EQ(control.ListIndex(), -1);
    EXPECT_EQ(clicks.rows, (std::vector<int>{0, 0, 1, 2}));   // chosen before each handler runs
}

TEST(ListBox, MouseClickOnARowClicksOnce)
{
    ListBox list;
    ShowFocused(list);
    Fill(list, {"Atherton", "Gooch", "Gower"});
    Clicks clicks(list);
    const auto centre = [&](int row) { return list.visualItemRect(list.item(row)).center(); };
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, centre(1));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, centre(1));
    EXPECT_EQ(clicks.rows, (std::vector<int>{1, 1}));
}
