#pragma once

#include <vector>

#include "search/search_filters.h"

// The rows' surnames in the order of the characters they decode to, capitals
// before small letters, as the search's sort lists them.
struct SurnameOrder {
    std::vector<int> rankOfRow;  // rankOfRow[row], rows from 1: 0 for the first surname; equal ones share a rank
    std::vector<int> rowAt;      // rowAt[place], from 1: the row in that place, equal surnames in their rows' order
    int lastRank = 0;
};

SurnameOrder OrderSurnames(const SearchRows& rows);
