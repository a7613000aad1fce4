#pragma once

#include <QString>

#include "data/records.h"

// A player as the lists show him: initials, one blank, surname. A player
// without initials keeps the blank in front.
QString ListedName(const PlayerRecord& player);
