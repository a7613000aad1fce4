#include <QTimer>

#include "forms/combo_box.h"
#include "forms/game_text.h"
#include "forms/list_box.h"
#include "forms/listed_name.h"
#include "history/game_history.h"
#include "mainwindow/main_window.h"

namespace {

// Chooses a list's first entry through its Click, as a user's pick would.
template <typename ListControl>
void SelectFirst(ListControl& list)
{
    if (list.ListCount() > 0)
        list.SetText(list.List(0));
}

}  // namespace

std::optional<int> MainWindow::CurrentTeam() const
{
    const int entry = teamList_->ListIndex();
    return entry >= 0 ? std::optional<int>(teamList_->ItemData(entry)) : std::nullopt;
}

void MainWindow::OnCountryChosen()
{
    CarryPendingEdits();
    teamList_->Clear();
    ClearSquadList();
    // The West Indies entry has no rule of its own: it gathers the teams of
    // code 8, which include the minor islands.
    const int country = countryList_->ListIndex() + 1;
    for (int index = 1; index <= MaxTeams; ++index) {
        const TeamRecord& team = game_.Teams[std::size_t(index)];
        if (team.homeCountry != country)
            continue;
        teamList_->AddItem(FromGame(team.teamName));
        teamList_->SetItemData(teamList_->ListCount() - 1, index);
    }
    SelectFirst(*teamList_);
    SelectFirst(*squadList_);
}

void MainWindow::OnTeamChosen()
{
    CarryPendingEdits();
    ClearSquadList();
    ShowTeam();
    FillSquadList();
    // No row is chosen yet, so no player is shown or written.
    ShowNoPlayer();
}

void MainWindow::ClearSquadList()
{
    squadList_->Clear();
    emit squadRowChanged(-1);
}

void MainWindow::FillSquadList()
{
    const auto index = CurrentTeam();
    if (!index || *index < 1 || *index > MaxTeams)
        return;
    // Empty places take no row, so rows run behind places when a squad has gaps.
    for (int slot = 1; slot <= SquadSize; ++slot) {
        const int number = game_.Teams[std::size_t(*index)].squad[std::size_t(slot)];
        if (number < 1 || number > MaxPlayers)
            continue;
        const PlayerRecord& player = game_.Players[std::size_t(number)];
        squadList_->AddItem(ListedName(player));
        squadList_->SetItemData(squadList_->ListCount() - 1, number);
    }
}

void MainWindow::RefreshSquad()
{
    // By the entry's own text: a renamed team keeps its old entry until the
    // country is picked again, and two teams of one name land on the first.
    const std::optional<int> player = currentPlayer_;
    if (const int entry = teamList_->ListIndex(); entry >= 0)
        teamList_->SetText(teamList_->List(entry));
    if (const int row = player ? RowOfPlayer(*player) : -1; row >= 0) {
        squadList_->setCurrentRow(row);
        OnPlayerChosen();
    }
}

int MainWindow::RowOfPlayer(int player) const
{
    for (int row = 0; row < squadList_->ListCount(); ++row) {
        if (squadList_->ItemData(row) == player)
            return row;
    }
    return -1;
}

void MainWindow::ShowFirstEntries()
{
    // A game just read: what it holds is what the files hold, and the steps
    // of any game before it are gone.
    history_->Restart();
    SelectFirst(*countryList_);
    SelectFirst(*teamList_);
    SelectFirst(*squadList_);
    editTimer_->start();
}
