// Two games from one input (players.dat, a NUL, teams.dat, and the same two
// texts swapped for the second game), compared as `diff` does: a game does
// not differ from itself nor from what its save reads back as, the two ways
// round find as many differences, and each reads as one line of UTF-8.
#include "cli/output.h"
#include "data/utf8.h"
#include "data/game.h"
#include "data/names.h"
#include "data/players_file.h"
#include "data/teams_file.h"
#include "fuzz_check.h"
#include "game_pair.h"

namespace {

void Load(Game& game, std::string_view players, std::string_view teams)
{
    ClearTables(game);
    ReadPlayers(game, players);
    ReadTeams(game, teams);
}

void RequireReadable(const std::vector<Difference>& differences)
{
    for (const Difference& difference : differences) {
        const std::string json = DifferenceJson(difference);
        Require(IsUtf8(difference.text) && IsUtf8(json), "a difference reads as UTF-8");
        Require(difference.text.find_first_of("\r\n") == std::string::npos &&
                    json.find_first_of("\r\n") == std::string::npos,
                "a difference is one line");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    static Game& first = *new Game;
    static Game& second = *new Game;
    static Game& reread = *new Game;
    const auto [a, b] = SplitAtNul(AsBytes(data, size));
    Load(first, a, b);
    Load(second, b, a);

    Require(CompareGames(first, first).empty(), "a game does not differ from itself");
    const std::vector<Difference> forth = CompareGames(first, second);
    const std::vector<Difference> back = CompareGames(second, first);
    Require(forth.size() == back.size(), "both ways round find as many differences");
    RequireReadable(forth);

    if (FirstUnstorableName(first))
        return 0;
    Load(reread, WritePlayers(first), WriteTeams(first));
    Require(CompareGames(first, reread).empty(), "a saved game reads back without a difference");
    return 0;
}
