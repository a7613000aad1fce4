#include "document/record_step.h"

#include "document/step_names.h"

namespace {

constexpr int TypingId = 1;

}  // namespace

RecordStep::RecordStep(Revisit revisit, RecordChange change, StepPlace place, const QString& text, int typingSession)
    : revisit_(std::move(revisit)), change_(std::move(change)), place_(place), typingSession_(typingSession)
{
    setText(text);
}

int RecordStep::id() const
{
    return typingSession_ >= 0 ? TypingId : -1;
}

bool RecordStep::mergeWith(const QUndoCommand* other)
{
    const auto* later = static_cast<const RecordStep*>(other);
    if (later->typingSession_ != typingSession_)
        return false;
    change_.Absorb(later->change_);
    // Typed back to what it was: the step goes from the history.
    setObsolete(change_.Empty());
    setText(TypingStepText(change_));
    return true;
}

void RecordStep::undo()
{
    revisit_(change_, true, place_);
}

void RecordStep::redo()
{
    if (pushed_)
        revisit_(change_, false, place_);
    pushed_ = true;
}
