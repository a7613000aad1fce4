// Choosing a country, a team and a player, and coming back to them after a
// change of the squad, an undo or a jump from another window.
#include <QComboBox>

#include "data/squad.h"
#include "document/game_document.h"
#include "forms/choice_list.h"
#include "forms/game_text.h"
#include "forms/listed_name.h"
#include "mainwindow/main_window.h"

std::optional<int> MainWindow::CurrentTeam() const
{
    const int entry = teamList_->currentIndex();
    return entry >= 0 ? std::optional<int>(teamList_->itemData(entry).toInt()) : std::nullopt;
}

void MainWindow::ShowFirstEntries()
{
    if (countryList_->count() > 0) {
        countryList_->setCurrentIndex(0);
        OnCountryChosen();
    }
    ChooseFirstTeam();
    ChooseFirstPlayer();
}

void MainWindow::OnCountryChosen()
{
    teamList_->clear();
    squadList_->clear();
    // The West Indies entry has no rule of its own: it gathers the teams of
    // code 8, which include the minor islands.
    const int country = countryList_->currentIndex() + 1;
    const Game& game = document_.Records();
    for (int index = 1; index <= MaxTeams; ++index) {
        const TeamRecord& team = game.Teams[std::size_t(index)];
        if (team.homeCountry == country)
            teamList_->addItem(FromGame(team.teamName), index);
    }
    ChooseFirstTeam();
    ChooseFirstPlayer();
}

void MainWindow::OnTeamChosen()
{
    squadList_->clear();
    if (const auto team = CurrentTeam())
        ShowTeam(*team);
    FillSquadList();
    // No row is chosen yet, so no player is shown or edited.
    ShowNoPlayer();
}

void MainWindow::OnPlayerChosen()
{
    const int row = squadList_->ChosenRow();
    if (row >= 0)
        ShowPlayer(squadList_->NumberAt(row));
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

void MainWindow::FillSquadList()
{
    const auto team = CurrentTeam();
    if (!team || !IsTeamIndex(*team))
        return;
    // Empty places take no row, so rows run behind places when a squad has gaps.
    const Game& game = document_.Records();
    for (int slot = 1; slot <= SquadSize; ++slot) {
        const int number = game.Teams[std::size_t(*team)].squad[std::size_t(slot)];
        if (IsPlayerNumber(number))
            squadList_->AddRow(ListedName(game.Players[std::size_t(number)]), number);
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

bool MainWindow::ChooseTeamEntry(int team)
{
    // A team of a country outside the list is listed nowhere.
    const int country = document_.Records().Teams[std::size_t(team)].homeCountry;
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
    if (IsTeamIndex(number) && number <= LoadedTeamCount(document_.Records()))
        ChooseTeamEntry(number);
}

void MainWindow::GoToPlayer(int number)
{
    const Game& game = document_.Records();
    if (!IsPlayerNumber(number) || number > LoadedPlayerCount(game))
        return;
    const int club = PresentClub(game, std::int16_t(number));
    if (club > 0 && ChooseTeamEntry(club)) {
        squadList_->setCurrentRow(squadList_->RowOf(number));
        OnPlayerChosen();
        return;
    }
    // No team is chosen; the team boxes go on showing the team shown before.
    teamList_->setCurrentIndex(-1);
    squadList_->clear();
    ShowPlayer(number);
}

void MainWindow::BringIntoView(const StepPlace& step)
{
    // A player the step moved is shown at the club that holds him now.
    const Game& game = document_.Records();
    StepPlace place = step;
    const auto player = std::int16_t(place.player);
    const bool inTeam = IsTeamIndex(place.team) && IsInSquad(game, place.team, player);
    if (IsPlayerNumber(player) && !inTeam && PresentClub(game, player) != 0)
        place.team = PresentClub(game, player);
    const bool isTeam = IsTeamIndex(place.team);
    if (isTeam && teamList_->findData(place.team) < 0) {
        // A team of another country, or one whose country the step changed:
        // its country's list is built afresh.
        const int country = game.Teams[std::size_t(place.team)].homeCountry;
        if (country >= 1 && country <= countryList_->count()) {
            countryList_->setCurrentIndex(country - 1);
            OnCountryChosen();
        }
    }
    if (const int entry = isTeam ? teamList_->findData(place.team) : -1; entry >= 0) {
        teamList_->setCurrentIndex(entry);
        OnTeamChosen();
    } else {
        RefreshSquad();
    }
    ShowNoPlayer();
    if (const int row = squadList_->RowOf(place.player); row >= 0) {
        squadList_->setCurrentRow(row);
        OnPlayerChosen();
    }
}

void MainWindow::ShowRecordsAgain()
{
    // Names, squads and countries may all have changed.
    if (currentPlayer_)
        GoToPlayer(*currentPlayer_);
    else
        ShowFirstEntries();
}
