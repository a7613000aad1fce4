#pragma once

#include <cstdint>
#include <memory>
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
        if (number > game->PlayerCount)
            game->PlayerCount = static_cast<std::int16_t>(number);
        return p;
    }

    // Numbered players 1 to `count` named P0001, P0002, ...
    void Players(int count)
    {
        for (int n = 1; n <= count; ++n) {
            std::string name = std::to_string(n);
            Player(n, "P" + std::string(4 - name.size(), '0') + name);
        }
    }

    // A team with `players` in its first places; every listed player's
    // teamNumber follows, as a loaded game would have it.
    TeamRecord& Team(int number, std::string name, const std::vector<int>& players = {})
    {
        TeamRecord& t = game->Teams[number];
        t.teamNumber = static_cast<std::int16_t>(number);
        t.teamName = std::move(name);
        t.squad.fill(0);
        int slot = 1;
        for (int p : players) {
            t.squad[slot++] = static_cast<std::int16_t>(p);
            if (p >= 1 && p <= MaxPlayers)
                game->Players[p].teamNumber = static_cast<std::int16_t>(number);
        }
        if (number + 2 > game->TeamCount)
            game->TeamCount = static_cast<std::int16_t>(number + 2);
        return t;
    }
};

// Player numbers first, first + 1, ... : `count` of them.
inline std::vector<int> PlayerRun(int first, int count)
{
    std::vector<int> numbers;
    for (int n = first; n < first + count; ++n)
        numbers.push_back(n);
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
