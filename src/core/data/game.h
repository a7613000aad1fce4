#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "data/records.h"

// Rows 1 to 2000 of a search's working copies; row 0 is never used.
using WorkingTable = std::array<PlayerRecord, MaxPlayers + 1>;

// Everything the editor knows about one game. The windows share one instance;
// tests make their own. It is large, so keep it on the heap.
struct Game {
    std::array<PlayerRecord, MaxPlayers + 1> Players{};  // slot 0 is no player
    std::array<TeamRecord, MaxTeams + 1> Teams{};        // slot 0 is never used
    std::int16_t PlayerCount = 0;
    // Two above the number of teams after a load: the reader's last pass runs
    // over the empty lines that end the file and counts them as a record too.
    std::int16_t TeamCount = 0;
    std::string GameDirectory;
    std::string PlayersPath;
    std::string TeamsPath;

    WorkingTable ClubMatches{};
    WorkingTable CountryMatches{};
    WorkingTable BatMatches{};
    WorkingTable BowlMatches{};
    WorkingTable FieldMatches{};
    const PlayerRecord BlankPlayer{};

    // The first save into a game directory keeps the files it replaces as
    // .bak copies; pointing the game at another directory starts afresh.
    bool BackupsKept = false;
    // What the last load found in the files but could not keep, said for a
    // message; a save asks before it writes the files without it.
    std::string LoadDropped;
    // The files as the last load or save left them (GameFilesStamp), so that a
    // save notices another program's save in between; empty: not checked.
    std::string LoadedStamp;
};

// Points the game at a directory: the two data files are looked for inside it.
void SetGameDirectory(Game& game, const std::string& directory);

// Forgets every player and team, so that a second directory starts clean.
void ClearTables(Game& game);

// Number of teams loaded: slots 1 to TeamCount - 2, never past the table.
int LoadedTeamCount(const Game& game);
