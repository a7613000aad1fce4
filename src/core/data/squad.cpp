#include "data/squad.h"

#include <algorithm>

namespace {

// Closes the gaps a file may have left, keeping the order of the players.
// Whatever the free places held stays behind the players.
void PackSquad(Squad& squad)
{
    std::stable_partition(squad.begin() + 1, squad.end(), IsPlayerNumber);
}

// After `player` has left a squad: his teamNumber stays while that team
// still holds him (a squad may name him twice), else it follows another
// squad that does, and is 0 only when none is left.
void SettleTeamNumber(Game& game, std::int16_t player)
{
    if (!IsPlayerNumber(player))
        return;
    std::int16_t& team = game.Players[player].teamNumber;
    if (!IsInSquad(game, team, player))
        team = PresentClub(game, player);
}

}  // namespace

bool IsTeamIndex(int team)
{
    return team >= 1 && team <= MaxTeams;
}

bool IsPlayerNumber(int player)
{
    return player >= 1 && player <= MaxPlayers;
}

int SquadCount(const TeamRecord& team)
{
    return static_cast<int>(std::count_if(team.squad.begin() + 1, team.squad.end(), IsPlayerNumber));
}

int SlotOfRow(const TeamRecord& team, int row)
{
    if (row < 0)
        return 0;
    for (int slot = 1; slot <= SquadSize; ++slot) {
        if (IsPlayerNumber(team.squad[slot]) && row-- == 0)
            return slot;
    }
    return 0;
}

void RemoveSquadSlot(Game& game, int team, int slot)
{
    if (!IsTeamIndex(team) || slot < 1 || slot > SquadSize)
        return;
    Squad& squad = game.Teams[team].squad;
    std::copy(squad.begin() + slot + 1, squad.end(), squad.begin() + slot);
    squad[SquadSize] = 0;
}

std::int16_t DetachFromSquads(Game& game, std::int16_t player)
{
    std::int16_t oldTeam = 0;
    if (!IsPlayerNumber(player))
        return oldTeam;
    const int lastTeam = LastTeamSearched(game);
    for (int team = 1; team <= lastTeam; ++team) {
        const Squad& squad = game.Teams[team].squad;
        for (int slot = 1; slot <= SquadSize; ++slot) {
            // Closing a place moves the next player into it, so look again.
            while (squad[slot] == player) {
                RemoveSquadSlot(game, team, slot);
                oldTeam = static_cast<std::int16_t>(team);
            }
        }
    }
    return oldTeam;
}

bool IsInSquad(const Game& game, int team, std::int16_t player)
{
    if (!IsTeamIndex(team) || !IsPlayerNumber(player))
        return false;
    const Squad& squad = game.Teams[team].squad;
    return std::find(squad.begin() + 1, squad.end(), player) != squad.end();
}

std::int16_t PresentClub(const Game& game, std::int16_t player)
{
    std::int16_t club = 0;
    if (!IsPlayerNumber(player))
        return club;
    const int lastTeam = LastTeamSearched(game);
    for (int team = 1; team <= lastTeam; ++team) {
        if (IsInSquad(game, team, player))
            club = static_cast<std::int16_t>(team);
    }
    return club;
}

std::int16_t DeleteFromSquad(Game& game, int team, int slot)
{
    if (!IsTeamIndex(team) || slot < 1 || slot > SquadSize)
        return 0;
    const std::int16_t player = game.Teams[team].squad[slot];
    RemoveSquadSlot(game, team, slot);
    SettleTeamNumber(game, player);
    return player;
}

std::int16_t AddToSquad(Game& game, int team, std::int16_t candidate)
{
    if (!IsTeamIndex(team) || !IsPlayerNumber(candidate) || SquadCount(game.Teams[team]) >= SquadSize)
        return 0;
    const std::int16_t oldTeam = DetachFromSquads(game, candidate);
    Squad& squad = game.Teams[team].squad;
    PackSquad(squad);
    const int size = SquadCount(game.Teams[team]);
    game.Players[candidate].teamNumber = static_cast<std::int16_t>(team);
    squad[size + 1] = candidate;
    return oldTeam;
}

Replacement ReplaceInSquad(Game& game, int team, int row, std::int16_t candidate)
{
    Replacement result;
    if (!IsTeamIndex(team) || !IsPlayerNumber(candidate) || SlotOfRow(game.Teams[team], row) == 0)
        return result;
    result.oldTeam = DetachFromSquads(game, candidate);
    const int slot = SlotOfRow(game.Teams[team], row);
    if (slot == 0)
        return result;
    result.replaced = game.Teams[team].squad[slot];
    game.Players[candidate].teamNumber = static_cast<std::int16_t>(team);
    game.Teams[team].squad[slot] = candidate;
    SettleTeamNumber(game, result.replaced);
    return result;
}

std::vector<std::vector<int>> TeamsHoldingEachPlayer(const Game& game)
{
    std::vector<std::vector<int>> holders(MaxPlayers + 1);
    for (int team = 1; team <= LoadedTeamCount(game); ++team) {
        for (int place = 1; place <= SquadSize; ++place) {
            const int player = game.Teams[team].squad[place];
            if (IsPlayerNumber(player))
                holders[player].push_back(team);
        }
    }
    return holders;
}
