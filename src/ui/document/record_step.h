#pragma once

#include <QString>
#include <QUndoCommand>
#include <functional>

#include "data/record_changes.h"
#include "document/game_document.h"

// One step of the history: the records it touched, before and after. It is
// pushed after its change has been made, so the push leaves the records
// alone; undo and redo hand the change to `revisit`. The keystrokes of one
// box share a typing session and join one step.
class RecordStep : public QUndoCommand {
public:
    using Revisit = std::function<void(const RecordChange& change, bool undo, StepPlace place)>;

    // `typingSession` is -1 for a step that joins no other.
    RecordStep(Revisit revisit, RecordChange change, StepPlace place, const QString& text, int typingSession);

    int TypingSession() const { return typingSession_; }

    int id() const override;
    bool mergeWith(const QUndoCommand* other) override;
    void undo() override;
    void redo() override;

private:
    Revisit revisit_;
    RecordChange change_;
    StepPlace place_;
    int typingSession_;
    bool pushed_ = false;
};
