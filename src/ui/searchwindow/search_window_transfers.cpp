#include "data/squad.h"
#include "forms/game_text.h"
#include "forms/message_box.h"
#include "forms/player_column.h"
#include "forms/squad_messages.h"
#include "searchwindow/search_window.h"

namespace {

const QString AddTitle = QStringLiteral("Add Player");
const QString ReplaceTitle = QStringLiteral("Replace Player");

QString TeamName(const Game& game, int team)
{
    return FromGame(game.Teams[std::size_t(team)].teamName);
}

QString FullName(const PlayerRecord& player)
{
    return FromGame(player.initials) + QLatin1Char(' ') + FromGame(player.surname);
}

void RefuseMemberOfTeam()
{
    ShowMessage(QMessageBox::Information, QStringLiteral("Error"), QStringLiteral("Player already in team"));
}

}  // namespace

void SearchWindow::OnAddThisPlayer()
{
    if (RefuseFullSquad(SquadCount(game_.Teams[std::size_t(team_)])))
        return;
    const auto candidate = Candidate();
    if (!candidate)
        return RefuseNoPlayer(AddTitle);
    if (IsInSquad(game_, team_, *candidate))
        return RefuseMemberOfTeam();

    const std::int16_t oldTeam = AddToSquad(game_, team_, *candidate);
    emit squadChanged(team_);
    // The panel names his new club.
    ShowCandidate();

    QString text = candidatePanel_->ShownName() + QStringLiteral(" has been added to the ") + TeamName(game_, team_) +
                   QStringLiteral(" squad");
    if (oldTeam != 0)
        text += QStringLiteral(" and removed from ") + TeamName(game_, oldTeam) + QStringLiteral(" squad");
    ShowMessage(QMessageBox::Information, AddTitle, text + QLatin1Char('.'));
}

void SearchWindow::OnReplaceWithThisPlayer()
{
    const auto candidate = Candidate();
    if (!candidate)
        return RefuseNoPlayer(ReplaceTitle);
    if (IsInSquad(game_, team_, *candidate))
        return RefuseMemberOfTeam();
    // A name edit carried over under this window rebuilds the squad list and
    // leaves no row chosen: there is then no player to replace.
    if (SlotOfRow(game_.Teams[std::size_t(team_)], squadRow_) == 0)
        return RefuseNoPlayer(ReplaceTitle);

    const Replacement done = ReplaceInSquad(game_, team_, squadRow_, *candidate);
    emit squadChanged(team_);

    QString text = candidatePanel_->ShownName();
    if (done.oldTeam != 0)
        text += QStringLiteral(" from ") + TeamName(game_, done.oldTeam);
    text += QStringLiteral(" has replaced ") + FullName(game_.Players[std::size_t(done.replaced)]) +
            QStringLiteral(" in the ") + TeamName(game_, team_) + QStringLiteral(" squad.");
    ShowMessage(QMessageBox::Information, ReplaceTitle, text);
    accept();
}
