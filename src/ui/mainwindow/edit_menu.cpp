#include "mainwindow/edit_menu.h"

#include <QAction>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>

#include "document/game_document.h"

namespace {

// A text box would take Ctrl+Z and the redo keys for its own typing; here
// they always reach the menu, so they take the newest step of the game's
// history whichever box has the focus, and do nothing when there is none.
class UndoKeysToMenu : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress)
            return false;
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool undoKey = key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo) ||
                             key->keyCombination() == QKeyCombination(Qt::CTRL, Qt::Key_Y);
        if (!undoKey)
            return false;
        // Not claimed, the key goes to the menu's shortcut; a key press that
        // still arrives found the menu item disabled and is dropped.
        event->setAccepted(event->type() == QEvent::KeyPress);
        return true;
    }
};

void FollowStack(QAction* action, const QString& verb, bool enabled, const QString& step)
{
    action->setEnabled(enabled);
    action->setText(step.isEmpty() ? verb : verb + QLatin1Char(' ') + step);
}

}  // namespace

EditMenu BuildEditMenu(QMainWindow& window, GameDocument& document)
{
    EditMenu edit;
    edit.menu = window.menuBar()->addMenu(QStringLiteral("&Edit"));
    edit.undo = edit.menu->addAction(QStringLiteral("&Undo"));
    edit.undo->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Z));
    edit.redo = edit.menu->addAction(QStringLiteral("&Redo"));
    edit.redo->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)});

    const QUndoStack& stack = document.History();
    const auto follow = [&stack, edit] {
        FollowStack(edit.undo, QStringLiteral("&Undo"), stack.canUndo(), stack.undoText());
        FollowStack(edit.redo, QStringLiteral("&Redo"), stack.canRedo(), stack.redoText());
    };
    follow();
    QObject::connect(&stack, &QUndoStack::canUndoChanged, edit.menu, follow);
    QObject::connect(&stack, &QUndoStack::canRedoChanged, edit.menu, follow);
    QObject::connect(&stack, &QUndoStack::undoTextChanged, edit.menu, follow);
    QObject::connect(&stack, &QUndoStack::redoTextChanged, edit.menu, follow);

    QObject::connect(edit.undo, &QAction::triggered, edit.menu, [&document] { document.Undo(); });
    QObject::connect(edit.redo, &QAction::triggered, edit.menu, [&document] { document.Redo(); });

    auto* toMenu = new UndoKeysToMenu(edit.menu);
    for (QLineEdit* box : window.findChildren<QLineEdit*>())
        box->installEventFilter(toMenu);
    return edit;
}
