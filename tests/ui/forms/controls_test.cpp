// The lists and drop-downs the windows are built from: a pick is told once
// for each key or click, and the wheel passes over a drop-down that is not
// being worked.
#include "forms/choice_list.h"
#include "forms/drop_down.h"
#include "forms/text_box.h"

#include <QApplication>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include "support/window_parts.h"

namespace {

// The chosen row as each rowChosen came, one entry a pick.
struct Picks {
    std::vector<int> rows;
    explicit Picks(ChoiceList& list)
    {
        QObject::connect(&list, &ChoiceList::rowChosen, [this, &list](int row) {
            EXPECT_EQ(row, list.ChosenRow());
            rows.push_back(row);
        });
    }
};

TEST(WheelGuard, TheWheelChangesAComboOnlyWhileItHasTheFocus)
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    QComboBox* guarded = NewDropDown(nullptr);
    auto* other = new TextBox;
    layout->addWidget(guarded);
    layout->addWidget(other);
    guarded->addItems({"Opener", "Top order", "Middle order"});
    guarded->setCurrentIndex(0);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));

    other->setFocus();
    EXPECT_FALSE(WheelDown(*guarded));
    EXPECT_EQ(guarded->currentIndex(), 0);
    EXPECT_EQ(QApplication::focusWidget(), other);   // the wheel took no focus either

    guarded->setFocus();
    EXPECT_TRUE(WheelDown(*guarded));
    EXPECT_EQ(guarded->currentIndex(), 1);
}

}  // namespace

// Keys and clicks each choose once, also on the row chosen already; what the
// program does itself chooses nothing.
TEST(ChoiceList, KeysAndClicksChooseOnceEachEvenOnTheChosenRow)
{
    ChoiceList list;
    list.resize(200, 150);
    list.show();
    list.setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&list));
    const std::pair<const char*, int> rows[] = {{"Atherton", 7}, {"Gooch", 8}, {"Gower", 9}, {"Atherton", 7}};
    for (const auto& [name, number] : rows)
        list.AddRow(name, number);
    Picks picks(list);
    ClickRow(list, 1);
    ClickRow(list, 1);
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_A);  // typing jumps to the next row starting so
    EXPECT_EQ(list.NumberAt(2), 9);
    EXPECT_EQ(list.RowOf(7), 0);  // the first row that carries it
    list.setCurrentRow(0);
    list.clear();
    EXPECT_EQ(list.ChosenRow(), -1);
    EXPECT_EQ(picks.rows, (std::vector<int>{1, 1, 2, 3}));
}
