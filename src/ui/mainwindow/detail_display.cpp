#include <QLabel>

#include "forms/combo_box.h"
#include "forms/game_text.h"
#include "forms/list_box.h"
#include "forms/text_box.h"
#include "mainwindow/main_form.h"

namespace {

// The number a caption holds, when it is one.
std::optional<int> CaptionNumber(const QLabel& label)
{
    bool ok = false;
    const int number = label.text().toInt(&ok);
    return ok ? std::optional<int>(number) : std::nullopt;
}

}  // namespace

PlayerRecord* MainForm::ShownPlayer()
{
    const auto number = CaptionNumber(*Label3);
    if (!number || *number < 1 || *number > MaxPlayers)
        return nullptr;
    return &game.Players[std::size_t(*number)];
}

TeamRecord* MainForm::ShownTeam()
{
    const auto number = teamShown_ ? CaptionNumber(*lblteamno) : std::nullopt;
    if (!number || *number < 1 || *number > MaxTeams)
        return nullptr;
    return &game.Teams[std::size_t(*number)];
}

PlayerControls MainForm::PlayerEditors() const
{
    return {Text1, Combo3, {Combo4[0], Combo4[1], Combo4[2], Combo4[3], Combo4[4]}};
}

void MainForm::List1_Click()
{
    // The hidden caption is set first: it names the player even if the
    // record behind it cannot be shown.
    if (const int row = List1->ListIndex(); row >= 0)
        Label3->setText(QString::number(List1->ItemData(row)));
    if (const PlayerRecord* player = ShownPlayer())
        ShowPlayer(*player, PlayerEditors());
}

void MainForm::ShowTeam()
{
    const auto index = CurrentTeam();
    if (!index || *index < 1 || *index > MaxTeams)
        return;
    const TeamRecord& team = game.Teams[std::size_t(*index)];
    lblteamno->setText(QString::number(team.teamNumber));
    teamShown_ = true;
    ShowText(*Text1[TeamNameBox], FromGame(team.teamName));
    ShowText(*Text1[AbbreviationBox], FromGame(team.abbreviation));
    ShowText(*Text1[ReputationBox], QString::number(team.reputation));
    ShowText(*Text1[WealthBox], QString::number(team.wealth));
    ShowText(*Text1[SupportBox], QString::number(team.support));
    ShowCodeEntry(*Combo4[TeamCountryCombo], team.homeCountry - 1);
}
