#include "newplayer/new_player_check.h"

#include <algorithm>
#include <cstdint>
#include <optional>

#include "data/squad.h"
#include "data/text_number.h"

namespace {

bool InRange(const NewPlayerEntries& entries, const StatRange& range)
{
    const std::optional<double> value = TextAsDecimal(entries.*range.box);
    return value && *value >= range.lowest && *value <= range.highest;
}

void StoreNumber(std::int16_t& field, const std::string& text)
{
    if (const std::optional<std::int16_t> value = TextAsNumber(text))
        field = *value;
}

void StoreCode(std::int16_t& field, int position, int offset)
{
    field = static_cast<std::int16_t>(position + offset);
}

// Fills the slot field by field over what it held: carriedValue and the
// team are not among the entries.
void FillRecord(PlayerRecord& player, std::int16_t number, const NewPlayerEntries& entries)
{
    player.playerNumber = number;
    StoreCode(player.homeCountry, entries.homeCountry, 1);
    StoreCode(player.batPosition, entries.batPosition, 1);
    StoreCode(player.bats, entries.bats, 0);
    StoreCode(player.bowlType, entries.bowlType, 1);
    StoreCode(player.bowls, entries.bowls, 0);
    StoreCode(player.fieldsAt, entries.fieldsAt, 1);
    StoreNumber(player.birthDay, entries.birthDay);
    StoreNumber(player.birthMonth, entries.birthMonth);
    StoreNumber(player.birthYear, entries.birthYear);
    StoreNumber(player.batSkill, entries.batSkill);
    StoreNumber(player.batAggression, entries.batAggression);
    StoreNumber(player.bowlSkill, entries.bowlSkill);
    StoreNumber(player.bowlEconomy, entries.bowlEconomy);
    StoreNumber(player.fieldAbility, entries.fieldAbility);
    StoreNumber(player.potential, entries.potential);
    player.initials = entries.initials;
    player.surname = entries.surname;
}

}  // namespace

bool EntriesAreGood(const NewPlayerEntries& entries)
{
    const bool allNumbers = std::all_of(NumberBoxes.begin(), NumberBoxes.end(), [&](EntryBox box) {
        return TextAsDecimal(entries.*box).has_value();
    });
    return allNumbers && std::all_of(StatRanges.begin(), StatRanges.end(),
                                     [&](const StatRange& range) { return InRange(entries, range); });
}

bool CanAddNewPlayer(const Game& game)
{
    return game.PlayerCount >= 0 && game.PlayerCount < MaxPlayers;
}

NewPlayerOutcome CommitNewPlayer(Game& game, int team, const NewPlayerEntries& entries)
{
    if (!EntriesAreGood(entries))
        return NewPlayerOutcome::BadEntries;
    if (!CanAddNewPlayer(game))
        return NewPlayerOutcome::TableFull;
    if (!IsTeamIndex(team))
        return NewPlayerOutcome::NoTeam;
    if (SquadCount(game.Teams[team]) >= SquadSize)
        return NewPlayerOutcome::SquadFull;

    const auto number = static_cast<std::int16_t>(game.PlayerCount + 1);
    game.PlayerCount = number;
    FillRecord(game.Players[number], number, entries);
    // A teams.dat may name numbers beyond the last player; the new player
    // leaves any such stale place and joins the end of this squad alone.
    AddToSquad(game, team, number);
    return NewPlayerOutcome::Added;
}
