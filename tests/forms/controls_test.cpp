#include "forms/combo_box.h"
#include "forms/list_box.h"
#include "forms/picture_box.h"
#include "forms/twips.h"

#include <QSignalSpy>
#include <QTest>
#include <QWidget>

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

TYPED_TEST(ListControl, RowsCarryTextAndDataAndProgramChangesRunNoHandler)
{
    TypeParam control;
    Clicks clicks(control);
    Fill(control, {"Kent", "Essex"});
    control.SetItemData(1, 70000);
    EXPECT_EQ(control.ListCount(), 2);
    EXPECT_EQ(control.List(1), "Essex");
    EXPECT_EQ(control.ItemData(1), 70000);
    EXPECT_EQ(control.ItemData(0), 0);
    EXPECT_EQ(control.List(-1), "");
    EXPECT_EQ(control.List(2), "");
    EXPECT_EQ(control.ItemData(5), 0);
    EXPECT_EQ(control.ListIndex(), -1);   // adding to an empty list chooses nothing

    control.SetText("Essex");
    control.AddItem("Surrey");
    EXPECT_EQ(control.ListIndex(), 1);    // adding keeps the choice
    if constexpr (std::is_same_v<TypeParam, ComboBox>)
        control.setCurrentIndex(2);
    else
        control.setCurrentRow(2);
    control.Clear();
    EXPECT_EQ(control.ListIndex(), -1);
    EXPECT_EQ(control.ListCount(), 0);
    EXPECT_EQ(clicks.rows, std::vector<int>{1});   // only the SetText
}

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
    EXPECT_EQ(clicks.rows, (std::vector<int>{0, 0, 1, 2}));   // chosen before each handler runs
}

TEST(ComboBox, PickingFromThePopupClicksEvenForTheSameRow)
{
    ComboBox combo;
    Fill(combo, {"Kent", "Essex"});
    QSignalSpy clicks(&combo, &ComboBox::Click);
    emit combo.activated(1);   // what the popup sends for a pick
    combo.setCurrentIndex(1);
    emit combo.activated(1);
    EXPECT_EQ(clicks.count(), 2);
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

    // Neither Ctrl nor a click below the rows may leave the list without a choice.
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier, centre(1));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, QPoint(5, list.viewport()->height() - 3));
    EXPECT_EQ(list.ListIndex(), 1);
}

TEST(ListBox, HandlerMayRebuildTheListItClicked)
{
    ListBox list;
    ShowFocused(list);
    Fill(list, {"Atherton", "Gooch"});
    int clicks = 0;
    QObject::connect(&list, &ListBox::Click, [&] {
        if (++clicks > 1)
            return;
        list.Clear();
        Fill(list, {"Atherton", "Gooch", "Gower"});
        list.SetText("Gower");
    });
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(1)).center());
    EXPECT_EQ(clicks, 2);   // the user's click and the handler's own SetText, nothing more
    EXPECT_EQ(list.ListIndex(), 2);
}

TEST(PictureBox, LeftReleaseInsideClicks)
{
    QPixmap picture(8, 8);
    picture.fill(Qt::darkGreen);
    PictureBox box(picture);
    ShowFocused(box);
    QSignalSpy clicks(&box, &PictureBox::Click);
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(20, 20));
    QTest::mouseClick(&box, Qt::RightButton, {}, QPoint(20, 20));
    EXPECT_EQ(clicks.count(), 1);
    EXPECT_EQ(box.cursor().shape(), Qt::PointingHandCursor);
}

TEST(Twips, AdjacentRectanglesStillTouch)
{
    EXPECT_GE(Twips(1440), 96);
    for (int left = 0; left < 300; left += 7)
        EXPECT_EQ(TwipRect(left, 0, 113, 100).right() + 1, TwipRect(left + 113, 0, 50, 100).left());
}
