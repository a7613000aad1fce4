#pragma once

#include <array>
#include <optional>
#include <cstdint>
#include <string>

#include "data/game.h"

// What the new-player window holds when OK is pressed. Texts are as typed
// (names as the game's bytes); the lists give the chosen row, from 0.
struct NewPlayerEntries {
    std::string initials;
    std::string surname;
    std::string birthDay;
    std::string birthMonth;
    std::string birthYear;
    std::string batSkill;
    std::string batAggression;
    std::string bowlSkill;
    std::string bowlEconomy;
    std::string fieldAbility;
    std::string potential;

    int homeCountry = 0;
    int batPosition = 0;
    int bats = 0;
    int bowlType = 0;
    int bowls = 0;
    int fieldsAt = 0;
};

using EntryBox = std::string NewPlayerEntries::*;

// The boxes that must hold a number, each with the field it fills, in the
// window's order: the three parts of the date of birth, then the six skills.
// Their ranges are the field table's.
struct NumberBox {
    EntryBox box;
    std::int16_t PlayerRecord::*field;
};
inline constexpr std::array<NumberBox, 9> NumberBoxes{{
    {&NewPlayerEntries::birthDay, &PlayerRecord::birthDay},
    {&NewPlayerEntries::birthMonth, &PlayerRecord::birthMonth},
    {&NewPlayerEntries::birthYear, &PlayerRecord::birthYear},
    {&NewPlayerEntries::batSkill, &PlayerRecord::batSkill},
    {&NewPlayerEntries::batAggression, &PlayerRecord::batAggression},
    {&NewPlayerEntries::bowlSkill, &PlayerRecord::bowlSkill},
    {&NewPlayerEntries::bowlEconomy, &PlayerRecord::bowlEconomy},
    {&NewPlayerEntries::fieldAbility, &PlayerRecord::fieldAbility},
    {&NewPlayerEntries::potential, &PlayerRecord::potential},
}};
inline constexpr std::size_t DateBoxCount = 3;  // the first three boxes above

// The lists of the window, each with the coded field it fills.
struct CodeBox {
    int NewPlayerEntries::*row;
    std::int16_t PlayerRecord::*field;
};
inline constexpr std::array<CodeBox, 6> CodeBoxes{{
    {&NewPlayerEntries::homeCountry, &PlayerRecord::homeCountry},
    {&NewPlayerEntries::batPosition, &PlayerRecord::batPosition},
    {&NewPlayerEntries::bats, &PlayerRecord::bats},
    {&NewPlayerEntries::bowlType, &PlayerRecord::bowlType},
    {&NewPlayerEntries::bowls, &PlayerRecord::bowls},
    {&NewPlayerEntries::fieldsAt, &PlayerRecord::fieldsAt},
}};

// Whether the player has initials and a surname (blanks alone are none),
// every number box holds a number, the date of birth is a day that exists
// (no 31 February, 29 February in leap years only) and every skill lies in
// its range. A pasted value is judged as written, before any rounding: 60.4
// is too much, and a day of 14.5 does not exist.
bool EntriesAreGood(const NewPlayerEntries& entries);
// The first box that is not good, in the window's order (names, date, skills),
// said for the person typing ("Bat skill must lie from 0 to 60, not 75.",
// "Date of birth 31/2/1990 does not exist."); nothing when all are.
std::optional<std::string> FirstBadEntry(const NewPlayerEntries& entries);

// Whether the player table has a free number for one more player.
bool CanAddNewPlayer(const Game& game);

enum class NewPlayerOutcome {
    Added,
    BadEntries,  // a name is empty, a number box holds no number or is out of range, or the date does not exist
    TableFull,   // the game already holds its 2000 players
    NoTeam,      // `team` is no team of the table
    SquadFull,   // the squad already holds 20 players
};

// Creates the player under the next number after PlayerCount and puts him at
// the end of the squad of `team`. Anything but Added leaves the game as it
// was. A value that cannot be stored as the game's 16-bit number (a pasted
// year of 1e9) leaves that field as the slot held it.
NewPlayerOutcome CommitNewPlayer(Game& game, int team, const NewPlayerEntries& entries);
