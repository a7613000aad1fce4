#pragma once

#include <functional>

#include "search/search_filters.h"

// The orders a search can list its results in, as the sort box offers them.
// Names sort A to Z; every skill sorts the highest first.
enum class SortKey {
    Surname = 0,
    BatSkill,
    BatAggression,
    BowlSkill,
    BowlEconomy,
    FieldSkill,
    Potential,
};
inline constexpr int SortKeyCount = 7;

// Told how far the sort has come, from 0 to 1, once for each pair of sweeps
// over the rows.
using SortProgress = std::function<void(double done)>;

// Sorts the rows in place, stable: rows whose keys are equal keep their
// order. Surnames compare by character code, capitals before small letters;
// the initials never break a tie.
void SortRows(SearchRows& rows, SortKey key, const SortProgress& progress);

// Sorts by the sort box's entry `sortKeyIndex`. An index that names no key
// leaves the rows in the order the filters gave.
void SortResults(SearchRows& rows, int sortKeyIndex, const SortProgress& progress);
