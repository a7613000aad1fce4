#pragma once

#include <array>
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

// The boxes that must hold a number: the six skills and the three parts of
// the date of birth. The names may be anything, empty included.
inline constexpr std::array<EntryBox, 9> NumberBoxes{
    &NewPlayerEntries::batSkill,     &NewPlayerEntries::batAggression, &NewPlayerEntries::bowlSkill,
    &NewPlayerEntries::bowlEconomy,  &NewPlayerEntries::fieldAbility,  &NewPlayerEntries::potential,
    &NewPlayerEntries::birthDay,     &NewPlayerEntries::birthMonth,    &NewPlayerEntries::birthYear,
};

// The range a new player's skill must lie in, both ends included. The date
// of birth has none: any number goes, 31 February and month 0 included.
struct StatRange {
    EntryBox box;
    int lowest;
    int highest;
};

// In the order the Help window lists them.
inline constexpr std::array<StatRange, 6> StatRanges{{
    {&NewPlayerEntries::batSkill, 0, 60},
    {&NewPlayerEntries::batAggression, 0, 20},
    {&NewPlayerEntries::bowlSkill, 0, 60},
    {&NewPlayerEntries::bowlEconomy, 0, 20},
    {&NewPlayerEntries::fieldAbility, 10, 40},
    {&NewPlayerEntries::potential, 0, 20},
}};

// Whether every number box holds a number and every skill lies in its range.
// A pasted value is judged as written, before any rounding: 60.4 is too much.
bool EntriesAreGood(const NewPlayerEntries& entries);

// Whether the player table has a free number for one more player.
bool CanAddNewPlayer(const Game& game);

enum class NewPlayerOutcome {
    Added,
    BadEntries,  // a number box is empty, holds no number, or is out of range
    TableFull,   // the game already holds its 2000 players
    NoTeam,      // `team` is no team of the table
    SquadFull,   // the squad already holds 20 players
};

// Creates the player under the next number after PlayerCount and puts him at
// the end of the squad of `team`. Anything but Added leaves the game as it
// was. A value that cannot be stored as the game's 16-bit number (a pasted
// year of 1e9) leaves that field as the slot held it.
NewPlayerOutcome CommitNewPlayer(Game& game, int team, const NewPlayerEntries& entries);
