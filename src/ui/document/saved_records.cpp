#include "document/saved_records.h"

void SavedRecords::Reset(const Game& game)
{
    players_.clear();
    teams_.clear();
    differing_ = 0;
    playerCount_ = game.PlayerCount;
    teamCount_ = game.TeamCount;
    countsDiffer_ = false;
}

template <typename Record, typename Copy, typename Table>
void SavedRecords::Compare(std::unordered_map<int, Saved<Record>>& saved, const Copy& copy, const Table& now,
                           bool undone)
{
    // Untouched since the save, the record held what it held before this step.
    Saved<Record>& kept =
        saved.try_emplace(copy.number, Saved<Record>{undone ? copy.after : copy.before}).first->second;
    const bool differs = now[std::size_t(copy.number)] != kept.record;
    if (differs != kept.differs)
        differing_ += differs ? 1 : -1;
    kept.differs = differs;
}

void SavedRecords::Follow(const Game& game, const RecordChange& change, bool undone)
{
    for (const RecordChange::PlayerCopy& copy : change.players)
        Compare(players_, copy, game.Players, undone);
    for (const RecordChange::TeamCopy& copy : change.teams)
        Compare(teams_, copy, game.Teams, undone);
    countsDiffer_ = game.PlayerCount != playerCount_ || game.TeamCount != teamCount_;
}
