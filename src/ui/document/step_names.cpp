#include "document/step_names.h"

#include <QStringList>
#include <span>

#include "data/fields.h"
#include "forms/game_text.h"

namespace {

template <class Record>
QStringList ChangedLabels(std::span<const Field<Record>> fields, const Record& before, const Record& after)
{
    QStringList labels;
    for (const Field<Record>& field : fields) {
        const bool changed = field.text ? before.*field.text != after.*field.text
                                        : before.*field.number != after.*field.number;
        const QString label = FromGame(field.label);
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
