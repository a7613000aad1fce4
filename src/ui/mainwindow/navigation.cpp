#include <QComboBox>
#include <QTimer>

#include "forms/choice_list.h"
#include "forms/game_text.h"
#include "forms/listed_name.h"
#include "history/game_history.h"
#include "mainwindow/main_window.h"

std::optional<int> MainWindow::CurrentTeam() const
{
    const int entry = teamList_->currentIndex();
    return entry >= 0 ? std::optional<int>(teamList_->itemData(entry).toInt()) : std::nullopt;
}

void MainWindow::OnCountryChosen()
{
    CarryPendingEdits();
    teamList_->clear();
    ClearSquadList();
    // The West Indies entry has no rule of its own: it gathers the teams of
    // code 8, which include the minor islands.
    const int country = countryList_->currentIndex() + 1;
    for (int index = 1; index <= MaxTeams; ++index) {
        const TeamRecord& team = game_.Teams[std::size_t(index)];
        if (team.homeCountry != country)
            continue;
        teamList_->addItem(FromGame(team.teamName), index);
    }
    ChooseFirstTeam();
    ChooseFirstPlayer();
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
    squadList_->clear();
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
        squadList_->AddRow(ListedName(game_.Players[std::size_t(number)]), number);
    }
}

void MainWindow::RefreshSquad()
{
    // By the entry's own text: a renamed team keeps its old entry until the
    // country is picked again, and two teams of one name land on the first.
    const std::optional<int> player = currentPlayer_;
    if (const int entry = teamList_->currentIndex(); entry >= 0) {
        teamList_->setCurrentIndex(teamList_->findText(teamList_->itemText(entry)));
        OnTeamChosen();
    }
    if (const int row = player ? squadList_->RowOf(*player) : -1; row >= 0) {
        squadList_->setCurrentRow(row);
        OnPlayerChosen();
    }
}

void MainWindow::ShowFirstEntries()
{
    // A game just read: what it holds is what the files hold, and the steps
    // of any game before it are gone.
    history_->Restart();
    if (countryList_->count() > 0) {
        countryList_->setCurrentIndex(0);
        OnCountryChosen();
    }
    ChooseFirstTeam();
    ChooseFirstPlayer();
    editTimer_->start();
}

void MainWindow::ChooseFirstTeam()
{
    if (teamList_->count() > 0) {
        teamList_->setCurrentIndex(0);
        OnTeamChosen();
    }
}

void MainWindow::ChooseFirstPlayer()
{
    if (squadList_->count() > 0) {
        squadList_->setCurrentRow(0);
        OnPlayerChosen();
    }
}
