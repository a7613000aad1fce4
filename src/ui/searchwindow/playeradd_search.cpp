#include <cmath>

#include "forms/combo_box.h"
#include "forms/game_text.h"
#include "forms/list_box.h"
#include "forms/shape.h"
#include "search/player_sort.h"
#include "searchwindow/playeradd_form.h"
#include "search/search_filters.h"

namespace {

// The bar as laid out, in twips; the sort counts a full bar as 2500.
constexpr double BarLaidOutTwips = 2505.0;

}  // namespace

void PlayerAddForm::Command3_Click()
{
    // "All Clubs" carries no team; every other entry carries its team's number.
    const int club = Combo2->ListIndex();
    SearchFilters filters;
    filters.team = club > 0 ? Combo2->ItemData(club) : 0;
    filters.nationality = static_cast<std::int16_t>(Combo3[1]->ListIndex());
    filters.batPosition = static_cast<std::int16_t>(Combo4[BattingFilterCombo]->ListIndex());
    filters.bowlType = static_cast<std::int16_t>(Combo4[BowlingFilterCombo]->ListIndex());
    filters.fieldsAt = static_cast<std::int16_t>(Combo4[FieldingFilterCombo]->ListIndex());

    List1->Clear();
    RunFilters(game_, filters);
    SortWithBar();

    const int found = RowsInUse(game_.FieldMatches);
    for (int row = 1; row <= found; ++row) {
        const PlayerRecord& candidate = game_.FieldMatches[std::size_t(row)];
        List1->AddItem(FromGame(candidate.surname));
        List1->SetItemData(row - 1, candidate.playerNumber);
    }
}

void PlayerAddForm::SortWithBar()
{
    Shape2->show();
    SortResults(game_, Combo4[SortKeyCombo]->ListIndex(),
                [this](double widthTwips) { SetBarWidth(widthTwips); });
    Shape2->hide();
}

void PlayerAddForm::SetBarWidth(double widthTwips)
{
    const int pixels = static_cast<int>(std::lround(widthTwips / BarLaidOutTwips * barFullWidth_));
    Shape2->resize(pixels, Shape2->height());
}
