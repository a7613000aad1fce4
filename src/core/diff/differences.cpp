#include "diff/differences.h"

#include <algorithm>
#include <iterator>

#include "data/fields.h"
#include "data/record_titles.h"
#include "data/squad.h"
#include "data/utf8.h"

namespace {

constexpr std::string_view PlayersFile = PlayerLayout.file;
constexpr std::string_view TeamsFile = TeamLayout.file;

// A coded value with its word, "2 (England)", so that a person need not look it up.
template <class Record>
std::string Coded(const Field<Record>& field, int value)
{
    const auto word = field.codes ? field.codes->WordFor(value) : std::nullopt;
    return std::to_string(value) + (word ? " (" + std::string(*word) + ")" : "");
}

class Comparer {
public:
    Comparer(const Game& before, const Game& after) : before_(before), after_(after) {}

    std::vector<Difference> Run()
    {
        ComparePlayers();
        CompareTeams();
        CompareSquads();
        return std::move(differences_);
    }

private:
    void Add(Difference difference)
    {
        difference.text = OnOneLine(difference.text);
        differences_.push_back(std::move(difference));
    }

    template <class Record>
    void CompareFields(std::string_view file, int number, const std::string& title, const Record& a, const Record& b,
                       std::span<const Field<Record>> fields)
    {
        const std::string where(file);
        for (const Field<Record>& field : fields) {
            const std::string name(field.name);
            if (field.text) {
                const std::string& from = a.*field.text;
                const std::string& to = b.*field.text;
                if (from != to)
                    Add({"changed", where, number, name, Utf8FromCp1252(from), Utf8FromCp1252(to),
                         title + ": " + name + " " + QuotedUtf8(from) + " -> " + QuotedUtf8(to)});
                continue;
            }
            const int from = a.*field.number;
            const int to = b.*field.number;
            if (from != to)
                Add({"changed", where, number, name, std::to_string(from), std::to_string(to),
                     title + ": " + name + " " + Coded(field, from) + " -> " + Coded(field, to)});
        }
    }

    void ComparePlayers()
    {
        const int countBefore = LoadedPlayerCount(before_);
        const int countAfter = LoadedPlayerCount(after_);
        for (int number = 1; number <= std::min(countBefore, countAfter); ++number)
            CompareFields<PlayerRecord>(PlayersFile, number, PlayerTitle(after_, number), before_.Players[number],
                                        after_.Players[number], PlayerFields);
        for (int number = countBefore + 1; number <= countAfter; ++number)
            Add({"added", std::string(PlayersFile), number, {}, {}, PlayerLabel(after_.Players[number]),
                 PlayerTitle(after_, number) + " added"});
        for (int number = countAfter + 1; number <= countBefore; ++number)
            Add({"removed", std::string(PlayersFile), number, {}, PlayerLabel(before_.Players[number]), {},
                 PlayerTitle(before_, number) + " removed"});
    }

    void CompareTeams()
    {
        const int countBefore = LoadedTeamCount(before_);
        const int countAfter = LoadedTeamCount(after_);
        for (int number = 1; number <= std::min(countBefore, countAfter); ++number) {
            const TeamRecord& a = before_.Teams[number];
            const TeamRecord& b = after_.Teams[number];
            CompareFields<TeamRecord>(TeamsFile, number, TeamTitle(after_, number), a, b, TeamFields);
            auto playersA = std::vector<int>(a.squad.begin() + 1, a.squad.end());
            auto playersB = std::vector<int>(b.squad.begin() + 1, b.squad.end());
            if (playersA == playersB)
                continue;
            std::sort(playersA.begin(), playersA.end());
            std::sort(playersB.begin(), playersB.end());
            if (playersA == playersB)
                Add({"rearranged", std::string(TeamsFile), number, "squad", {}, {},
                     TeamTitle(after_, number) + ": the squad holds the same players in other places"});
        }
        for (int number = countBefore + 1; number <= countAfter; ++number)
            Add({"added", std::string(TeamsFile), number, {}, {}, Utf8FromCp1252(after_.Teams[number].teamName),
                 TeamTitle(after_, number) + " added"});
        for (int number = countAfter + 1; number <= countBefore; ++number)
            Add({"removed", std::string(TeamsFile), number, {}, Utf8FromCp1252(before_.Teams[number].teamName), {},
                 TeamTitle(before_, number) + " removed"});
    }

    // Teams that held a player before and not after, and the other way round,
    // are paired off as moves; what is left over joined or left a squad.
    void CompareSquads()
    {
        const auto holdersBefore = TeamsHoldingEachPlayer(before_);
        const auto holdersAfter = TeamsHoldingEachPlayer(after_);
        const int count = std::max(LoadedPlayerCount(before_), LoadedPlayerCount(after_));
        for (int number = 1; number <= count; ++number) {
            const std::vector<int> left = TeamsMissingFrom(holdersBefore[number], holdersAfter[number]);
            const std::vector<int> joined = TeamsMissingFrom(holdersAfter[number], holdersBefore[number]);
            const Game& named = number <= LoadedPlayerCount(after_) ? after_ : before_;
            for (std::size_t i = 0; i < std::max(left.size(), joined.size()); ++i) {
                const int from = i < left.size() ? left[i] : 0;
                const int to = i < joined.size() ? joined[i] : 0;
                std::string text = PlayerTitle(named, number);
                if (from == 0)
                    text += " joined " + TeamTitle(after_, to);
                else if (to == 0)
                    text += " left " + TeamTitle(before_, from);
                else
                    text += " moved from " + TeamTitle(before_, from) + " to " + TeamTitle(after_, to);
                Add({"moved", std::string(PlayersFile), number, "squad", std::to_string(from), std::to_string(to), text});
            }
        }
    }

    // The teams of `teams` that `others` lacks, counting a team once for each place.
    static std::vector<int> TeamsMissingFrom(std::vector<int> teams, std::vector<int> others)
    {
        std::sort(teams.begin(), teams.end());
        std::sort(others.begin(), others.end());
        std::vector<int> missing;
        std::set_difference(teams.begin(), teams.end(), others.begin(), others.end(), std::back_inserter(missing));
        return missing;
    }

    const Game& before_;
    const Game& after_;
    std::vector<Difference> differences_;
};

}  // namespace

std::vector<Difference> CompareGames(const Game& before, const Game& after)
{
    return Comparer(before, after).Run();
}
