#pragma once

#include <QString>

#include "data/record_changes.h"
#include "data/records.h"

// How the steps of the history are named; the Edit menu puts "Undo " or
// "Redo " before them.
QString PlayerName(const PlayerRecord& player);
QString DeleteStepText(const PlayerRecord& player);
QString AddStepText(const PlayerRecord& player, const TeamRecord& team);
QString ReplaceStepText(const PlayerRecord& replaced, const PlayerRecord& candidate);
QString NewPlayerStepText(const PlayerRecord& player);
// A typed step: "edit of Bat skill for A Neskerly", "edit of Wealth for Perth
// Pelicans"; "edits for ..." when several fields of one record changed.
QString TypingStepText(const RecordChange& change);
