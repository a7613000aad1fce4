#include "cli/record_fields.h"

#include "cli/utf8.h"

std::optional<std::string_view> CodeList::WordFor(int code) const
{
    const int position = code - firstCode;
    if (position < 0 || position >= static_cast<int>(words.size()))
        return std::nullopt;
    return words[position];
}

std::string WordColumn(std::string_view field)
{
    return std::string(field) + "Name";
}

std::string SquadColumn(int place)
{
    return "squad" + std::to_string(place);
}

std::string PlayerLabel(const PlayerRecord& player)
{
    const std::string name = player.initials.empty() ? player.surname : player.initials + " " + player.surname;
    return Utf8FromCp1252(name);
}
