#include "forms/choice_list.h"

#include <QTest>

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
