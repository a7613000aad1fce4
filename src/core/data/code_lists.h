#pragma once

#include <array>
#include <string_view>

// The words behind the small codes of a record. Most fields store the list
// position + 1; `bats` and `bowls` store the position itself, so 0 is a hand.

// "Namibia" stands twice, as codes 13 and 29: two different codes.
inline constexpr std::array<std::string_view, 39> CountryList{
    "Australia", "England",   "India",     "New Zealand", "Pakistan", "South Africa", "Sri Lanka",
    "West Indies", "Zimbabwe", "Bangladesh", "Kenya",     "Holland",  "Namibia",      "Canada",
    "Scotland",  "Ireland",   "Argentina", "Bermuda",     "Denmark",  "Fiji",         "E&C Africa",
    "France",    "Germany",   "Gibraltar", "Hong Kong",   "Isrel",    "Italy",        "Malaysia",
    "Namibia",   "Nepal",     "Papau New Guinea", "Singapore", "Uganda", "USA",       "West Africa",
    "Afghanistan", "Bahrain", "Brunei",    "China",
};

// The ten countries a team can belong to, as a team's own country box shows them.
inline constexpr std::array<std::string_view, 10> TeamCountryList{
    "Australia", "England",   "India",    "New Zealand", "Pakistan",
    "South Africa", "Sri Lanka", "West Indies", "Zimbabwe", "Bangladesh",
};

// The same ten as the country picker of the main window words them: the
// West Indies entry also gathers the minor cricket islands.
inline constexpr std::array<std::string_view, 10> Combo1CountryList{
    "Australia", "England",   "India",    "New Zealand", "Pakistan",
    "South Africa", "Sri Lanka", "West Indies and Mics.", "Zimbabwe", "Bangladesh",
};

inline constexpr std::array<std::string_view, 6> BatPositionList{
    "Opener", "Top Order", "Middle Order", "All Rounder", "Late order", "Tail Ender",
};

inline constexpr std::array<std::string_view, 2> HandList{"Right Handed", "Left Handed"};

inline constexpr std::array<std::string_view, 9> BowlTypeList{
    "F", "FM", "MF", "M", "SLA", "SLC", "None", "OB", "LB",
};

inline constexpr std::array<std::string_view, 4> FieldPositionList{"WK", "Close", "Cover", "Boundary"};
