#pragma once

// Indexes of the control arrays shared by the player and team editors, the
// search window's read-only panel and the new-player window.

// Text1(i)
enum TextBoxIndex {
    DayBox = 0,
    BatSkillBox = 1,
    BatAggressionBox = 2,
    BowlSkillBox = 3,
    BowlEconomyBox = 4,
    FieldAbilityBox = 5,
    PotentialBox = 6,
    SurnameBox = 7,
    TeamNameBox = 8,        // on the search panel: "Present Club"
    AbbreviationBox = 9,
    ReputationBox = 10,
    WealthBox = 11,
    SupportBox = 12,
    MonthBox = 13,
    YearBox = 14,
    InitialsBox = 15,
    TextBoxCount = 16,
};

// Combo4(i)
enum CodeComboIndex {
    BatPositionCombo = 0,
    BatsCombo = 1,
    BowlTypeCombo = 2,
    BowlsCombo = 3,
    FieldsAtCombo = 4,
    TeamCountryCombo = 5,   // on the search window: the batting-type filter
    BowlingFilterCombo = 6,
    FieldingFilterCombo = 7,
    SortKeyCombo = 8,
};
