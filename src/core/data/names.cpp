#include "data/names.h"

#include <algorithm>
#include <utility>

namespace {

struct NameFlaw {
    const char* problem;   // as a save reports it
    const char* refusal;   // as a name box reports it
};

std::optional<NameFlaw> FindFlaw(std::string_view name)
{
    if (name.find(',') != std::string_view::npos)
        return NameFlaw{"it contains a comma", "A name cannot hold a comma"};
    if (name.find_first_of("\r\n") != std::string_view::npos)
        return NameFlaw{"it contains a line break", "A name cannot hold a line break"};
    // Bytes 0x80 to 0x9F are letters and signs in Windows-1252 (the euro
    // sign among them), so only the controls below the blank and DEL are refused.
    if (std::any_of(name.begin(), name.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }))
        return NameFlaw{"it contains a control character", "A name cannot hold a control character"};
    // The reader skips blanks before a value, so they would be gone on the next load.
    if (name.starts_with(' '))
        return NameFlaw{"it begins with a blank", "A name cannot begin with a blank"};
    if (name.starts_with('"'))
        return NameFlaw{"it begins with a double quote", "A name cannot begin with a double quote"};
    return std::nullopt;
}

}  // namespace

std::optional<std::string> NameProblem(std::string_view name)
{
    if (const auto flaw = FindFlaw(name))
        return flaw->problem;
    return std::nullopt;
}

std::optional<std::string> NameRefusal(std::string_view name)
{
    if (const auto flaw = FindFlaw(name))
        return flaw->refusal;
    return std::nullopt;
}

namespace {

std::optional<NameFault> Check(const char* file, const std::string& record, const char* field,
                               const std::string& name)
{
    if (auto problem = NameProblem(name))
        return NameFault{file, record + ": the " + field + " \"" + name + "\" cannot be saved because " + *problem};
    return std::nullopt;
}

}  // namespace

std::optional<NameFault> FirstUnstorableName(const Game& game)
{
    for (int i = 1; i <= std::min<int>(game.PlayerCount, MaxPlayers); ++i) {
        const PlayerRecord& player = game.Players[i];
        const std::string record = "player " + std::to_string(i);
        if (auto fault = Check("players.dat", record, "initials", player.initials))
            return fault;
        if (auto fault = Check("players.dat", record, "surname", player.surname))
            return fault;
    }
    for (int i = 1; i <= LoadedTeamCount(game); ++i) {
        const TeamRecord& team = game.Teams[i];
        const std::string record = "team " + std::to_string(i);
        if (auto fault = Check("teams.dat", record, "team name", team.teamName))
            return fault;
        if (auto fault = Check("teams.dat", record, "abbreviation", team.abbreviation))
            return fault;
    }
    return std::nullopt;
}
