#pragma once

#include <QString>

// Refusals shared by the main window's squad buttons and the search window.
// Each shows its information message and says whether the command must stop.

// The squad already holds 20 players.
bool RefuseFullSquad(int playersInSquad);

// A country with no teams: the user is told to pick a team first, under `title`.
void RefuseNoTeam(const QString& title);

// "No Player Selected", under `title`.
void RefuseNoPlayer(const QString& title);
