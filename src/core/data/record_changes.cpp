#include "data/record_changes.h"

#include <algorithm>


namespace {

// Joins the copies of a later step into those of an earlier one, both in
// ascending number; a record both touched keeps the earlier before.
template <typename Copy>
void JoinCopies(std::vector<Copy>& earlier, const std::vector<Copy>& later)
{
    std::vector<Copy> joined;
    joined.reserve(earlier.size() + later.size());
    auto a = earlier.begin();
    auto b = later.begin();
    while (a != earlier.end() || b != later.end()) {
        if (b == later.end() || (a != earlier.end() && a->number < b->number)) {
            joined.push_back(std::move(*a++));
        } else if (a == earlier.end() || b->number < a->number) {
            joined.push_back(*b++);
        } else {
            Copy both = std::move(*a++);
            both.after = b++->after;
            joined.push_back(std::move(both));
        }
    }
    std::erase_if(joined, [](const Copy& copy) { return copy.before == copy.after; });
    earlier = std::move(joined);
}

// Sorted, without repeats, inside 1 to `highest`.
std::vector<int> Numbers(std::initializer_list<int> wanted, int highest)
{
    std::vector<int> numbers;
    for (int number : wanted)
        if (number >= 1 && number <= highest)
            numbers.push_back(number);
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
    return numbers;
}

}  // namespace

bool RecordChange::Empty() const
{
    return players.empty() && teams.empty() && playerCountBefore == playerCountAfter &&
           teamCountBefore == teamCountAfter;
}

void RecordChange::Undo(Game& game) const
{
    for (const PlayerCopy& copy : players)
        game.Players[std::size_t(copy.number)] = copy.before;
    for (const TeamCopy& copy : teams)
        game.Teams[std::size_t(copy.number)] = copy.before;
    game.PlayerCount = playerCountBefore;
    game.TeamCount = teamCountBefore;
}

void RecordChange::Redo(Game& game) const
{
    for (const PlayerCopy& copy : players)
        game.Players[std::size_t(copy.number)] = copy.after;
    for (const TeamCopy& copy : teams)
        game.Teams[std::size_t(copy.number)] = copy.after;
    game.PlayerCount = playerCountAfter;
    game.TeamCount = teamCountAfter;
}

void RecordChange::Absorb(const RecordChange& later)
{
    JoinCopies(players, later.players);
    JoinCopies(teams, later.teams);
    playerCountAfter = later.playerCountAfter;
    teamCountAfter = later.teamCountAfter;
}

struct RecordLedger::Tables {
    std::array<PlayerRecord, MaxPlayers + 1> players{};
    std::array<TeamRecord, MaxTeams + 1> teams{};
    std::int16_t playerCount = 0;
    std::int16_t teamCount = 0;

    // Compares one record with the game's and, when it differs, notes both
    // copies and takes the game's.
    void TakePlayer(const Game& game, int number, RecordChange& change)
    {
        PlayerRecord& kept = players[std::size_t(number)];
        const PlayerRecord& now = game.Players[std::size_t(number)];
        if (kept == now)
            return;
        change.players.push_back({std::int16_t(number), kept, now});
        kept = now;
    }

    void TakeTeam(const Game& game, int number, RecordChange& change)
    {
        TeamRecord& kept = teams[std::size_t(number)];
        const TeamRecord& now = game.Teams[std::size_t(number)];
        if (kept == now)
            return;
        change.teams.push_back({std::int16_t(number), kept, now});
        kept = now;
    }

    RecordChange TakeCounts(const Game& game)
    {
        RecordChange change;
        change.playerCountBefore = playerCount;
        change.teamCountBefore = teamCount;
        change.playerCountAfter = playerCount = game.PlayerCount;
        change.teamCountAfter = teamCount = game.TeamCount;
        return change;
    }
};

RecordLedger::RecordLedger()
    : tables_(std::make_unique<Tables>())
{
}

RecordLedger::~RecordLedger() = default;

void RecordLedger::Reset(const Game& game)
{
    std::copy(game.Players.begin(), game.Players.end(), tables_->players.begin());
    std::copy(game.Teams.begin(), game.Teams.end(), tables_->teams.begin());
    tables_->playerCount = game.PlayerCount;
    tables_->teamCount = game.TeamCount;
}

RecordChange RecordLedger::TakeChanges(const Game& game, std::initializer_list<int> players,
                                       std::initializer_list<int> teams)
{
    RecordChange change = tables_->TakeCounts(game);
    for (int number : Numbers(players, MaxPlayers))
        tables_->TakePlayer(game, number, change);
    for (int number : Numbers(teams, MaxTeams))
        tables_->TakeTeam(game, number, change);
    return change;
}

RecordChange RecordLedger::TakeAllChanges(const Game& game)
{
    RecordChange change = tables_->TakeCounts(game);
    for (int number = 1; number <= MaxPlayers; ++number)
        tables_->TakePlayer(game, number, change);
    for (int number = 1; number <= MaxTeams; ++number)
        tables_->TakeTeam(game, number, change);
    return change;
}

void RecordLedger::Follow(const Game& game, const RecordChange& change)
{
    for (const RecordChange::PlayerCopy& copy : change.players)
        tables_->players[std::size_t(copy.number)] = game.Players[std::size_t(copy.number)];
    for (const RecordChange::TeamCopy& copy : change.teams)
        tables_->teams[std::size_t(copy.number)] = game.Teams[std::size_t(copy.number)];
    tables_->playerCount = game.PlayerCount;
    tables_->teamCount = game.TeamCount;
}
