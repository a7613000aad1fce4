#pragma once

#include <cstdint>

#include "data/squad.h"
#include "document/game_document.h"
#include "newplayer/new_player_check.h"

// The squad commands of the core, each as one step of the document's history
// named as the Edit menu shows it. They take and give what the core's own
// functions do.
std::int16_t DeleteFromSquad(GameDocument& document, int team, int slot);
std::int16_t AddToSquad(GameDocument& document, int team, std::int16_t candidate);
Replacement ReplaceInSquad(GameDocument& document, int team, int row, std::int16_t candidate);
NewPlayerOutcome CommitNewPlayer(GameDocument& document, int team, const NewPlayerEntries& entries);
