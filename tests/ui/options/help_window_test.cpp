// The Help window's table of ranges: what it has always said, that each row is
// a ranged field of the game's field table, and that a new player's OK takes
// exactly the range the row shows.

#include <QLabel>
#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "data/fields.h"
#include "newplayer/new_player_check.h"
#include "options/help_window.h"

using ::testing::ElementsAre;
using ::testing::Pair;

namespace {

using Row = std::pair<QString, QString>;

std::vector<Row> ShownRows(const HelpWindow& help)
{
    std::vector<Row> rows;
    for (int row = 0; const auto* skill = help.findChild<QLabel*>(QStringLiteral("skill%1").arg(row)); ++row)
        rows.emplace_back(skill->text(), help.findChild<QLabel*>(QStringLiteral("range%1").arg(row))->text());
    return rows;
}

// Entries OK takes: every skill at 10 lies inside every range.
NewPlayerEntries GoodEntries()
{
    NewPlayerEntries entries{.initials = "A", .surname = "Ashdown", .birthDay = "1", .birthMonth = "1",
                             .birthYear = "1980"};
    for (std::string NewPlayerEntries::*box :
         {&NewPlayerEntries::batSkill, &NewPlayerEntries::batAggression, &NewPlayerEntries::bowlSkill,
          &NewPlayerEntries::bowlEconomy, &NewPlayerEntries::fieldAbility, &NewPlayerEntries::potential})
        entries.*box = "10";
    return entries;
}

TEST(HelpWindow, ShowsTheRangesOfTheFieldTableThatTheNewPlayerChecksHoldTo)
{
    HelpWindow help;
    const std::vector<Row> rows = ShownRows(help);
    EXPECT_THAT(rows, ElementsAre(Pair("Bat Skill", "0 - 60"), Pair("Bat Aggression", "0 - 20"),
                                  Pair("Bowl Skill", "0 - 60"), Pair("Bowl Econ.", "0 - 20"),
                                  Pair("Field Skill", "10 - 40"), Pair("Potential", "0 - 20")));

    std::size_t row = 0;
    for (const PlayerField& field : PlayerFields) {
        if (!field.range)
            continue;
        SCOPED_TRACE(std::string(field.name));
        ASSERT_LT(row, rows.size());
        EXPECT_EQ(rows[row], Row(QString::fromLatin1(field.rangeLabel.data(), qsizetype(field.rangeLabel.size())),
                                 QString::fromStdString(RangeText(*field.range))));
        ++row;
        const auto box = std::find_if(NumberBoxes.begin(), NumberBoxes.end(),
                                      [&](const NumberBox& entry) { return entry.field == field.number; });
        ASSERT_NE(box, NumberBoxes.end());
        const Range range = *field.range;
        for (const auto& [value, good] : {std::pair(range.low - 1, false), std::pair(range.low, true),
                                          std::pair(range.high, true), std::pair(range.high + 1, false)}) {
            NewPlayerEntries entries = GoodEntries();
            entries.*box->box = std::to_string(value);
            EXPECT_EQ(EntriesAreGood(entries), good) << value;
        }
    }
    EXPECT_EQ(row, rows.size());
}

}  // namespace
