#include "search_floor.h"

#include <algorithm>

#include "data/cp1252.h"

namespace {

std::int16_t PlayerRecord::*SkillOf(SortKey key)
{
    switch (key) {
    case SortKey::BatSkill:
        return &PlayerRecord::batSkill;
    case SortKey::BatAggression:
        return &PlayerRecord::batAggression;
    case SortKey::BowlSkill:
        return &PlayerRecord::bowlSkill;
    case SortKey::BowlEconomy:
        return &PlayerRecord::bowlEconomy;
    case SortKey::FieldSkill:
        return &PlayerRecord::fieldAbility;
    case SortKey::Potential:
    case SortKey::Surname:
        break;
    }
    return &PlayerRecord::potential;
}

}  // namespace

SearchRows SearchByStableSort(const Game& game, SortKey key)
{
    SearchRows rows = RunFilters(game, {});
    if (key == SortKey::Surname) {
        std::stable_sort(rows.begin(), rows.end(), [](const PlayerRecord& a, const PlayerRecord& b) {
            return CompareCp1252(a.surname, b.surname) < 0;
        });
    } else {
        const auto skill = SkillOf(key);
        std::stable_sort(rows.begin(), rows.end(),
                         [skill](const PlayerRecord& a, const PlayerRecord& b) { return a.*skill > b.*skill; });
    }
    return rows;
}
