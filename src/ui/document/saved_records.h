#pragma once

#include <cstdint>
#include <vector>

#include "data/game.h"
#include "data/record_changes.h"

// The records as the files held them when last loaded or saved, and which of
// the game's records differ from them now. Each step updates only the records
// it touched, so whether the game is modified costs nothing to ask.
class SavedRecords {
public:
    // After a load or a save: the game as it is now is what the files hold.
    void Reset(const Game& game);
    // After a step, undone or redone too: the records it touched are compared.
    void Follow(const Game& game, const RecordChange& change);
    bool Differ() const;

private:
    std::vector<PlayerRecord> players_;
    std::vector<TeamRecord> teams_;
    std::vector<bool> playerDiffers_;
    std::vector<bool> teamDiffers_;
    int differing_ = 0;
    std::int16_t playerCount_ = 0;
    std::int16_t teamCount_ = 0;
    bool countsDiffer_ = false;
};
