#include <QLabel>
#include <QSignalBlocker>

#include "data/squad.h"
#include "forms/combo_box.h"
#include "forms/game_text.h"
#include "forms/list_box.h"
#include "forms/text_box.h"
#include "mainwindow/player_display.h"
#include "searchwindow/playeradd_form.h"

namespace {

// Shows the player; a code with no entry in its list leaves its box on what
// it showed before. The panel writes nothing back, so that entry harms no record.
void ShowKeepingCodesWithNoEntry(const PlayerRecord& player, const PlayerControls& panel)
{
    const std::array<ComboBox*, 6> boxes{panel.country, panel.codes[0], panel.codes[1],
                                         panel.codes[2], panel.codes[3], panel.codes[4]};
    std::array<int, 6> shownBefore{};
    for (std::size_t i = 0; i < boxes.size(); ++i)
        shownBefore[i] = boxes[i]->ListIndex();
    ShowPlayer(player, panel);
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        if (boxes[i]->ListIndex() < 0) {
            const QSignalBlocker quiet(boxes[i]);
            boxes[i]->setCurrentIndex(shownBefore[i]);
        }
    }
}

}  // namespace

std::optional<std::int16_t> PlayerAddForm::Candidate() const
{
    bool ok = false;
    const int number = Label3->text().toInt(&ok);
    return ok && IsPlayerNumber(number) ? std::optional<std::int16_t>(static_cast<std::int16_t>(number))
                                        : std::nullopt;
}

void PlayerAddForm::List1_Click()
{
    if (const int row = List1->ListIndex(); row >= 0)
        Label3->setText(QString::number(List1->ItemData(row)));
    const auto candidate = Candidate();
    if (!candidate)
        return;

    // The panel shows the player as he stands now, not as the search copied him.
    ShowKeepingCodesWithNoEntry(game_.Players[std::size_t(*candidate)],
                                {Text1, Combo3[0], {Combo4[0], Combo4[1], Combo4[2], Combo4[3], Combo4[4]}});
    const std::int16_t club = PresentClub(game_, *candidate);
    ShowText(*Text1[TeamNameBox],
             club == 0 ? QStringLiteral("None") : FromGame(game_.Teams[std::size_t(club)].teamName));
}
