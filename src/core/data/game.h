#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "data/records.h"

// Everything the editor knows about one game. The windows share one instance;
// tests make their own. It is large, so keep it on the heap.
struct Game {
    std::array<PlayerRecord, MaxPlayers + 1> Players{};  // slot 0 is no player
    std::array<TeamRecord, MaxTeams + 1> Teams{};        // slot 0 is never used
    std::int16_t PlayerCount = 0;
    std::int16_t TeamCount = 0;  // see TeamCountFor

    std::string GameDirectory;
    std::string PlayersPath;
    std::string TeamsPath;

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

// TeamCount for a table of `teams` teams: two above it, because the game's
// reader counts its pass over the empty lines that close teams.dat as a team
// and then steps one slot past it.
std::int16_t TeamCountFor(int teams);

// Number of teams loaded: slots 1 to TeamCount - 2, never past the table.
int LoadedTeamCount(const Game& game);

// The last slot a search of all squads looks at: TeamCount itself, as the
// game's own loops run, never past the table.
int LastTeamSearched(const Game& game);

// Number of players: slots 1 to PlayerCount, never past the table.
int LoadedPlayerCount(const Game& game);
