#pragma once

class GameDocument;
class QAction;
class QMainWindow;
class QMenu;

// The Edit menu of the main window: Undo (Ctrl+Z) and Redo (Ctrl+Y or
// Ctrl+Shift+Z), each naming the step of the document's history it would
// undo or redo.
//
// The keys reach the menu from every text box of the window, never undoing
// a box's own typing, so the boxes must all exist when the menu is built.
struct EditMenu {
    QMenu* menu = nullptr;
    QAction* undo = nullptr;
    QAction* redo = nullptr;
};
EditMenu BuildEditMenu(QMainWindow& window, GameDocument& document);
