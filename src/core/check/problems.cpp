#include "check/problems.h"

#include <algorithm>
#include <set>
#include <tuple>
#include <utility>

#include "data/dates.h"
#include "data/fields.h"
#include "data/squad.h"

namespace {

constexpr std::string_view PlayersFile = PlayerLayout.file;
constexpr std::string_view TeamsFile = TeamLayout.file;

std::string TeamList(const std::vector<int>& teams)
{
    std::string list;
    for (std::size_t i = 0; i < teams.size(); ++i)
        list += (i == 0 ? "" : i + 1 == teams.size() ? " and " : ", ") + std::to_string(teams[i]);
    return list;
}

class GameChecker {
public:
    explicit GameChecker(const Game& game) : game_(game), holders_(TeamsHoldingEachPlayer(game)) {}

    std::vector<Problem> Run()
    {
        for (int team = 1; team <= LoadedTeamCount(game_); ++team)
            CheckTeam(team);
        for (int number = 1; number <= LoadedPlayerCount(game_); ++number)
            CheckPlayer(number);
        return std::move(problems_);
    }

private:
    void Add(Severity severity, std::string_view file, int record, std::string field, std::string message)
    {
        problems_.push_back({severity, std::string(file), record, std::move(field), std::move(message)});
    }

    // Codes that no word of their list stands for, and values outside the
    // game's stated range, in the order of the fields.
    template <class Record>
    void CheckValues(std::string_view file, int number, const Record& record,
                     std::span<const Field<Record>> fields, std::string_view codeWording)
    {
        for (const Field<Record>& field : fields) {
            if (!field.number)
                continue;
            const int value = record.*field.number;
            if (field.codes && !field.codes->WordFor(value))
                Add(Severity::Warning, file, number, std::string(field.name),
                    std::to_string(value) + std::string(codeWording) + " (" + std::to_string(field.codes->firstCode) +
                        " to " + std::to_string(field.codes->LastCode()) + ")");
            if (field.range && (value < field.range->low || value > field.range->high))
                Add(Severity::Warning, file, number, std::string(field.name),
                    std::to_string(value) + " is outside the range " + RangeText(*field.range));
        }
    }

    void CheckTeam(int number)
    {
        const TeamRecord& team = game_.Teams[number];
        CheckValues<TeamRecord>(TeamsFile, number, team, TeamFields, " is reached by no entry of the country list");

        int firstGap = 0;
        bool gapReported = false;
        for (int place = 1; place <= SquadSize; ++place) {
            const int player = team.squad[place];
            if (player == 0) {
                firstGap = firstGap == 0 ? place : firstGap;
                continue;
            }
            if (firstGap != 0 && !gapReported) {
                Add(Severity::Warning, TeamsFile, number, SquadPlaceName(firstGap),
                    "is empty, but place " + std::to_string(place) +
                        " holds a player: the editor's squad commands expect a packed squad");
                gapReported = true;
            }
            if (player < 0 || player > game_.PlayerCount) {
                Add(Severity::Error, TeamsFile, number, SquadPlaceName(place),
                    "names player " + std::to_string(player) + ", who is not in players.dat (1 to PlayerCount " +
                        std::to_string(game_.PlayerCount) + ")");
                continue;
            }
            CheckSquadPlace(number, place, player);
        }
    }

    // Reported on every team that holds the player, at his first place there.
    void CheckSquadPlace(int team, int place, int player)
    {
        const std::vector<int>& holders = holders_[player];
        const bool firstPlaceInTeam =
            std::find(game_.Teams[team].squad.begin() + 1, game_.Teams[team].squad.begin() + place, player) ==
            game_.Teams[team].squad.begin() + place;
        if (!firstPlaceInTeam)
            return;
        if (std::count(holders.begin(), holders.end(), team) > 1)
            Add(Severity::Error, TeamsFile, team, SquadPlaceName(place),
                "player " + std::to_string(player) + " stands more than once in this squad");
        std::vector<int> others;
        for (const int other : holders) {
            if (other != team && std::find(others.begin(), others.end(), other) == others.end())
                others.push_back(other);
        }
        if (!others.empty())
            Add(Severity::Error, TeamsFile, team, SquadPlaceName(place),
                "player " + std::to_string(player) + " also stands in the squad of team " + TeamList(others));
    }

    void CheckPlayer(int number)
    {
        const PlayerRecord& player = game_.Players[number];
        if (player.playerNumber == 0) {
            Add(Severity::Warning, PlayersFile, number, "playerNumber",
                "no record in the file has this number; a save writes an empty player here");
            return;
        }
        CheckTeamNumber(number, player);
        CheckValues<PlayerRecord>(PlayersFile, number, player, PlayerFields, " is no code of its list");
        if (player.surname.empty())
            Add(Severity::Warning, PlayersFile, number, "surname",
                "is empty, and an empty surname ends a search listing in the editor");
        if (!DateExists(player.birthDay, player.birthMonth, player.birthYear))
            Add(Severity::Warning, PlayersFile, number, "birthDay",
                "the birth date " + std::to_string(player.birthDay) + "/" + std::to_string(player.birthMonth) + "/" +
                    std::to_string(player.birthYear) + " cannot be (day/month/year)");
    }

    void CheckTeamNumber(int number, const PlayerRecord& player)
    {
        const std::vector<int>& holders = holders_[number];
        const int team = player.teamNumber;
        if (holders.empty() && team == 0)
            return;
        if (std::find(holders.begin(), holders.end(), team) != holders.end())
            return;
        Add(Severity::Warning, PlayersFile, number, "teamNumber",
            std::to_string(team) + (holders.empty() ? " names a team, but no squad holds him"
                                                    : ", but the squad of team " + std::to_string(holders.front()) +
                                                          " holds him"));
    }

    const Game& game_;
    std::vector<std::vector<int>> holders_;
    std::vector<Problem> problems_;
};

}  // namespace

std::vector<Problem> ProblemsInGame(const Game& game)
{
    std::vector<Problem> problems = GameChecker(game).Run();
    // Players first, as the files are read; each file in record order.
    std::stable_sort(problems.begin(), problems.end(), [](const Problem& a, const Problem& b) {
        return a.file != b.file && a.file == PlayersFile;
    });
    return problems;
}

std::vector<Problem> ProblemsOfGame(const Game& game, std::string_view playersBytes, std::string_view teamsBytes)
{
    std::vector<Problem> problems = ProblemsInPlayersFile(playersBytes);
    const std::vector<Problem> teamsFile = ProblemsInTeamsFile(teamsBytes);
    problems.insert(problems.end(), teamsFile.begin(), teamsFile.end());

    std::set<std::pair<std::string, int>> misread;
    for (const Problem& problem : problems) {
        if (problem.severity == Severity::Error && problem.field != "end of file")
            misread.insert({problem.file, problem.record});
    }
    const std::vector<Problem> inGame = ProblemsInGame(game);
    problems.insert(problems.end(), inGame.begin(), inGame.end());
    std::erase_if(problems, [&misread](const Problem& problem) {
        return problem.severity == Severity::Warning && misread.contains({problem.file, problem.record});
    });
    std::stable_sort(problems.begin(), problems.end(), [](const Problem& a, const Problem& b) {
        return std::tuple(a.severity, a.file, a.record) < std::tuple(b.severity, b.file, b.record);
    });
    return problems;
}
