#include <QTimer>

#include "forms/combo_box.h"
#include "forms/game_text.h"
#include "forms/list_box.h"
#include "mainwindow/main_form.h"

namespace {

// Chooses a list's first entry through its Click, as a user's pick would.
template <typename ListControl>
void SelectFirst(ListControl& list)
{
    if (list.ListCount() > 0)
        list.SetText(list.List(0));
}

}  // namespace

std::optional<int> MainForm::CurrentTeam() const
{
    const int entry = Combo2->ListIndex();
    return entry >= 0 ? std::optional<int>(Combo2->ItemData(entry)) : std::nullopt;
}

void MainForm::Combo1_Click()
{
    Combo2->Clear();
    List1->Clear();
    // The West Indies entry has no rule of its own: it gathers the teams of
    // code 8, which include the minor islands.
    const int country = Combo1->ListIndex() + 1;
    for (int index = 1; index <= MaxTeams; ++index) {
        const TeamRecord& team = game.Teams[std::size_t(index)];
        if (team.homeCountry != country)
            continue;
        Combo2->AddItem(FromGame(team.teamName));
        Combo2->SetItemData(Combo2->ListCount() - 1, index);
    }
    SelectFirst(*Combo2);
    SelectFirst(*List1);
}

void MainForm::Combo2_Click()
{
    List1->Clear();
    ShowTeam();
    FillSquadList();
}

void MainForm::FillSquadList()
{
    const auto index = CurrentTeam();
    if (!index || *index < 1 || *index > MaxTeams)
        return;
    // Empty places take no row, so rows run behind places when a squad has gaps.
    for (int slot = 1; slot <= SquadSize; ++slot) {
        const int number = game.Teams[std::size_t(*index)].squad[std::size_t(slot)];
        if (number < 1 || number > MaxPlayers)
            continue;
        const PlayerRecord& player = game.Players[std::size_t(number)];
        List1->AddItem(FromGame(player.initials) + QLatin1Char(' ') + FromGame(player.surname));
        List1->SetItemData(List1->ListCount() - 1, number);
    }
}

void MainForm::ReselectCurrentTeam()
{
    // By the entry's own text: a renamed team keeps its old entry until the
    // country is picked again, and two teams of one name land on the first.
    if (const int entry = Combo2->ListIndex(); entry >= 0)
        Combo2->SetText(Combo2->List(entry));
}

void MainForm::RunStartupChain()
{
    SelectFirst(*Combo1);
    SelectFirst(*Combo2);
    SelectFirst(*List1);
    Timer1->start();
}
