// The shown player and team: showing them, and drawing them again when the
// document says they changed.
#include <QStatusBar>

#include "data/squad.h"
#include "document/game_document.h"
#include "forms/choice_list.h"
#include "forms/listed_name.h"
#include "forms/player_column.h"
#include "mainwindow/main_window.h"
#include "mainwindow/team_column.h"

void MainWindow::ShowPlayer(int number)
{
    // The player is named first: he stays current even if his record cannot
    // be shown.
    currentPlayer_ = number;
    if (!IsPlayerNumber(number))
        return;
    playerColumn_->setEnabled(true);
    playerColumn_->Show(document_.Records().Players[std::size_t(number)]);
    MarkNumberBoxes();
}

void MainWindow::ShowNoPlayer()
{
    currentPlayer_.reset();
    playerColumn_->ShowNothing();
    playerColumn_->setEnabled(false);
}

void MainWindow::ShowNoTeam()
{
    shownTeam_.reset();
    teamColumn_->ShowNothing();
}

void MainWindow::ShowTeam(int index)
{
    if (!IsTeamIndex(index))
        return;
    // The team edited is the one the record's own number names.
    const TeamRecord& team = document_.Records().Teams[std::size_t(index)];
    shownTeam_ = team.teamNumber;
    teamColumn_->Show(team);
    MarkNumberBoxes();
}

void MainWindow::OnPlayerChanged(int number)
{
    const PlayerRecord& player = document_.Records().Players[std::size_t(number)];
    // A new name shows in his row at once; the row stays chosen.
    for (int row = 0; row < squadList_->count(); ++row) {
        if (squadList_->NumberAt(row) == number)
            squadList_->item(row)->setText(ListedName(player));
    }
    if (number == currentPlayer_) {
        playerColumn_->Refresh(player);
        MarkNumberBoxes();
    }
}

void MainWindow::OnTeamChanged(int number)
{
    // A new name or country shows in the team list only when the country is
    // picked again.
    if (number == shownTeam_) {
        teamColumn_->Refresh(document_.Records().Teams[std::size_t(number)]);
        MarkNumberBoxes();
    }
}

QString MainWindow::AskShownColumns(QString (PlayerColumn::*player)(const PlayerRecord&),
                                    QString (TeamColumn::*team)(const TeamRecord&))
{
    const Game& game = document_.Records();
    QString said;
    if (currentPlayer_ && IsPlayerNumber(*currentPlayer_))
        said = (playerColumn_->*player)(game.Players[std::size_t(*currentPlayer_)]);
    if (shownTeam_ && IsTeamIndex(*shownTeam_)) {
        if (const QString teamSays = (teamColumn_->*team)(game.Teams[std::size_t(*shownTeam_)]); !teamSays.isEmpty())
            said = teamSays;
    }
    return said;
}

void MainWindow::MarkNumberBoxes()
{
    const QString said = AskShownColumns(&PlayerColumn::MarkNumberBoxes, &TeamColumn::MarkNumberBoxes);
    if (!said.isEmpty())
        SayInStatusBar(said);
    else if (!statusSaid_.isEmpty() && statusBar()->currentMessage() == statusSaid_)
        SayInStatusBar(QString());
}

void MainWindow::Explain(const QString& why)
{
    statusBar()->showMessage(why);
}

void MainWindow::TakeBackInexactBoxes()
{
    const QString said = AskShownColumns(&PlayerColumn::TakeBackInexact, &TeamColumn::TakeBackInexact);
    if (said.isEmpty())
        return;
    MarkNumberBoxes();
    Explain(said);
}

void MainWindow::SayInStatusBar(const QString& text)
{
    statusSaid_ = text;
    if (text.isEmpty())
        statusBar()->clearMessage();
    else
        statusBar()->showMessage(text);
}
