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
    // One look at each byte: a save checks some 5000 names.
    bool comma = false;
    bool lineBreak = false;
    bool control = false;
    for (const char c : name) {
        comma |= c == ',';
        lineBreak |= c == '\r' || c == '\n';
        // Bytes 0x80 to 0x9F are letters and signs in Windows-1252 (the euro
        // sign among them), so only the controls below the blank and DEL are refused.
        control |= static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
    }
    if (comma)
        return NameFlaw{"it contains a comma", "A name cannot hold a comma"};
    if (lineBreak)
        return NameFlaw{"it contains a line break", "A name cannot hold a line break"};
    if (control)
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

std::optional<NameFault> Check(const char* file, const char* record, int number, const char* field,
                               const std::string& name)
{
    if (auto problem = NameProblem(name))
        return NameFault{file, std::string(record) + " " + std::to_string(number) + ": the " + field + " \"" + name +
                                   "\" cannot be saved because " + *problem};
    return std::nullopt;
}

}  // namespace

std::optional<NameFault> FirstUnstorableName(const Game& game)
{
    for (int i = 1; i <= std::min<int>(game.PlayerCount, MaxPlayers); ++i) {
        const PlayerRecord& player = game.Players[i];
        if (auto fault = Check("players.dat", "player", i, "initials", player.initials))
            return fault;
        if (auto fault = Check("players.dat", "player", i, "surname", player.surname))
            return fault;
    }
    for (int i = 1; i <= LoadedTeamCount(game); ++i) {
        const TeamRecord& team = game.Teams[i];
        if (auto fault = Check("teams.dat", "team", i, "team name", team.teamName))
            return fault;
        if (auto fault = Check("teams.dat", "team", i, "abbreviation", team.abbreviation))
            return fault;
    }
    return std::nullopt;
}
