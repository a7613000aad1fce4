#include "newplayer/new_player_check.h"

#include <algorithm>
#include <cstdint>
#include <optional>

#include "data/fields.h"
#include "data/squad.h"
#include "data/text_number.h"

namespace {

const PlayerField& FieldOfBox(std::int16_t PlayerRecord::*member)
{
    return *FieldOf<PlayerRecord>(PlayerFields, member);
}

bool BoxIsGood(const NewPlayerEntries& entries, const NumberBox& box)
{
    const std::optional<double> value = TextAsDecimal(entries.*box.box);
    const std::optional<Range> range = FieldOfBox(box.field).range;
    return value && (!range || (*value >= range->low && *value <= range->high));
}

// Fills the slot field by field over what it held: carriedValue and the
// team are not among the entries, and a number that does not fit the game's
// 16 bits leaves its field alone.
void FillRecord(PlayerRecord& player, std::int16_t number, const NewPlayerEntries& entries)
{
    player.playerNumber = number;
    for (const CodeBox& box : CodeBoxes)
        player.*box.field = static_cast<std::int16_t>(entries.*box.row + FieldOfBox(box.field).codes->firstCode);
    for (const NumberBox& box : NumberBoxes) {
        if (const std::optional<std::int16_t> value = TextAsNumber(entries.*box.box))
            player.*box.field = *value;
    }
    player.initials = entries.initials;
    player.surname = entries.surname;
}

}  // namespace

bool EntriesAreGood(const NewPlayerEntries& entries)
{
    return std::all_of(NumberBoxes.begin(), NumberBoxes.end(),
                       [&](const NumberBox& box) { return BoxIsGood(entries, box); });
}

std::optional<std::string> FirstBadEntry(const NewPlayerEntries& entries)
{
    for (const NumberBox& box : NumberBoxes) {
        if (BoxIsGood(entries, box))
            continue;
        const PlayerField& field = FieldOfBox(box.field);
        const std::string label(field.label);
        const std::string& typed = entries.*box.box;
        if (!TextAsDecimal(typed))
            return label + (typed.empty() ? " is empty." : " holds no number: \"" + typed + "\".");
        return label + " must lie from " + std::to_string(field.range->low) + " to " +
               std::to_string(field.range->high) + ", not " + typed + ".";
    }
    return std::nullopt;
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
