#pragma once

#include <QObject>
#include <QString>
#include <QUndoStack>
#include <functional>

#include "data/game.h"
#include "data/record_changes.h"

// The team and player a step touched, for the window to bring into view when
// the step is undone or redone; 0 for none.
struct StepPlace {
    int team = 0;
    int player = 0;
};

// Every change to the game as a step that can be undone and redone. A step
// is found as the difference from the records as the last step left them, so
// whatever a command did, its step puts back exactly what was there.
//
// A typed value is one step per box: the ticks that carry a box into its
// record join one step until EndTyping, which the window calls when the focus
// leaves the box. The stack's clean state is the game as last loaded or
// saved; undoing back to it leaves no unsaved changes.
class GameHistory : public QObject {
    Q_OBJECT
public:
    explicit GameHistory(Game& game, QObject* parent = nullptr);

    QUndoStack& Stack() { return stack_; }
    const QUndoStack& Stack() const { return stack_; }

    // After a load: every step is forgotten and the game as it is now is
    // what the files hold.
    void Restart();
    // After a save: the files hold the game as it is now. The steps stay.
    void MarkSaved();
    bool HasUnsavedChanges() const { return !stack_.isClean(); }

    // After a tick has carried the boxes into `player` and `team`: what it
    // changed there joins the step of the box being typed in.
    void RecordTyping(int player, int team);
    // The box being typed in has lost the focus: its step is complete.
    void EndTyping();

    // After a squad command: everything it changed, in any record, is one
    // step called `text` ("delete of A Neskerly").
    void RecordStep(const QString& text, StepPlace place);
    // The same, named from what it changed.
    using StepNamer = std::function<QString(const RecordChange& change)>;
    void RecordStep(const StepNamer& name, StepPlace place);

    // Undoes or redoes a step: the records go back, the ledger follows and
    // StepShown tells the window where to look.
    void Apply(const RecordChange& change, bool undo, StepPlace place);

signals:
    void StepShown(StepPlace place);
    void UnsavedChangesChanged(bool unsaved);

private:
    Game& game_;
    RecordLedger ledger_;
    QUndoStack stack_;
    int typingSession_ = 0;
};

// How the steps of the squad commands are named; the Edit menu puts "Undo "
// or "Redo " before them.
QString PlayerName(const PlayerRecord& player);
QString DeleteStepText(const PlayerRecord& player);
QString AddStepText(const PlayerRecord& player, const TeamRecord& team);
QString ReplaceStepText(const PlayerRecord& replaced, const PlayerRecord& candidate);
QString NewPlayerStepText(const PlayerRecord& player);
// An add or a replace into the squad of `team`, told apart by whether the
// step put a player out of that squad.
QString TransferStepText(const Game& game, const RecordChange& change, int team);
// A typed step: "edit of Bat skill for A Neskerly", "edit of Wealth for Perth
// Pelicans"; "edits for ..." when several fields of one record changed.
QString TypingStepText(const RecordChange& change);
