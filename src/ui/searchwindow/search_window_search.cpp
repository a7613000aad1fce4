#include <cmath>

#include <QComboBox>

#include "forms/choice_list.h"
#include "forms/listed_name.h"
#include "document/game_document.h"
#include "search/player_sort.h"
#include "search/search_filters.h"
#include "searchwindow/search_window.h"

void SearchWindow::OnSearch()
{
    // "All Clubs" carries no team; every other entry carries its team's number.
    SearchFilters filters;
    filters.team = clubFilter_->currentData().toInt();
    filters.nationality = static_cast<std::int16_t>(nationalityFilter_->currentIndex());
    filters.batPosition = static_cast<std::int16_t>(battingFilter_->currentIndex());
    filters.bowlType = static_cast<std::int16_t>(bowlingFilter_->currentIndex());
    filters.fieldsAt = static_cast<std::int16_t>(fieldingFilter_->currentIndex());

    // A new search leaves no candidate: Add and Replace then have no one to move.
    resultList_->clear();
    ShowNoCandidate();
    results_ = RunFilters(document_.Records(), filters);
    SortWithBar();

    for (const PlayerRecord& candidate : results_) {
        resultList_->AddRow(ListedName(candidate), candidate.playerNumber);
    }
}

void SearchWindow::SortWithBar()
{
    sortBar_->show();
    SortResults(results_, sortKeyList_->currentIndex(), [this](double done) { ShowSortProgress(done); });
    sortBar_->hide();
}

void SearchWindow::ShowSortProgress(double done)
{
    sortBar_->resize(static_cast<int>(std::lround(done * barFullWidth_)), sortBar_->height());
}
