#include "data/squad.h"
#include "document/game_document.h"
#include "document/squad_steps.h"
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
    const Game& game = document_.Records();
    if (RefuseFullSquad(SquadCount(game.Teams[std::size_t(team_)])))
        return;
    const auto candidate = Candidate();
    if (!candidate)
        return RefuseNoPlayer(AddTitle);
    if (IsInSquad(game, team_, *candidate))
        return RefuseMemberOfTeam();

    const std::int16_t oldTeam = AddToSquad(document_, team_, *candidate);
    // The panel names his new club.
    ShowCandidate();

    QString text = candidatePanel_->ShownName() + QStringLiteral(" has been added to the ") + TeamName(game, team_) +
                   QStringLiteral(" squad");
    if (oldTeam != 0)
        text += QStringLiteral(" and removed from ") + TeamName(game, oldTeam) + QStringLiteral(" squad");
    ShowMessage(QMessageBox::Information, AddTitle, text + QLatin1Char('.'));
}

void SearchWindow::OnReplaceWithThisPlayer()
{
    const Game& game = document_.Records();
    const auto candidate = Candidate();
    if (!candidate)
        return RefuseNoPlayer(ReplaceTitle);
    if (IsInSquad(game, team_, *candidate))
        return RefuseMemberOfTeam();
    // The row must still stand for a player of the squad.
    if (SlotOfRow(game.Teams[std::size_t(team_)], squadRow_) == 0)
        return RefuseNoPlayer(ReplaceTitle);

    const Replacement done = ReplaceInSquad(document_, team_, squadRow_, *candidate);

    QString text = candidatePanel_->ShownName();
    if (done.oldTeam != 0)
        text += QStringLiteral(" from ") + TeamName(game, done.oldTeam);
    text += QStringLiteral(" has replaced ") + FullName(game.Players[std::size_t(done.replaced)]) +
            QStringLiteral(" in the ") + TeamName(game, team_) + QStringLiteral(" squad.");
    ShowMessage(QMessageBox::Information, ReplaceTitle, text);
    accept();
}
