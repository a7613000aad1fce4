// A player's column: one box to each captioned field of the table, shown and
// told back by the field's kind, and a read-only column that keeps a code
// with no entry on what it showed before.

#include <QLabel>
#include <QWidget>
#include <algorithm>
#include <vector>

#include <gtest/gtest.h>

#include "data/fields.h"
#include "forms/fitted_layout.h"
#include "forms/player_column.h"
#include "forms/text_box.h"
#include "support/window_parts.h"

namespace {

QString Latin(std::string_view text)
{
    return QString::fromLatin1(text.data(), qsizetype(text.size()));
}

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

TEST(PlayerColumn, HasABoxAndCaptionForEachCaptionedFieldAndTellsItsEdits)
{
    Window window;
    std::vector<QString> captions;
    for (const QLabel* label : window.column->findChildren<QLabel*>())
        captions.push_back(label->text());
    for (const PlayerField& field : PlayerFields) {
        QWidget* box = window.column->findChild<QWidget*>(Latin(field.name));
        EXPECT_EQ(box != nullptr, !field.label.empty()) << field.name;
        if (!field.label.empty()) {
            EXPECT_NE(std::find(captions.begin(), captions.end(), Latin(field.label)), captions.end()) << field.name;
        }
    }
    EXPECT_EQ(std::count(captions.begin(), captions.end(), "/"), 2);

    // Showing tells no one; each change in a box is told as its field's value.
    std::vector<std::pair<std::string, TypedValue>> edits;
    QObject::connect(window.column, &PlayerColumn::edited, [&](const PlayerField& field, const TypedValue& value) {
        edits.push_back({std::string(field.name), value});
    });
    window.column->Show(Someone());
    EXPECT_EQ(Find<QComboBox>(*window.column, "homeCountry").currentText(), "Namibia");
    EXPECT_EQ(Find<QComboBox>(*window.column, "bats").currentText(), "Left Handed");
    EXPECT_EQ(window.column->ShownName(), "J K Brandt");
    EXPECT_TRUE(edits.empty());

    // A number that does not convert is told as no value.
    Find<TextBox>(*window.column, "surname").setText("Brand");
    Find<TextBox>(*window.column, "bowlSkill").setText("many");
    Find<TextBox>(*window.column, "batSkill").setText("45");
    Find<QComboBox>(*window.column, "bats").setCurrentIndex(0);
    const std::vector<std::pair<std::string, TypedValue>> told{
        {"surname", std::string("Brand")}, {"bowlSkill", TypedValue{}}, {"batSkill", std::int16_t(45)},
        {"bats", std::int16_t(0)}};
    EXPECT_EQ(edits, told);
}

// A code with no entry: the column the user edits shows nothing chosen and
// keeps the stored code; the read-only panel stays on its last entry.
TEST(PlayerColumn, ACodeWithNoEntryClearsAnEditableListAndLeavesAReadOnlyOne)
{
    for (const bool readOnly : {false, true}) {
        SCOPED_TRACE(readOnly ? "read-only" : "editable");
        Window window;
        window.column->SetReadOnly(readOnly);
        window.column->Show(Someone());
        PlayerRecord odd = Someone();
        odd.batPosition = 7;
        odd.bowls = -1;
        window.column->Show(odd);
        auto& position = Find<QComboBox>(*window.column, "batPosition");
        auto& bowls = Find<QComboBox>(*window.column, "bowls");
        EXPECT_EQ(position.currentIndex(), readOnly ? 1 : -1);
        EXPECT_EQ(bowls.currentIndex(), readOnly ? 0 : -1);
        EXPECT_EQ(position.isEnabled(), !readOnly);
        EXPECT_EQ(Find<TextBox>(*window.column, "surname").isEnabled(), !readOnly);
    }
}

}  // namespace
