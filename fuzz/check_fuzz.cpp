// Any bytes as players.dat, then a NUL, then teams.dat, checked as `check`
// does: every problem names its file and reads as one line of UTF-8, and the
// list stays in proportion to the input.
#include "check/problems.h"
#include "cli/output.h"
#include "data/utf8.h"
#include "data/game.h"
#include "data/players_file.h"
#include "data/teams_file.h"
#include "fuzz_check.h"
#include "game_pair.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    static Game& game = *new Game;
    ClearTables(game);
    const auto [players, teams] = SplitAtNul(AsBytes(data, size));
    ReadPlayers(game, players);
    ReadTeams(game, teams);

    std::vector<Problem> problems = ProblemsInPlayersFile(players);
    for (const auto& more : {ProblemsInTeamsFile(teams), ProblemsInGame(game)})
        problems.insert(problems.end(), more.begin(), more.end());
    for (const Problem& problem : problems) {
        Require(problem.file == "players.dat" || problem.file == "teams.dat", "a problem names its file");
        const std::string line = ProblemLine(problem);
        const std::string json = ProblemJson(problem);
        Require(IsUtf8(line) && IsUtf8(json), "a problem reads as UTF-8");
        Require(line.find_first_of("\r\n") == std::string::npos && json.find_first_of("\r\n") == std::string::npos,
                "a problem is one line");
    }
    return 0;
}
