#pragma once

#include <memory>
#include <tuple>

#include "support/game_builder.h"
#include "table/row_values.h"

// Six players and three teams for the tables' tests. Today is 1 June 2024.
// Player 3's birth date cannot be, so he has no age; players 4 and 5 have no
// club, and team 3 nobody in its squad.
inline std::unique_ptr<Game> TableGame()
{
    GameBuilder b;
    const struct {
        const char* initials;
        const char* surname;
        std::int16_t day, month, year, country, batSkill, bowlType;
    } players[] = {
        {"A J", "Smith", 14, 2, 1990, 2, 45, 7},     {"B", "Smithers", 1, 7, 2000, 13, 30, 1},
        {"C. D.", "Jones", 1, 13, 1985, 29, 50, 8},  {"E", "van Dyke", 1, 1, 1980, 4, 60, 7},
        {"F", "Ng", 2, 6, 1994, 2, 12, 2},            {"G", "Ashdown", 9, 9, 1999, 2, 40, 5},
    };
    int number = 0;
    for (const auto& p : players) {
        PlayerRecord& player = b.Player(++number, p.surname, p.initials);
        std::tie(player.birthDay, player.birthMonth, player.birthYear, player.homeCountry, player.batSkill,
                 player.bowlType) = std::tie(p.day, p.month, p.year, p.country, p.batSkill, p.bowlType);
    }
    b.Team(1, "Perth Pelicans", {1, 2}).homeCountry = 1;
    b.Team(2, "Perth", {3, 6}).homeCountry = 2;
    b.Team(3, "Ashby").homeCountry = 2;
    return std::move(b.game);
}

inline constexpr CalendarDay Today{2024, 6, 1};
