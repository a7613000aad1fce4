#include "data/players_file.h"

#include <algorithm>
#include <cstdint>
#include <vector>

#include "data/field_reader.h"
#include "data/record_lines.h"

namespace {

void SkipFields(FieldReader& reader, int count)
{
    for (int i = 0; i < count; ++i)
        reader.ReadView();
}

// The lines after the number, in file order. A number that fails to read
// leaves its field as it was; the names of the closing record numbered 0
// are read and dropped.
void ReadFields(FieldReader& reader, PlayerRecord& player, bool keepNames)
{
    ForEachLine<PlayerLayout.keyLine + 1, PlayerLayout.lines>([&](auto lineConstant) {
        constexpr int line = decltype(lineConstant)::value;
        constexpr LineKind kind = KindOfLine(PlayerLayout, line);
        if constexpr (kind == LineKind::Name) {
            const auto text = reader.ReadView();
            if (keepNames)
                TakeName(text, FieldOnLine(PlayerLayout, line), player);
        } else if constexpr (kind == LineKind::Number) {
            reader.ReadNumberInto(player.*FieldOnLine(PlayerLayout, line).number);
        } else {
            reader.ReadView();  // a constant line means nothing to the editor
        }
    });
}

}  // namespace

LoadReport ReadPlayers(Game& game, std::string_view bytes)
{
    LoadReport report = LoadReport::For(std::string(PlayerLayout.file));
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
            SkipFields(reader, PlayerLayout.lines - 1);
            continue;
        }
        const std::int16_t number = *parsed;
        PlayerRecord& player = game.Players[number];
        ReadFields(reader, player, number != 0);
        player.playerNumber = number;
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
    const int count = std::min<int>(game.PlayerCount, MaxPlayers);
    TextLines out(ExpectedBytes(PlayerLayout, count));
    for (int i = 1; i <= count; ++i)
        WriteRecordLines<PlayerLayout>(out, game.Players[i], i);
    out.EmptyLines(PlayerLayout.closingEmptyLines);
    return out.Take();
}

LoadReport ReadPlayersFile(Game& game)
{
    FileBytes file = ReadFileBytes(game.PlayersPath);
    if (!file.ok())
        return LoadReport::Unread(std::string(PlayerLayout.file), std::move(file.reason));
    return ReadPlayers(game, file.bytes);
}

FileResult WritePlayersFile(const Game& game)
{
    return ReplaceFile(game.PlayersPath, WritePlayers(game));
}
