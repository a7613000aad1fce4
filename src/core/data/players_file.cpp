#include "data/players_file.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

#include "data/field_reader.h"
#include "data/text_lines.h"

namespace {

constexpr int LinesPerPlayer = 21;

// Lines 5 to 21, in file order.
constexpr std::array<std::int16_t PlayerRecord::*, 17> NumberLines{
    &PlayerRecord::birthDay,     &PlayerRecord::birthMonth,    &PlayerRecord::birthYear,
    &PlayerRecord::homeCountry,  &PlayerRecord::teamNumber,    &PlayerRecord::batPosition,
    &PlayerRecord::bats,         &PlayerRecord::batSkill,      &PlayerRecord::batAggression,
    &PlayerRecord::bowlType,     &PlayerRecord::bowls,         &PlayerRecord::bowlSkill,
    &PlayerRecord::bowlEconomy,  &PlayerRecord::fieldAbility,  &PlayerRecord::fieldsAt,
    &PlayerRecord::potential,    &PlayerRecord::carriedValue,
};

void SkipFields(FieldReader& reader, int count)
{
    for (int i = 0; i < count; ++i)
        reader.ReadText();
}

// A failed read leaves the field as it was.
void ReadNumbers(FieldReader& reader, PlayerRecord& player)
{
    for (auto field : NumberLines) {
        if (const auto value = reader.ReadNumber())
            player.*field = *value;
    }
}

// A stored name keeps the line but for its last character, which the game
// writes as "#" to guard trailing blanks; an empty line leaves the name alone.
void TakeName(const std::optional<std::string>& line, std::string& name)
{
    if (line && !line->empty())
        name = line->substr(0, line->size() - 1);
}

void TakeInitials(const std::optional<std::string>& line, std::string& initials)
{
    if (line && !line->empty())
        initials = TrimBlanks(line->substr(0, line->size() - 1));
}

}  // namespace

LoadReport ReadPlayers(Game& game, std::string_view bytes)
{
    LoadReport report = LoadReport::For("players.dat");
    std::vector<int> numbersRead;
    FieldReader reader(bytes);
    for (int place = 1;; ++place) {
        if (reader.AtEnd())
            break;
        const std::optional<std::int16_t> parsed = reader.ReadNumber();
        if (!parsed || *parsed < 0 || *parsed > MaxPlayers) {
            // No slot for this record: pass over it and keep the rhythm.
            report.skippedRecords.push_back(place);
            report.numberedPastLimit += parsed && *parsed > MaxPlayers;
            SkipFields(reader, LinesPerPlayer - 1);
            continue;
        }
        const std::int16_t number = *parsed;
        reader.ReadText();  // line 2 means nothing to the editor
        PlayerRecord& player = game.Players[number];
        const auto initials = reader.ReadText();
        const auto surname = reader.ReadText();
        if (number != 0) {
            TakeInitials(initials, player.initials);
            TakeName(surname, player.surname);
        }
        player.playerNumber = number;
        ReadNumbers(reader, player);
        // The empty lines at the end read as a record numbered 0. A number
        // equal to the one before also ends the file, as the game reads it.
        if (number == 0 || game.PlayerCount == number)
            break;
        game.PlayerCount = number;
        numbersRead.push_back(number);
    }
    report.valuesAfterEnd = CountValuesLeft(reader);
    for (const int number : numbersRead) {
        if (number > game.PlayerCount)
            report.pastLastNumber.push_back(number);
    }
    return report;
}

std::string WritePlayers(const Game& game)
{
    TextLines out;
    const int count = std::min<int>(game.PlayerCount, MaxPlayers);
    for (int i = 1; i <= count; ++i) {
        const PlayerRecord& player = game.Players[i];
        out.Number(i);
        out.Line("#");
        out.Line(player.initials + "#");
        out.Line(player.surname + "#");
        for (auto field : NumberLines)
            out.Number(player.*field);
    }
    out.EmptyLines(LinesPerPlayer);
    return out.Take();
}

LoadReport ReadPlayersFile(Game& game)
{
    FileBytes file = ReadFileBytes(game.PlayersPath);
    if (!file.ok())
        return LoadReport::Unread("players.dat", std::move(file.reason));
    return ReadPlayers(game, file.bytes);
}

FileResult WritePlayersFile(const Game& game)
{
    return ReplaceFile(game.PlayersPath, WritePlayers(game));
}
