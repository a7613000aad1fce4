#pragma once

#include <cstdint>
#include <unordered_map>

#include "data/game.h"
#include "data/record_changes.h"

// Which records differ from the files as last loaded or saved. The first
// step that touches a record since then holds its saved value, so only the
// records touched are kept and compared, and a load or save costs nothing.
class SavedRecords {
public:
    // After a load or a save: the game as it is now is what the files hold.
    void Reset(const Game& game);
    // After a step, or the undo of one (`undone`): the records it touched are
    // compared with their saved values.
    void Follow(const Game& game, const RecordChange& change, bool undone);
    bool Differ() const { return differing_ > 0 || countsDiffer_; }

private:
    template <typename Record>
    struct Saved {
        Record record;
        bool differs = false;
    };
    template <typename Record, typename Copy, typename Table>
    void Compare(std::unordered_map<int, Saved<Record>>& saved, const Copy& copy, const Table& now, bool undone);

    std::unordered_map<int, Saved<PlayerRecord>> players_;
    std::unordered_map<int, Saved<TeamRecord>> teams_;
    int differing_ = 0;
    std::int16_t playerCount_ = 0;
    std::int16_t teamCount_ = 0;
    bool countsDiffer_ = false;
};
