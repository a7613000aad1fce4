#include <QComboBox>

#include "data/squad.h"
#include "forms/choice_list.h"
#include "forms/player_column.h"
#include "mainwindow/main_window.h"

bool MainWindow::ChooseTeamEntry(int team)
{
    // A team of a country outside the list is listed nowhere.
    const int country = game_.Teams[std::size_t(team)].homeCountry;
    if (country < 1 || country > countryList_->count())
        return false;
    countryList_->setCurrentIndex(country - 1);
    OnCountryChosen();
    const int entry = teamList_->findData(team);
    if (entry < 0)
        return false;
    teamList_->setCurrentIndex(entry);
    OnTeamChosen();
    return true;
}

void MainWindow::GoToTeam(int number)
{
    if (IsTeamIndex(number) && number <= LoadedTeamCount(game_))
        ChooseTeamEntry(number);
}

void MainWindow::GoToPlayer(int number)
{
    if (!IsPlayerNumber(number) || number > LoadedPlayerCount(game_))
        return;
    const int club = PresentClub(game_, std::int16_t(number));
    if (club > 0 && ChooseTeamEntry(club)) {
        squadList_->setCurrentRow(squadList_->RowOf(number));
        OnPlayerChosen();
        return;
    }
    // No team is chosen; the team boxes go on showing the team shown before.
    teamList_->setCurrentIndex(-1);
    ClearSquadList();
    currentPlayer_ = number;
    playerColumn_->Show(game_.Players[std::size_t(number)]);
    if (const TeamRecord* team = ShownTeam())
        FillTeamBoxes(*team);
}

void MainWindow::ShowRecordsAgain()
{
    if (const PlayerRecord* player = ShownPlayer())
        playerColumn_->Show(*player);
    if (const TeamRecord* team = ShownTeam())
        FillTeamBoxes(*team);
    // The lists too: names, squads and countries may have changed.
    if (currentPlayer_)
        GoToPlayer(*currentPlayer_);
    else
        ShowFirstEntries();
}
