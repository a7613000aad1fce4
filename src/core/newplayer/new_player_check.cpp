#include "newplayer/new_player_check.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>

#include "data/dates.h"
#include "data/fields.h"
#include "data/squad.h"
#include "data/text_number.h"

namespace {

const PlayerField& FieldOfBox(std::int16_t PlayerRecord::*member)
{
    return *FieldOf<PlayerRecord>(PlayerFields, member);
}

const PlayerField& FieldOfName(std::string PlayerRecord::*member)
{
    return *std::find_if(PlayerFields.begin(), PlayerFields.end(),
                         [member](const PlayerField& field) { return field.text == member; });
}

// Blanks alone are no name: the game's reader drops them from the initials,
// and a surname of blanks shows as an empty row that ends a search listing.
bool IsBlank(std::string_view text)
{
    return text.find_first_not_of(' ') == std::string_view::npos;
}

std::optional<std::string> NameFault(const NewPlayerEntries& entries)
{
    if (IsBlank(entries.initials))
        return std::string(FieldOfName(&PlayerRecord::initials).label) + " has no initials.";
    if (IsBlank(entries.surname))
        return std::string(FieldOfName(&PlayerRecord::surname).label) + " has no surname.";
    return std::nullopt;
}

std::optional<std::string> BoxFault(const NewPlayerEntries& entries, const NumberBox& box)
{
    const PlayerField& field = FieldOfBox(box.field);
    const std::string label(field.label);
    const std::string& typed = entries.*box.box;
    const std::optional<double> value = TextAsDecimal(typed);
    if (!value)
        return label + (typed.empty() ? " is empty." : " holds no number: \"" + typed + "\".");
    const std::optional<Range> range = field.range;
    if (range && (*value < range->low || *value > range->high))
        return label + " must lie from " + std::to_string(range->low) + " to " + std::to_string(range->high) +
               ", not " + typed + ".";
    return std::nullopt;
}

// The three date boxes hold numbers; together they must name a day of the calendar.
std::optional<std::string> DateFault(const NewPlayerEntries& entries)
{
    const auto part = [](const std::string& typed) {
        const double value = TextAsDecimal(typed).value_or(0);
        return value == std::nearbyint(value) && std::abs(value) <= 32767 ? static_cast<int>(value) : 0;
    };
    if (DateExists(part(entries.birthDay), part(entries.birthMonth), part(entries.birthYear)))
        return std::nullopt;
    return std::string(FieldOfBox(&PlayerRecord::birthDay).label) + " " + entries.birthDay + "/" +
           entries.birthMonth + "/" + entries.birthYear + " does not exist.";
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
    return !FirstBadEntry(entries);
}

std::optional<std::string> FirstBadEntry(const NewPlayerEntries& entries)
{
    if (auto fault = NameFault(entries))
        return fault;
    for (std::size_t i = 0; i < NumberBoxes.size(); ++i) {
        if (i == DateBoxCount) {
            if (auto fault = DateFault(entries))
                return fault;
        }
        if (auto fault = BoxFault(entries, NumberBoxes[i]))
            return fault;
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
