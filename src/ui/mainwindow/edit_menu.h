#pragma once

#include <functional>

class GameHistory;
class QAction;
class QMainWindow;
class QMenu;

// The Edit menu of the main window: Undo (Ctrl+Z) and Redo (Ctrl+Y or
// Ctrl+Shift+Z), each naming the step it would undo or redo. `beforeEach`
// runs first, so that what the boxes hold has become a step of its own.
//
// In a text box the keys first undo and redo the box's own typing; once the
// box has nothing left to undo they reach the menu. So the box's text boxes
// must all exist when the menu is built.
struct EditMenu {
    QMenu* menu = nullptr;
    QAction* undo = nullptr;
    QAction* redo = nullptr;
};
EditMenu BuildEditMenu(QMainWindow& window, GameHistory& history, std::function<void()> beforeEach);
