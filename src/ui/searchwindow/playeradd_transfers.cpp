#include <QLabel>

#include "data/squad.h"
#include "forms/game_text.h"
#include "forms/list_box.h"
#include "forms/message_box.h"
#include "forms/text_box.h"
#include "mainwindow/main_form.h"
#include "searchwindow/playeradd_form.h"
#include "searchwindow/squad_messages.h"

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

// The candidate as the panel names him.
QString ShownName(const PlayerAddForm& form)
{
    return form.Text1[InitialsBox]->Text() + QLatin1Char(' ') + form.Text1[SurnameBox]->Text();
}

void RefuseMemberOfTeam()
{
    MsgBox(QStringLiteral("Player already in team"), MbInformation, QStringLiteral("Error"));
}

}  // namespace

void PlayerAddForm::Command1_Click()
{
    if (RefuseFullSquad(*main_.List1))
        return;
    const auto team = TeamOrRefuse(main_, AddTitle);
    if (!team)
        return;
    const auto candidate = Candidate();
    if (!candidate)
        return RefuseNoPlayer(AddTitle);
    if (IsInSquad(game_, *team, *candidate))
        return RefuseMemberOfTeam();

    const std::int16_t oldTeam = AddToSquad(game_, *team, *candidate);
    main_.ReselectCurrentTeam();

    QString text = ShownName(*this) + QStringLiteral(" has been added to the ") + TeamName(game_, *team) + QStringLiteral(" squad");
    if (oldTeam != 0)
        text += QStringLiteral(" and removed from ") + TeamName(game_, oldTeam) + QStringLiteral(" squad");
    MsgBox(text + QLatin1Char('.'), MbInformation, AddTitle);
}

void PlayerAddForm::Command4_Click()
{
    const auto team = TeamOrRefuse(main_, ReplaceTitle);
    if (!team)
        return;
    const auto candidate = Candidate();
    if (!candidate)
        return RefuseNoPlayer(ReplaceTitle);
    if (IsInSquad(game_, *team, *candidate))
        return RefuseMemberOfTeam();
    // A name edit carried over under this window rebuilds the squad list and
    // leaves no row chosen: there is then no player to replace.
    const int row = main_.List1->ListIndex();
    if (SlotOfRow(game_.Teams[std::size_t(*team)], row) == 0)
        return RefuseNoPlayer(ReplaceTitle);

    const Replacement done = ReplaceInSquad(game_, *team, row, *candidate);
    main_.ReselectCurrentTeam();

    QString text = ShownName(*this);
    if (done.oldTeam != 0)
        text += QStringLiteral(" from ") + TeamName(game_, done.oldTeam);
    text += QStringLiteral(" has replaced ") + FullName(game_.Players[std::size_t(done.replaced)]) +
            QStringLiteral(" in the ") + TeamName(game_, *team) + QStringLiteral(" squad.");
    MsgBox(text, MbInformation, ReplaceTitle);
    accept();
}
