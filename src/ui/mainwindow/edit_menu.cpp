#include "mainwindow/edit_menu.h"

#include <QAction>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>

#include "document/game_document.h"

namespace {

// A text box claims Ctrl+Z and the redo keys for itself; it lets them pass
// to the menu when it has nothing of its own to undo or redo.
class BoxUndoPassage : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::ShortcutOverride)
            return false;
        const auto* box = static_cast<QLineEdit*>(watched);
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool undo = key->matches(QKeySequence::Undo);
        const bool redo = key->matches(QKeySequence::Redo) ||
                          key->keyCombination() == QKeyCombination(Qt::CTRL, Qt::Key_Y);
        if ((undo && !box->isUndoAvailable()) || (redo && !box->isRedoAvailable())) {
            event->ignore();
            return true;
        }
        return false;
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

    auto* passage = new BoxUndoPassage(edit.menu);
    for (QLineEdit* box : window.findChildren<QLineEdit*>())
        box->installEventFilter(passage);
    return edit;
}
