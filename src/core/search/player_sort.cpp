#include "search/player_sort.h"

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

#include "search/search_filters.h"
#include "search/sort_sweeps.h"
#include "search/surname_order.h"

namespace {


// Row `row` of the sort, counted from 1.
PlayerRecord& Row(SearchRows& rows, int row)
{
    return rows[std::size_t(row - 1)];
}

// Moves each record to the place the order gives it (rowAt[place] is the row
// that goes there, both from 1), following each cycle of the new order with
// one held record. Texts are moved, never copied.
void PlaceRows(SearchRows& rows, std::vector<int>& rowAt)
{
    const int last = static_cast<int>(rows.size());
    for (int start = 1; start <= last; ++start) {
        if (rowAt[start] == start)
            continue;
        PlayerRecord held = std::move(Row(rows, start));
        int to = start;
        while (rowAt[to] != start) {
            const int from = rowAt[to];
            Row(rows, to) = std::move(Row(rows, from));
            rowAt[to] = to;
            to = from;
        }
        Row(rows, to) = std::move(held);
        rowAt[to] = to;
    }
}

// Moves the bar as the game's sort would over the rows' keys (keys[row], from
// 1, the smaller first), then puts the rows in their order.
template <class Key>
void ListInOrder(SearchRows& rows, std::vector<Key> keys, std::vector<int> rowAt, const SortProgress& progress)
{
    FollowSortSweeps(keys, [&progress](int first, int last) {
        if (progress)
            progress(static_cast<double>(first) / last);
    });
    PlaceRows(rows, rowAt);
}

// Surnames sort by the characters they decode to. The sweeps follow their
// ranks, which keep their order and give equal surnames one key; the ranks of
// up to 65,536 rows fit in sixteen bits, which the sweeps take eight at a time.
void SortBySurname(SearchRows& rows, const SortProgress& progress)
{
    SurnameOrder order = OrderSurnames(rows);
    if (order.lastRank > UINT16_MAX)
        return ListInOrder(rows, std::move(order.rankOfRow), std::move(order.rowAt), progress);
    std::vector<std::int16_t> keys(order.rankOfRow.size());
    std::transform(order.rankOfRow.begin(), order.rankOfRow.end(), keys.begin(),
                   [](int rank) { return static_cast<std::int16_t>(rank + INT16_MIN); });
    ListInOrder(rows, std::move(keys), std::move(order.rowAt), progress);
}

// Skills sort the highest first: the key is the skill's bits turned over,
// which reverses the order of sixteen-bit numbers. Each key is sorted with its
// row's number, so that no two are equal and a plain sort gives the order in
// which equal skills keep theirs.
void SortBySkill(SearchRows& rows, std::int16_t PlayerRecord::*skill, const SortProgress& progress)
{
    const int last = static_cast<int>(rows.size());
    std::vector<std::int16_t> keys(rows.size() + 1);
    std::vector<std::pair<std::int16_t, int>> order;
    order.reserve(rows.size());
    for (int row = 1; row <= last; ++row) {
        keys[row] = static_cast<std::int16_t>(~(Row(rows, row).*skill));
        order.emplace_back(keys[row], row);
    }
    std::sort(order.begin(), order.end());
    std::vector<int> rowAt(rows.size() + 1);
    for (int place = 1; place <= last; ++place)
        rowAt[place] = order[std::size_t(place - 1)].second;
    ListInOrder(rows, std::move(keys), std::move(rowAt), progress);
}

}  // namespace

void SortRows(SearchRows& rows, SortKey key, const SortProgress& progress)
{
    switch (key) {
    case SortKey::Surname:
        return SortBySurname(rows, progress);
    case SortKey::BatSkill:
        return SortBySkill(rows, &PlayerRecord::batSkill, progress);
    case SortKey::BatAggression:
        return SortBySkill(rows, &PlayerRecord::batAggression, progress);
    case SortKey::BowlSkill:
        return SortBySkill(rows, &PlayerRecord::bowlSkill, progress);
    case SortKey::BowlEconomy:
        return SortBySkill(rows, &PlayerRecord::bowlEconomy, progress);
    case SortKey::FieldSkill:
        return SortBySkill(rows, &PlayerRecord::fieldAbility, progress);
    case SortKey::Potential:
        return SortBySkill(rows, &PlayerRecord::potential, progress);
    }
}

void SortResults(SearchRows& rows, int sortKeyIndex, const SortProgress& progress)
{
    if (sortKeyIndex < 0 || sortKeyIndex >= SortKeyCount)
        return;
    SortRows(rows, static_cast<SortKey>(sortKeyIndex), progress);
}
