#include "mainwindow/player_display.h"

#include <QSignalBlocker>

#include "forms/combo_box.h"
#include "forms/game_text.h"
#include "forms/text_box.h"

void ShowCodeEntry(ComboBox& box, int index)
{
    const QSignalBlocker quiet(box);
    box.setCurrentIndex(index >= 0 && index < box.ListCount() ? index : -1);
}

void ShowText(TextBox& box, const QString& text)
{
    box.SetText(text);
    box.setCursorPosition(0);
}

void ShowPlayer(const PlayerRecord& player, const PlayerControls& controls)
{
    // Most codes count from 1; the two hands count from 0.
    ShowCodeEntry(*controls.country, player.homeCountry - 1);
    ShowCodeEntry(*controls.codes[BatPositionCombo], player.batPosition - 1);
    ShowCodeEntry(*controls.codes[BatsCombo], player.bats);
    ShowCodeEntry(*controls.codes[BowlTypeCombo], player.bowlType - 1);
    ShowCodeEntry(*controls.codes[BowlsCombo], player.bowls);
    ShowCodeEntry(*controls.codes[FieldsAtCombo], player.fieldsAt - 1);

    const auto number = [&](int index, std::int16_t value) {
        ShowText(*controls.text[index], QString::number(value));
    };
    number(DayBox, player.birthDay);
    number(MonthBox, player.birthMonth);
    number(YearBox, player.birthYear);
    number(BatSkillBox, player.batSkill);
    number(BatAggressionBox, player.batAggression);
    number(BowlSkillBox, player.bowlSkill);
    number(BowlEconomyBox, player.bowlEconomy);
    number(FieldAbilityBox, player.fieldAbility);
    number(PotentialBox, player.potential);
    ShowText(*controls.text[InitialsBox], FromGame(player.initials));
    ShowText(*controls.text[SurnameBox], FromGame(player.surname));
}
