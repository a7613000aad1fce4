#include "data/squad.h"
#include "document/game_document.h"
#include "forms/game_text.h"
#include "forms/choice_list.h"
#include "forms/player_column.h"
#include "forms/text_box.h"
#include "searchwindow/search_window.h"

std::optional<std::int16_t> SearchWindow::Candidate() const
{
    if (!pickedNumber_ || !IsPlayerNumber(*pickedNumber_))
        return std::nullopt;
    return static_cast<std::int16_t>(*pickedNumber_);
}

void SearchWindow::OnCandidateChosen()
{
    if (const int row = resultList_->ChosenRow(); row >= 0)
        pickedNumber_ = resultList_->NumberAt(row);
    ShowCandidate();
}

void SearchWindow::ShowNoCandidate()
{
    pickedNumber_.reset();
    candidatePanel_->ShowNothing();
    presentClubBox_->ShowText(QString());
}

void SearchWindow::ShowCandidate()
{
    const auto candidate = Candidate();
    if (!candidate)
        return;

    // The panel shows the player as he stands now, not as the search copied him.
    const Game& game = document_.Records();
    candidatePanel_->Show(game.Players[std::size_t(*candidate)]);
    const std::int16_t club = PresentClub(game, *candidate);
    presentClubBox_->ShowText(club == 0 ? QStringLiteral("None") : FromGame(game.Teams[std::size_t(club)].teamName));
}
