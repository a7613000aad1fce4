#pragma once

#include <array>
#include <cstdint>
#include <string>

// The limits of the game's own data.
inline constexpr int MaxPlayers = 2000;
inline constexpr int MaxTeams = 500;
inline constexpr int SquadSize = 20;

// Texts are kept as the game stores them: Windows-1252 bytes.
struct PlayerRecord {
    std::int16_t playerNumber = 0;
    std::string initials;
    std::string surname;
    std::int16_t birthDay = 0;
    std::int16_t birthMonth = 0;
    std::int16_t birthYear = 0;
    std::int16_t homeCountry = 0;
    std::int16_t teamNumber = 0;
    std::int16_t batPosition = 0;
    std::int16_t bats = 0;
    std::int16_t batSkill = 0;
    std::int16_t batAggression = 0;
    std::int16_t bowlType = 0;
    std::int16_t bowls = 0;
    std::int16_t bowlSkill = 0;
    std::int16_t bowlEconomy = 0;
    std::int16_t fieldAbility = 0;
    std::int16_t fieldsAt = 0;
    std::int16_t potential = 0;
    std::int16_t carriedValue = 0;

    bool operator==(const PlayerRecord&) const = default;
};

// Squad places count from 1 like the game's; element 0 is never used.
using Squad = std::array<std::int16_t, SquadSize + 1>;

struct TeamRecord {
    std::string teamName;
    std::string abbreviation;
    std::int16_t homeCountry = 0;
    std::int16_t teamNumber = 0;
    Squad squad{};
    std::int16_t reputation = 0;
    std::int16_t wealth = 0;
    std::int16_t support = 0;

    bool operator==(const TeamRecord&) const = default;
};
