#include <cmath>

#include "forms/combo_box.h"
#include "forms/list_box.h"
#include "forms/listed_name.h"
#include "forms/shape.h"
#include "search/player_sort.h"
#include "search/search_filters.h"
#include "searchwindow/search_window.h"

void SearchWindow::OnSearch()
{
    // "All Clubs" carries no team; every other entry carries its team's number.
    const int club = clubFilter_->ListIndex();
    SearchFilters filters;
    filters.team = club > 0 ? clubFilter_->ItemData(club) : 0;
    filters.nationality = static_cast<std::int16_t>(nationalityFilter_->ListIndex());
    filters.batPosition = static_cast<std::int16_t>(battingFilter_->ListIndex());
    filters.bowlType = static_cast<std::int16_t>(bowlingFilter_->ListIndex());
    filters.fieldsAt = static_cast<std::int16_t>(fieldingFilter_->ListIndex());

    // A new search leaves no candidate: Add and Replace then have no one to move.
    resultList_->Clear();
    ShowNoCandidate();
    results_ = RunFilters(game_, filters);
    SortWithBar();

    for (const PlayerRecord& candidate : results_) {
        resultList_->AddItem(ListedName(candidate));
        resultList_->SetItemData(resultList_->ListCount() - 1, candidate.playerNumber);
    }
}

void SearchWindow::SortWithBar()
{
    sortBar_->show();
    SortResults(results_, sortKeyList_->ListIndex(), [this](double done) { ShowSortProgress(done); });
    sortBar_->hide();
}

void SearchWindow::ShowSortProgress(double done)
{
    sortBar_->resize(static_cast<int>(std::lround(done * barFullWidth_)), sortBar_->height());
}
