#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "filter/record_filter.h"

// The words of a filter text: runs of characters between blanks, quoted
// texts ("van Dyke", a doubled quote standing for one), and comparisons,
// which need no blanks around them ("batSkill>=42").
struct FilterToken {
    enum class Kind { Word, Quoted, Comparison };
    Kind kind = Kind::Word;
    std::string text;  // a quoted text without its quotes
    Comparison comparison = Comparison::Equal;
    int start = 0;
    int end = 0;  // one past the last character

    bool IsComparison() const { return kind == Kind::Comparison; }
};

struct FilterTokens {
    std::vector<FilterToken> tokens;
    std::optional<FilterError> error;
};

FilterTokens SplitFilter(std::string_view text);

// "<=" for LessOrEqual, as a message shows it.
std::string_view ComparisonText(Comparison comparison);
