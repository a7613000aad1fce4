#pragma once

#include <cstdint>

#include "data/game.h"

// Invented worlds for the editor: every name is made up from our own
// syllables, every value drawn from a seeded generator of our own, so the
// same seed gives the same bytes on every platform.

inline constexpr std::uint32_t SampleSeed = 1997;

// The sample game shipped in sample/: teams in all ten team countries, squads
// of 14 to 20 and about a hundred players without a team. Fills `game` from
// blank tables; the paths are left alone.
void GenerateSampleWorld(Game& game, std::uint32_t seed = SampleSeed);

// A world as large as the files allow: 2000 players and 500 teams.
void GenerateFullSizeWorld(Game& game, std::uint32_t seed = SampleSeed);
