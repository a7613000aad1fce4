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

// A visible, focused window so that QTest input reaches the control.
template <typename Control>
struct Shown {
    QWidget window;
    Control* control = new Control(&window);
    Shown()
    {
        control->setGeometry(0, 0, 200, 150);
        window.resize(220, 170);
        window.show();
        control->setFocus();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    }
};

}  // namespace

template <typename Control>
class ListControl : public ::testing::Test {};
using ListControls = ::testing::Types<ComboBox, ListBox>;
TYPED_TEST_SUITE(ListControl, ListControls);

TYPED_TEST(ListControl, RowsCarryTextAndData)
{
    TypeParam control;
    Fill(control, {"England", "Australia"});
    control.SetItemData(1, 70000);
    EXPECT_EQ(control.ListCount(), 2);
    EXPECT_EQ(control.List(1), "Australia");
    EXPECT_EQ(control.ItemData(1), 70000);
    EXPECT_EQ(control.ItemData(0), 0);
    EXPECT_EQ(control.List(-1), "");
    EXPECT_EQ(control.List(2), "");
    EXPECT_EQ(control.ItemData(5), 0);
}

TYPED_TEST(ListControl, SetTextClicksOnceEvenOnTheChosenRow)
{
    TypeParam control;
    Fill(control, {"Kent", "Essex", "Kent"});
    int clicks = 0;
    int indexSeenByHandler = -2;
    QObject::connect(&control, &TypeParam::Click, [&] {
        ++clicks;
        indexSeenByHandler = control.ListIndex();
    });

    EXPECT_TRUE(control.SetText("Kent"));
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(indexSeenByHandler, 0);   // the first match, already chosen when the handler runs

    EXPECT_TRUE(control.SetText("Kent"));
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(control.ListIndex(), 0);
}

TYPED_TEST(ListControl, SetTextWithoutAMatchChangesNothing)
{
    TypeParam control;
    Fill(control, {"Kent", "Essex"});
    control.SetText("Essex");
    QSignalSpy clicks(&control, &TypeParam::Click);
    EXPECT_FALSE(control.SetText("essex"));
    EXPECT_FALSE(control.SetText("Esse"));
    EXPECT_EQ(control.ListIndex(), 1);
    EXPECT_EQ(clicks.count(), 0);
}

TYPED_TEST(ListControl, ProgramChangesRunNoHandler)
{
    TypeParam control;
    QSignalSpy clicks(&control, &TypeParam::Click);
    Fill(control, {"Kent", "Essex"});
    EXPECT_EQ(control.ListIndex(), -1);   // adding to an empty list chooses nothing

    control.SetText("Essex");
    control.AddItem("Surrey");
    EXPECT_EQ(control.ListIndex(), 1);    // adding keeps the choice
    if constexpr (std::is_same_v<TypeParam, ComboBox>)
        control.setCurrentIndex(2);
    else
        control.setCurrentRow(2);
    EXPECT_EQ(control.ListIndex(), 2);

    control.Clear();
    EXPECT_EQ(control.ListIndex(), -1);
    EXPECT_EQ(control.ListCount(), 0);
    EXPECT_EQ(clicks.count(), 1);         // only the SetText
}

TYPED_TEST(ListControl, ArrowKeyPickClicksOnce)
{
    Shown<TypeParam> shown;
    TypeParam& control = *shown.control;
    Fill(control, {"Kent", "Essex", "Surrey"});
    control.SetText("Kent");
    int clicks = 0;
    int seen = -1;
    QObject::connect(&control, &TypeParam::Click, [&] {
        ++clicks;
        seen = control.ListIndex();
    });
    QTest::keyClick(&control, Qt::Key_Down);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(seen, 1);
    QTest::keyClick(&control, Qt::Key_S);   // typing jumps to the next row starting so
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(seen, 2);
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
    Shown<ListBox> shown;
    ListBox& list = *shown.control;
    Fill(list, {"Atherton", "Gooch", "Gower"});
    int clicks = 0;
    int seen = -1;
    QObject::connect(&list, &ListBox::Click, [&] {
        ++clicks;
        seen = list.ListIndex();
    });
    const auto centre = [&](int row) { return list.visualItemRect(list.item(row)).center(); };

    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, centre(1));
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(seen, 1);

    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, centre(1));
    EXPECT_EQ(clicks, 2);

    // Neither Ctrl nor a click below the rows may leave the list without a choice.
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier, centre(1));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, QPoint(5, list.viewport()->height() - 3));
    EXPECT_EQ(list.ListIndex(), 1);
}

TEST(ListBox, HandlerMayRebuildTheListItClicked)
{
    Shown<ListBox> shown;
    ListBox& list = *shown.control;
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
    box.resize(40, 40);
    box.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&box));
    QSignalSpy clicks(&box, &PictureBox::Click);
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(20, 20));
    QTest::mouseClick(&box, Qt::RightButton, {}, QPoint(20, 20));
    EXPECT_EQ(clicks.count(), 1);
    EXPECT_EQ(box.cursor().shape(), Qt::PointingHandCursor);
}

TEST(Twips, AdjacentRectanglesStillTouch)
{
    EXPECT_GE(Twips(1440), 96);
    for (int left = 0; left < 300; left += 7) {
        const QRect a = TwipRect(left, 0, 113, 100);
        const QRect b = TwipRect(left + 113, 0, 50, 100);
        EXPECT_EQ(a.right() + 1, b.left());
    }
}
