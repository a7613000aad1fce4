#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <vector>

#include "data/game.h"

// What one step of editing did to the game: a whole copy of every player and
// team record it touched, as it was before and after, and the two counts.
// Putting the copies back restores the records byte for byte, so the files
// written afterwards are the files written before the step.
struct RecordChange {
    struct PlayerCopy {
        std::int16_t number = 0;
        PlayerRecord before;
        PlayerRecord after;
    };
    struct TeamCopy {
        std::int16_t number = 0;
        TeamRecord before;
        TeamRecord after;
    };

    std::vector<PlayerCopy> players;   // in ascending number
    std::vector<TeamCopy> teams;       // in ascending number
    std::int16_t playerCountBefore = 0;
    std::int16_t playerCountAfter = 0;
    std::int16_t teamCountBefore = 0;
    std::int16_t teamCountAfter = 0;

    // True when the step left every record and both counts as they were.
    bool Empty() const;

    // Puts the records and counts back as they were before the step, or as
    // it left them.
    void Undo(Game& game) const;
    void Redo(Game& game) const;

    // Joins a later step on top of this one: the earliest copy before, the
    // latest after. Records the two steps together left unchanged drop out.
    void Absorb(const RecordChange& later);
};

// The player and team records as they stood at the last step taken, so that
// the next step is found as the difference from them. The copy costs about a
// quarter of a megabyte and is made once per game.
class RecordLedger {
public:
    RecordLedger();
    ~RecordLedger();

    // Takes the game as it is now as the starting point: after a load.
    void Reset(const Game& game);

    // What changed since the last step in the named records and the counts
    // only; those records become the new starting point. Numbers outside the
    // tables are skipped.
    RecordChange TakeChanges(const Game& game, std::initializer_list<int> players,
                             std::initializer_list<int> teams);
    // What changed since the last step anywhere in the tables.
    RecordChange TakeAllChanges(const Game& game);

    // After an undo or redo has put copies back into the game: the ledger
    // takes the same records, so they do not count as a new step.
    void Follow(const Game& game, const RecordChange& change);

private:
    struct Tables;
    std::unique_ptr<Tables> tables_;
};
