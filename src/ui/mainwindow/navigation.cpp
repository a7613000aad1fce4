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
    else
        ShowNoTeam();
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
    // A country without teams leaves no team to show.
    if (teamList_->count() > 0)
        teamList_->setCurrentIndex(0);
    OnTeamChosen();
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
    // No team is chosen, so no team's boxes take typing.
    teamList_->setCurrentIndex(-1);
    squadList_->clear();
    ShowNoTeam();
    ShowPlayer(number);
}

void MainWindow::BringIntoView(const StepPlace& place)
{
    // The records stand as they did when the step was made, so the squad the
    // user was working on is shown as it was, with the player's row chosen
    // when he is in it.
    const Game& game = document_.Records();
    if (!IsTeamIndex(place.team)) {
        // A player edited with no team chosen, or a step over the whole game.
        if (IsPlayerNumber(place.player))
            GoToPlayer(place.player);
        else
            RefreshSquad();
        return;
    }
    if (teamList_->findData(place.team) < 0) {
        // A team of another country, or one whose country the step changed:
        // its country's list is built afresh.
        const int country = game.Teams[std::size_t(place.team)].homeCountry;
        if (country >= 1 && country <= countryList_->count()) {
            countryList_->setCurrentIndex(country - 1);
            OnCountryChosen();
        }
    }
    if (const int entry = teamList_->findData(place.team); entry >= 0) {
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
