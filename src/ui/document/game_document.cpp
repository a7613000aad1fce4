#include "document/game_document.h"

#include <type_traits>

#include "data/folder_lock.h"
#include "data/save.h"
#include "data/squad.h"
#include "document/record_step.h"
#include "document/step_names.h"

namespace {

template <class Record>
TypedValue ValueOf(const Record& record, const Field<Record>& field)
{
    if (field.kind == FieldKind::Name)
        return record.*field.text;
    return record.*field.number;
}

template <class Record>
void Store(Record& record, const Field<Record>& field, const TypedValue& value)
{
    if (const auto* text = std::get_if<std::string>(&value); text && field.kind == FieldKind::Name)
        record.*field.text = *text;
    else if (const auto* number = std::get_if<std::int16_t>(&value); number && field.kind != FieldKind::Name)
        record.*field.number = *number;
}

}  // namespace

// The box being typed in: its field, its record, what the field held when
// the box was entered and the typing session its keystrokes join.
struct GameDocument::OpenEdit {
    const void* field;
    bool team;
    int number;
    TypedValue entry;
    int session;

    bool Edits(const void* otherField, bool otherTeam, int otherNumber) const
    {
        return field == otherField && team == otherTeam && number == otherNumber;
    }
};

GameDocument::GameDocument(std::unique_ptr<Game> game, QObject* parent)
    : QObject(parent), game_(std::move(game))
{
    ledger_.Reset(*game_);
    saved_.Reset(*game_);
}

GameDocument::~GameDocument() = default;

GameLoad GameDocument::Load(const std::string& folder)
{
    EndTyping();
    presence_.reset();
    // Nothing of the old game may turn up in the lists, a search or the next save.
    ClearTables(*game_);
    game_->BackupsKept = false;
    SetGameDirectory(*game_, folder);
    const GameLoad load = LoadGame(*game_);
    ledger_.Reset(*game_);
    saved_.Reset(*game_);
    history_.clear();
    FollowModified();
    emit gameReplaced();
    return load;
}

bool GameDocument::MarkFolderOpen()
{
    presence_.reset();
    presence_ = std::make_unique<FolderPresence>(game_->GameDirectory);
    return presence_->OthersHadItOpen();
}

FileResult GameDocument::Save(bool dropConfirmed, OtherChanges otherChanges)
{
    EndTyping();
    const FileResult result = SaveGame(*game_, dropConfirmed, otherChanges);
    if (result.ok()) {
        // Typing on in the box of the saved step starts a step of its own,
        // so the saved state stays one undo away.
        lastTyping_.reset();
        saved_.Reset(*game_);
        FollowModified();
    }
    return result;
}

void GameDocument::FollowModified()
{
    if (IsModified() == modified_)
        return;
    modified_ = IsModified();
    emit modifiedChanged(modified_);
}

void GameDocument::Type(int player, const PlayerField& field, const TypedValue& value, StepPlace where)
{
    if (IsPlayerNumber(player))
        TypeInto(game_->Players[std::size_t(player)], player, field, value, where);
}

void GameDocument::Type(int team, const TeamField& field, const TypedValue& value, StepPlace where)
{
    if (IsTeamIndex(team))
        TypeInto(game_->Teams[std::size_t(team)], team, field, value, where);
}

template <class Record>
void GameDocument::TypeInto(Record& record, int number, const Field<Record>& field, const TypedValue& value,
                            StepPlace where)
{
    constexpr bool team = std::is_same_v<Record, TeamRecord>;
    if (!typing_ || !typing_->Edits(&field, team, number)) {
        EndTyping();
        typing_ = std::make_unique<OpenEdit>(
            OpenEdit{&field, team, number, ValueOf(record, field), SessionFor(&field, team, number)});
    }
    // A text that is no value of the field leaves what was there before the box was entered.
    Store(record, field, std::holds_alternative<std::monostate>(value) ? typing_->entry : value);
    RecordChange change =
        team ? ledger_.TakeChanges(*game_, {}, {number}) : ledger_.TakeChanges(*game_, {number}, {});
    if (change.Empty())
        return;
    const QString text = TypingStepText(change);
    Push(std::move(change), text, where, typing_->session);
}

int GameDocument::SessionFor(const void* field, bool team, int number)
{
    const int newest = history_.index() - 1;
    const auto* step = newest >= 0 && newest == history_.count() - 1
                           ? static_cast<const RecordStep*>(history_.command(newest))
                           : nullptr;
    if (lastTyping_ && lastTyping_->Edits(field, team, number) && step &&
        step->TypingSession() == lastTyping_->session)
        return lastTyping_->session;
    return ++sessions_;
}

void GameDocument::EndTyping()
{
    if (!typing_)
        return;
    lastTyping_ = std::move(typing_);
    emit typingEnded();
}

void GameDocument::Change(const QString& text, StepPlace place, const std::function<void(Game&)>& change)
{
    EndTyping();
    change(*game_);
    RecordChange made = ledger_.TakeAllChanges(*game_);
    if (!made.Empty())
        Push(std::move(made), text, place, -1);
}

void GameDocument::Push(RecordChange change, const QString& text, StepPlace place, int typingSession)
{
    Announce(change, false);
    history_.push(new RecordStep([this](const RecordChange& step, bool undo,
                                        StepPlace at) { Revisit(step, undo, at); },
                                 std::move(change), place, text, typingSession));
}

void GameDocument::Undo()
{
    EndTyping();
    history_.undo();
}

void GameDocument::Redo()
{
    EndTyping();
    history_.redo();
}

void GameDocument::Revisit(const RecordChange& change, bool undo, StepPlace place)
{
    if (undo)
        change.Undo(*game_);
    else
        change.Redo(*game_);
    ledger_.Follow(*game_, change);
    Announce(change, undo);
    emit stepRevisited(undo && place.replaced ? StepPlace{place.team, place.replaced} : place);
}

void GameDocument::Announce(const RecordChange& change, bool undone)
{
    saved_.Follow(*game_, change, undone);
    FollowModified();
    for (const RecordChange::PlayerCopy& copy : change.players)
        emit playerChanged(copy.number);
    for (const RecordChange::TeamCopy& copy : change.teams)
        emit teamChanged(copy.number);
    for (const RecordChange::TeamCopy& copy : change.teams) {
        if (copy.before.squad != copy.after.squad)
            emit squadChanged(copy.number);
    }
    emit recordsChanged(change);
}
