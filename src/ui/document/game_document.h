#pragma once

#include <QObject>
#include <QString>
#include <QUndoStack>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "data/fields.h"
#include "data/file_io.h"
#include "data/game.h"
#include "data/load_game.h"
#include "data/record_changes.h"
#include "data/save.h"
#include "document/saved_records.h"
#include "forms/typed_value.h"

class FolderPresence;

// The squad the user was working on when he made a step, and the player the
// step was about, for the window to bring into view when the step is undone
// or redone; 0 for none. An undo of a replace shows the player it took out.
struct StepPlace {
    int team = 0;
    int player = 0;
    int replaced = 0;
};

// The game being edited, and the one way to change it. It owns the records,
// the game's folder, the steps of undo and the state of the files as last
// loaded or saved. Every change is a step of the history, and after each one
// the document says which records it changed: the windows draw from these
// signals and keep no record of their own.
class GameDocument : public QObject {
    Q_OBJECT
public:
    explicit GameDocument(std::unique_ptr<Game> game = std::make_unique<Game>(), QObject* parent = nullptr);
    ~GameDocument() override;

    const Game& Records() const { return *game_; }
    const std::string& Folder() const { return game_->GameDirectory; }

    // Reads the game in `folder` in place of the open one. Nothing of the old
    // game stays, the steps of undo are forgotten and the game as read is
    // what the files hold.
    GameLoad Load(const std::string& folder);
    // Marks the folder as open in this editor, for as long as it stays open;
    // true when another editor has it open too.
    bool MarkFolderOpen();
    // Writes both files as one pair; `dropConfirmed`: the user agreed to lose
    // what the load could not keep; `otherChanges`: what becomes of files
    // another program saved meanwhile. A save that works makes the game as
    // it is now the saved state.
    FileResult Save(bool dropConfirmed, OtherChanges otherChanges = OtherChanges::Refuse);
    // Whether the records differ from the files as last loaded or saved: an
    // edit typed back to what was there is no change.
    bool IsModified() const { return saved_.Differ(); }

    // A value typed or picked in the box of a field: the record follows at
    // once. A value the field cannot take puts back what the field held when
    // the box was entered. The changes of one box are one step until
    // EndTyping; typing again in the box of the newest step joins that step.
    // `where` is where the user is, for undo to go back to.
    void Type(int player, const PlayerField& field, const TypedValue& value, StepPlace where);
    void Type(int team, const TeamField& field, const TypedValue& value, StepPlace where);
    // The box being typed in was left: its step is complete.
    void EndTyping();

    // Runs `change` on the game as one step called `text` ("delete of A
    // Neskerly"). Whatever it changes, in any record, undo puts back exactly.
    void Change(const QString& text, StepPlace place, const std::function<void(Game&)>& change);

    void Undo();
    void Redo();
    // The steps, for the Edit menu to name them.
    const QUndoStack& History() const { return history_; }

signals:
    // After every step, undone or redone steps included: each record it
    // changed, then the whole change at once for views of many records.
    void playerChanged(int player);
    void teamChanged(int team);
    void squadChanged(int team);
    void recordsChanged(const RecordChange& change);
    // Another game was read: every record may differ.
    void gameReplaced();
    void modifiedChanged(bool modified);
    // An undo or redo put the records back; `place` is where the step was
    // made, with the player to show after it.
    void stepRevisited(StepPlace place);
    // The box being typed in was left, or a command ended its typing.
    void typingEnded();

private:
    struct OpenEdit;
    template <class Record>
    void TypeInto(Record& record, int number, const Field<Record>& field, const TypedValue& value, StepPlace where);
    // The typing session a new edit of a box joins: the newest step's, when
    // that step was the last typing in the same box, else a new one.
    int SessionFor(const void* field, bool team, int number);
    void Push(RecordChange change, const QString& text, StepPlace place, int typingSession);
    // An undo or redo of a step: the records go back or forward.
    void Revisit(const RecordChange& change, bool undo, StepPlace place);
    // Says what a step changed; `undone`: the step was taken back.
    void Announce(const RecordChange& change, bool undone);
    void FollowModified();

    std::unique_ptr<Game> game_;
    RecordLedger ledger_;
    QUndoStack history_;
    std::unique_ptr<FolderPresence> presence_;
    SavedRecords saved_;
    std::unique_ptr<OpenEdit> typing_;
    std::unique_ptr<OpenEdit> lastTyping_;   // the box typed in before, once left
    int sessions_ = 0;
    bool modified_ = false;
};
