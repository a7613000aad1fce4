// Any bytes as players.csv, then a NUL, then teams.csv, imported into a small
// game: an import that is accepted exports to CSVs that import again without
// a single change, and saves to files that read back as the same game.
#include <memory>

#include "csv/csv.h"
#include "csv/csv_export.h"
#include "csv/import_rows.h"
#include "diff/differences.h"
#include "data/game.h"
#include "data/names.h"
#include "data/players_file.h"
#include "data/teams_file.h"
#include "fuzz_check.h"
#include "game_pair.h"

namespace {

// Three teams and five players, two of them in squads.
const Game& BaseGame()
{
    static const Game& base = [] () -> const Game& {
        Game& game = *new Game;
        std::string players;
        for (int i = 1; i <= 5; ++i) {
            players += std::to_string(i) + "\r\n#\r\nA B#\r\nName" + std::to_string(i) + "#\r\n";
            for (int line = 5; line <= 21; ++line)
                players += (line == 9 ? std::to_string(i <= 2 ? i : 0) : std::to_string(line)) + "\r\n";
        }
        for (int line = 1; line <= 21; ++line)
            players += "\r\n";
        ReadPlayers(game, players);
        std::string teams;
        for (int i = 1; i <= 3; ++i) {
            teams += "0\r\nTeam" + std::to_string(i) + "#\r\nT" + std::to_string(i) + "#\r\n2\r\n50\r\n40\r\n30\r\n" +
                     std::to_string(i) + "\r\n0\r\n0\r\n" + (i <= 2 ? std::to_string(i) : "0") + "\r\n";
            for (int place = 2; place <= 20; ++place)
                teams += "0\r\n";
        }
        ReadTeams(game, teams);
        return game;
    }();
    return base;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    static Game& reread = *new Game;
    const auto [playersCsv, teamsCsv] = SplitAtNul(AsBytes(data, size));
    const CsvTable players = ParseCsv(playersCsv);
    const CsvTable teams = ParseCsv(teamsCsv);
    const auto imported = std::make_unique<Game>(BaseGame());
    Game& game = *imported;
    const bool withTeams = !teamsCsv.empty();
    if (!ApplyImport(game, {&players, withTeams ? &teams : nullptr}).empty())
        return 0;  // refused, and the game is thrown away

    const CsvTable exportedPlayers = ParseCsv(PlayersCsv(game));
    const CsvTable exportedTeams = ParseCsv(TeamsCsv(game));
    const auto again = std::make_unique<Game>(game);
    Require(ApplyImport(*again, {&exportedPlayers, &exportedTeams}).empty(), "an export imports without a fault");
    Require(CompareGames(game, *again).empty(), "importing an export changes nothing");

    if (FirstUnstorableName(game))
        return 0;
    ClearTables(reread);
    ReadPlayers(reread, WritePlayers(game));
    ReadTeams(reread, WriteTeams(game));
    Require(CompareGames(game, reread).empty(), "the imported game reads back from its files the same");
    return 0;
}
