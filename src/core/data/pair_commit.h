#pragma once

#include <string>
#include <string_view>

#include "data/file_io.h"

// Both game files change as one. A save writes the new pair under temporary
// names, keeps the old pair as players.dat.prev and teams.dat.prev, and only
// then writes a small record, kolta-save.commit, naming every move still to
// make. The record is the point of no return: until it exists the old pair is
// untouched, and once it exists every move can be made again from what is on
// the disk. The moves done, the record goes. A failure in a move puts the old
// pair back from .prev before it is reported; a process that dies leaves the
// record for the next load to finish.
//
// .bak (the first save of a session) and .orig (the first save ever in the
// folder) are made in the same commit, so they too are only ever a pair.

struct PairSave {
    std::string folder;
    std::string playersPath;
    std::string teamsPath;
    std::string playersBytes;
    std::string teamsBytes;
    bool keepBackup = false;  // also keep the old pair as .bak
};

// The caller holds the folder's lock and has recovered any cut-off save.
FileResult CommitPair(const PairSave& save);

// Finishes or undoes what a cut-off save left in `folder`, and clears away
// temporary files and any half of a .bak, .orig or .prev pair. Says what it
// did for the user, or nothing when there was nothing to do. The caller holds
// the folder's lock.
std::string RecoverPair(const std::string& folder);

// The name of the record in a folder.
std::string CommitRecordPath(const std::string& folder);

// Called after each step of a commit with the step's name, so that a test can
// stop the process there. Not set outside the tests.
using CommitStepHook = void (*)(std::string_view step);
void SetCommitStepHook(CommitStepHook hook);
