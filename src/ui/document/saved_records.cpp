#include "document/saved_records.h"

namespace {

// Notes whether record `number` differs from its saved copy; `differing`
// counts the records that do.
template <typename Record, typename Table>
void Compare(const Table& now, const std::vector<Record>& saved, std::vector<bool>& differs, int& differing,
             int number)
{
    const std::size_t at = std::size_t(number);
    const bool differsNow = now[at] != saved[at];
    if (differsNow != differs[at])
        differing += differsNow ? 1 : -1;
    differs[at] = differsNow;
}

}  // namespace

void SavedRecords::Reset(const Game& game)
{
    players_.assign(game.Players.begin(), game.Players.end());
    teams_.assign(game.Teams.begin(), game.Teams.end());
    playerDiffers_.assign(players_.size(), false);
    teamDiffers_.assign(teams_.size(), false);
    differing_ = 0;
    playerCount_ = game.PlayerCount;
    teamCount_ = game.TeamCount;
    countsDiffer_ = false;
}

void SavedRecords::Follow(const Game& game, const RecordChange& change)
{
    for (const RecordChange::PlayerCopy& copy : change.players)
        Compare(game.Players, players_, playerDiffers_, differing_, copy.number);
    for (const RecordChange::TeamCopy& copy : change.teams)
        Compare(game.Teams, teams_, teamDiffers_, differing_, copy.number);
    countsDiffer_ = game.PlayerCount != playerCount_ || game.TeamCount != teamCount_;
}

bool SavedRecords::Differ() const
{
    return differing_ > 0 || countsDiffer_;
}
