#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <numeric>
#include <string>
#include <vector>

#include "data/game.h"

// Small games for the search and squad tests, built in memory.
struct GameBuilder {
    std::unique_ptr<Game> game = std::make_unique<Game>();

    PlayerRecord& Player(int number, std::string surname, std::string initials = "A")
    {
        PlayerRecord& p = game->Players[number];
        p.playerNumber = static_cast<std::int16_t>(number);
        p.surname = std::move(surname);
        p.initials = std::move(initials);
        game->PlayerCount = static_cast<std::int16_t>(std::max<int>(game->PlayerCount, number));
        return p;
    }

    // Numbered players 1 to `count` named P0001, P0002, ...
    void Players(int count)
    {
        char name[12];
        for (int n = 1; n <= count; ++n)
            Player(n, (std::snprintf(name, sizeof name, "P%04d", n), name));
    }

    // A team with `players` in its first places; every listed player's
    // teamNumber follows, as a loaded game would have it.
    TeamRecord& Team(int number, std::string name, const std::vector<int>& players = {})
    {
        TeamRecord& t = game->Teams[number];
        t.teamNumber = static_cast<std::int16_t>(number);
        t.teamName = std::move(name);
        t.squad.fill(0);
        std::copy(players.begin(), players.end(), t.squad.begin() + 1);
        for (int p : players)
            if (p >= 1 && p <= MaxPlayers)
                game->Players[p].teamNumber = static_cast<std::int16_t>(number);
        game->TeamCount = std::max(game->TeamCount, TeamCountFor(number));
        return t;
    }
};

// Player numbers first, first + 1, ... : `count` of them.
inline std::vector<int> PlayerRun(int first, int count)
{
    std::vector<int> numbers(count);
    std::iota(numbers.begin(), numbers.end(), first);
    return numbers;
}

// The record numbers of the copies a step of editing took (its players or
// its teams), in their order.
template <class Copies>
std::vector<int> Numbers(const Copies& copies)
{
    std::vector<int> numbers;
    for (const auto& copy : copies)
        numbers.push_back(copy.number);
    return numbers;
}

// The places of a squad up to its last filled one; all places behind are 0.
inline std::vector<int> Places(const TeamRecord& team)
{
    std::vector<int> places(team.squad.begin() + 1, team.squad.end());
    while (!places.empty() && places.back() == 0)
        places.pop_back();
    return places;
}
