#include "history/game_history.h"

#include <QStringList>
#include <QUndoCommand>
#include <algorithm>
#include <span>
#include <string>
#include <vector>

#include "data/fields.h"
#include "data/squad.h"
#include "forms/game_text.h"

namespace {

constexpr int TypingId = 1;

template <class Record, class Copy>
void AddChangedFields(std::span<const Field<Record>> fields, const std::vector<Copy>& copies, const char* kind,
                      std::vector<std::string>& names)
{
    for (const Copy& copy : copies) {
        for (const Field<Record>& field : fields) {
            const bool changed = field.text ? copy.before.*field.text != copy.after.*field.text
                                            : copy.before.*field.number != copy.after.*field.number;
            if (changed)
                names.push_back(kind + std::to_string(copy.number) + ' ' + std::string(field.name));
        }
    }
}

// The fields a step changed, by record and name, sorted.
std::vector<std::string> ChangedFields(const RecordChange& change)
{
    std::vector<std::string> names;
    AddChangedFields<PlayerRecord>(PlayerFields, change.players, "player ", names);
    AddChangedFields<TeamRecord>(TeamFields, change.teams, "team ", names);
    std::sort(names.begin(), names.end());
    return names;
}

// One step of the history. It is pushed after its change has been made, so
// the first redo, which the stack runs on the push, leaves the records alone.
class RecordStepCommand : public QUndoCommand {
public:
    RecordStepCommand(GameHistory& history, RecordChange change, StepPlace place, const QString& text,
                      int typingSession = -1)
        : history_(history), change_(std::move(change)), place_(place), typingSession_(typingSession),
          fields_(ChangedFields(change_))
    {
        setText(text);
    }

    int id() const override { return typingSession_ >= 0 ? TypingId : -1; }

    bool mergeWith(const QUndoCommand* other) override
    {
        // One box is typed in while the focus stays in it: a tick that
        // changed another field belongs to another box.
        const auto* later = static_cast<const RecordStepCommand*>(other);
        if (later->typingSession_ != typingSession_ || later->place_.player != place_.player ||
            later->place_.team != place_.team ||
            !std::includes(fields_.begin(), fields_.end(), later->fields_.begin(), later->fields_.end()))
            return false;
        change_.Absorb(later->change_);
        // Typed back to what it was: the step goes from the stack.
        setObsolete(change_.Empty());
        setText(TypingStepText(change_));
        return true;
    }

    void undo() override { history_.Apply(change_, true, place_); }

    void redo() override
    {
        if (pushed_)
            history_.Apply(change_, false, place_);
        pushed_ = true;
    }

private:
    GameHistory& history_;
    RecordChange change_;
    StepPlace place_;
    int typingSession_;
    std::vector<std::string> fields_;   // "player 4 batSkill", in order
    bool pushed_ = false;
};

template <class Record>
QStringList ChangedLabels(std::span<const Field<Record>> fields, const Record& before, const Record& after)
{
    QStringList labels;
    for (const Field<Record>& field : fields) {
        const bool changed = field.text ? before.*field.text != after.*field.text
                                        : before.*field.number != after.*field.number;
        const QString label = QString::fromLatin1(field.label.data(), qsizetype(field.label.size()));
        if (changed && !labels.contains(label))
            labels.push_back(label);
    }
    return labels;
}

QString EditText(const QStringList& labels, const QString& whose)
{
    if (labels.size() == 1)
        return QStringLiteral("edit of %1 for %2").arg(labels.front(), whose);
    return QStringLiteral("edits for %1").arg(whose);
}

}  // namespace

GameHistory::GameHistory(Game& game, QObject* parent)
    : QObject(parent), game_(game)
{
    connect(&stack_, &QUndoStack::cleanChanged, this,
            [this](bool clean) { emit UnsavedChangesChanged(!clean); });
}

void GameHistory::Restart()
{
    stack_.clear();
    ledger_.Reset(game_);
    ++typingSession_;
}

void GameHistory::MarkSaved()
{
    stack_.setClean();
}

void GameHistory::RecordTyping(int player, int team)
{
    RecordChange change = ledger_.TakeChanges(game_, {player}, {team});
    if (change.Empty())
        return;
    const QString text = TypingStepText(change);
    stack_.push(new RecordStepCommand(*this, std::move(change), {team, player}, text, typingSession_));
}

void GameHistory::EndTyping()
{
    ++typingSession_;
}

void GameHistory::RecordStep(const QString& text, StepPlace place)
{
    RecordStep([&text](const RecordChange&) { return text; }, place);
}

void GameHistory::RecordStep(const StepNamer& name, StepPlace place)
{
    RecordChange change = ledger_.TakeAllChanges(game_);
    EndTyping();
    if (change.Empty())
        return;
    const QString text = name(change);
    stack_.push(new RecordStepCommand(*this, std::move(change), place, text));
}

void GameHistory::Apply(const RecordChange& change, bool undo, StepPlace place)
{
    if (undo)
        change.Undo(game_);
    else
        change.Redo(game_);
    ledger_.Follow(game_, change);
    EndTyping();
    emit StepShown(place);
}

QString PlayerName(const PlayerRecord& player)
{
    const QString surname = FromGame(player.surname);
    return player.initials.empty() ? surname : FromGame(player.initials) + QLatin1Char(' ') + surname;
}

QString DeleteStepText(const PlayerRecord& player)
{
    return QStringLiteral("delete of %1").arg(PlayerName(player));
}

QString AddStepText(const PlayerRecord& player, const TeamRecord& team)
{
    return QStringLiteral("add of %1 to %2").arg(PlayerName(player), FromGame(team.teamName));
}

QString ReplaceStepText(const PlayerRecord& replaced, const PlayerRecord& candidate)
{
    return QStringLiteral("replace of %1 by %2").arg(PlayerName(replaced), PlayerName(candidate));
}

QString NewPlayerStepText(const PlayerRecord& player)
{
    return QStringLiteral("new player %1").arg(PlayerName(player));
}

QString TransferStepText(const Game& game, const RecordChange& change, int team)
{
    const auto copy = std::find_if(change.teams.begin(), change.teams.end(),
                                   [team](const RecordChange::TeamCopy& c) { return c.number == team; });
    if (copy == change.teams.end())
        return QStringLiteral("transfer");
    const auto missingFrom = [](const TeamRecord& from, const TeamRecord& in) {
        for (int slot = 1; slot <= SquadSize; ++slot) {
            const int player = from.squad[std::size_t(slot)];
            if (IsPlayerNumber(player) && std::find(in.squad.begin() + 1, in.squad.end(), player) == in.squad.end())
                return player;
        }
        return 0;
    };
    const int joined = missingFrom(copy->after, copy->before);
    const int left = missingFrom(copy->before, copy->after);
    const PlayerRecord& candidate = game.Players[std::size_t(joined)];
    if (left != 0)
        return ReplaceStepText(game.Players[std::size_t(left)], candidate);
    return AddStepText(candidate, copy->after);
}

QString TypingStepText(const RecordChange& change)
{
    QStringList parts;
    for (const RecordChange::PlayerCopy& copy : change.players)
        parts.push_back(EditText(ChangedLabels<PlayerRecord>(PlayerFields, copy.before, copy.after),
                                 PlayerName(copy.before)));
    for (const RecordChange::TeamCopy& copy : change.teams)
        parts.push_back(EditText(ChangedLabels<TeamRecord>(TeamFields, copy.before, copy.after),
                                 FromGame(copy.before.teamName)));
    return parts.join(QStringLiteral(" and "));
}
