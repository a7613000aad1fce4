#pragma once

#include <QString>
#include <optional>

class ListBox;
class MainForm;

// Refusals shared by the main window's squad buttons and the search window.
// Each shows its information message and says whether the command must stop.

// The squad list already shows 20 players.
bool RefuseFullSquad(const ListBox& squadList);

// The team the squad commands work on; without one (a country with no
// teams) the user is told to pick a team first, under `title`.
std::optional<int> TeamOrRefuse(const MainForm& main, const QString& title);

// "No Player Selected", under `title`.
void RefuseNoPlayer(const QString& title);
