// The read-only player's column of the search window.

#include <QWidget>

#include <gtest/gtest.h>

#include "forms/fitted_layout.h"
#include "forms/player_column.h"
#include "forms/text_box.h"
#include "support/window_parts.h"

namespace {

struct Window {
    QWidget area;
    PlayerColumn* column;
    Window()
    {
        FittedLayout at(&area, {3200, 6000});
        PlayerColumnDesign design;
        design.columns = {{0, 1400, 0, 0}};
        column = new PlayerColumn(at, design, &area);
        at.Apply();
    }
};

PlayerRecord Someone()
{
    return {.playerNumber = 7, .initials = "J K", .surname = "Brandt", .birthDay = 4, .birthMonth = 9,
            .birthYear = 1981, .homeCountry = 29, .teamNumber = 3, .batPosition = 2, .bats = 1, .batSkill = 44,
            .batAggression = -3, .bowlType = 5, .bowls = 0, .bowlSkill = 12, .bowlEconomy = 9,
            .fieldAbility = 30, .fieldsAt = 4, .potential = 11, .carriedValue = 77};
}

// A code with no entry: the read-only panel of the search window stays on
// its last entry (the main window's tests show the editable column clearing
// its list and every box of it writing its own field).
TEST(PlayerColumn, ACodeWithNoEntryLeavesAReadOnlyListOnItsLastEntry)
{
    Window window;
    window.column->SetReadOnly(true);
    window.column->Show(Someone());
    PlayerRecord odd = Someone();
    odd.batPosition = 7;
    odd.bowls = -1;
    window.column->Show(odd);
    auto& position = Find<QComboBox>(*window.column, "batPosition");
    EXPECT_EQ(position.currentIndex(), 1);
    EXPECT_EQ(Find<QComboBox>(*window.column, "bowls").currentIndex(), 0);
    EXPECT_FALSE(position.isEnabled());
    EXPECT_FALSE(Find<TextBox>(*window.column, "surname").isEnabled());
    EXPECT_EQ(window.column->ShownName(), "J K Brandt");
}

}  // namespace
