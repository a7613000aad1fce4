#include <QLabel>

#include "data/text_number.h"
#include "forms/combo_box.h"
#include "forms/game_text.h"
#include "forms/list_box.h"
#include "forms/text_box.h"
#include "mainwindow/main_form.h"

namespace {

// A box that holds no 16-bit number leaves the field as it was, and the
// user's text stays in the box.
void StoreNumber(const TextBox& box, std::int16_t& field)
{
    if (const auto value = TextAsNumber(box.Text().toStdString()))
        field = *value;
}

// A list with nothing chosen shows a code with no entry; the field keeps it.
void StoreCode(const ComboBox& box, std::int16_t& field, int firstCode)
{
    if (const int entry = box.ListIndex(); entry >= 0)
        field = std::int16_t(entry + firstCode);
}

}  // namespace

void MainForm::Timer1_Timer()
{
    // Every field is copied on every tick, changed or not; only a new name
    // costs more, as it rebuilds the squad list. No control is written, so
    // the caret and the focus stay where the user has them.
    if (PlayerRecord* player = ShownPlayer())
        WriteBackPlayer(*player);
    if (TeamRecord* team = ShownTeam())
        WriteBackTeam(*team);
}

void MainForm::WriteBackPlayer(PlayerRecord& player)
{
    StoreCode(*Combo3, player.homeCountry, 1);
    StoreCode(*Combo4[BatPositionCombo], player.batPosition, 1);
    StoreCode(*Combo4[BatsCombo], player.bats, 0);
    StoreCode(*Combo4[BowlTypeCombo], player.bowlType, 1);
    StoreCode(*Combo4[BowlsCombo], player.bowls, 0);
    StoreCode(*Combo4[FieldsAtCombo], player.fieldsAt, 1);
    StoreNumber(*Text1[DayBox], player.birthDay);
    StoreNumber(*Text1[MonthBox], player.birthMonth);
    StoreNumber(*Text1[YearBox], player.birthYear);
    StoreNumber(*Text1[BatSkillBox], player.batSkill);
    StoreNumber(*Text1[BatAggressionBox], player.batAggression);
    StoreNumber(*Text1[BowlSkillBox], player.bowlSkill);
    StoreNumber(*Text1[BowlEconomyBox], player.bowlEconomy);
    StoreNumber(*Text1[FieldAbilityBox], player.fieldAbility);
    StoreNumber(*Text1[PotentialBox], player.potential);

    const std::string initials = ToGame(Text1[InitialsBox]->Text());
    const std::string surname = ToGame(Text1[SurnameBox]->Text());
    if (initials == player.initials && surname == player.surname)
        return;
    player.initials = initials;
    player.surname = surname;
    // The rebuilt list has no row chosen; the same player stays current.
    List1->Clear();
    FillSquadList();
}

void MainForm::WriteBackTeam(TeamRecord& team)
{
    // A new name or country shows in Combo2 only when the country is picked again.
    StoreCode(*Combo4[TeamCountryCombo], team.homeCountry, 1);
    StoreNumber(*Text1[ReputationBox], team.reputation);
    StoreNumber(*Text1[SupportBox], team.support);
    team.abbreviation = ToGame(Text1[AbbreviationBox]->Text());
    team.teamName = ToGame(Text1[TeamNameBox]->Text());
    StoreNumber(*Text1[WealthBox], team.wealth);
}
