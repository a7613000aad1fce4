#pragma once

class GameDocument;
class QAction;
class QMainWindow;
class QMenu;

// The Edit menu of the main window: Undo (Ctrl+Z) and Redo (Ctrl+Y or
// Ctrl+Shift+Z), each naming the step of the document's history it would
// undo or redo.
//
// In a text box the keys first undo and redo the box's own typing; once the
// box has nothing left to undo they reach the menu. So the window's text
// boxes must all exist when the menu is built.
struct EditMenu {
    QMenu* menu = nullptr;
    QAction* undo = nullptr;
    QAction* redo = nullptr;
};
EditMenu BuildEditMenu(QMainWindow& window, GameDocument& document);
