#include "world_generator.h"

#include <algorithm>
#include <array>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace {

// std::mt19937 gives the same numbers everywhere; the standard distributions
// do not, so the draws below are our own.
class Dice {
public:
    explicit Dice(std::uint32_t seed) : engine_(seed) {}

    int Between(int low, int high)
    {
        return low + static_cast<int>(engine_() % static_cast<std::uint32_t>(high - low + 1));
    }
    bool Chance(int percent) { return Between(1, 100) <= percent; }

    template <std::size_t N>
    std::string_view Pick(const std::array<std::string_view, N>& items)
    {
        return items[static_cast<std::size_t>(Between(0, static_cast<int>(N) - 1))];
    }

private:
    std::mt19937 engine_;
};

constexpr std::array<std::string_view, 28> SurnameStarts{
    "Brax", "Cadw", "Dov",  "Elv",   "Frel", "Gosk", "Harv", "Istr", "Jund", "Kov",
    "Lask", "Morv", "Nesk", "Orb",   "Plim", "Quarr", "Rosk", "Snel", "Trav", "Uld",
    "Vosk", "Wrenn", "Yalt", "Zorn", "Bisk", "Cremm", "Drov", "Fask",
};
constexpr std::array<std::string_view, 20> SurnameEnds{
    "aby", "ell", "ington", "ock", "ham",   "ley", "ard",  "enby", "ith",  "ow",
    "erly", "acott", "ins", "ett", "ane",   "ury", "stone", "wick", "ford", "dene",
};
constexpr std::array<std::string_view, 20> InitialLetters{
    "A", "B", "C", "D", "E", "F", "G", "H", "I", "J", "K", "L", "M", "N", "P", "R", "S", "T", "V", "W",
};
constexpr std::array<std::string_view, 24> TownStarts{
    "Bram", "Cold", "Ferr", "Glen", "Hask", "Kell", "Lorn", "Marr", "Norv", "Oak",   "Pem",  "Ravel",
    "Sand", "Thorn", "Wyn", "Ald",  "Brack", "Corm", "Dray", "Esk", "Fal",  "Gant", "Hollin", "Kest",
};
constexpr std::array<std::string_view, 16> TownEnds{
    "bury", "field", "haven", "mouth", "ton",   "ridge", "ford", "wick",
    "dale", "port",  "stead", "vale",  "moor", "bridge", "ley",  "minster",
};
constexpr std::array<std::string_view, 8> ClubWords{
    "Cricket Club", "Rangers", "Wanderers", "Pilgrims", "County", "Districts", "Athletic", "United",
};

// Codes of BowlTypeList that bowl at all: F, FM, MF, M, SLA, SLC, OB, LB.
constexpr std::array<int, 8> BowlingTypes{1, 2, 3, 4, 5, 6, 8, 9};
constexpr int NoBowling = 7;
constexpr int FirstSpinType = 5;

// Codes of BatPositionList.
enum Role { Opener = 1, TopOrder, MiddleOrder, AllRounder, LateOrder, TailEnder };

// The backbone of a squad; larger squads add players of any role.
constexpr std::array<Role, 14> SquadRoles{
    Opener,      Opener,      TopOrder,  TopOrder,  TopOrder,  MiddleOrder, MiddleOrder,
    MiddleOrder, AllRounder,  AllRounder, LateOrder, TailEnder, TailEnder,  TailEnder,
};
constexpr int KeeperIndex = 6;  // the second middle-order batsman keeps wicket

// A few names carry a Windows-1252 letter: é (0xE9) or ö (0xF6).
std::string WithAccent(std::string name, Dice& dice)
{
    const bool acute = dice.Chance(50);
    const std::size_t at = name.find(acute ? 'e' : 'o', 1);
    if (at != std::string::npos)
        name[at] = acute ? '\xE9' : '\xF6';
    return name;
}

std::string Surname(Dice& dice)
{
    std::string name(dice.Pick(SurnameStarts));
    name += dice.Pick(SurnameEnds);
    return dice.Chance(4) ? WithAccent(std::move(name), dice) : name;
}

std::string Initials(Dice& dice)
{
    std::string initials(dice.Pick(InitialLetters));
    if (dice.Chance(60)) {
        initials += ' ';
        initials += dice.Pick(InitialLetters);
    }
    return initials;
}

int DaysInMonth(int month, int year)
{
    constexpr std::array<int, 12> days{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    return month == 2 && leap ? 29 : days[static_cast<std::size_t>(month - 1)];
}

void SetBirth(PlayerRecord& player, Dice& dice)
{
    const int year = dice.Between(1960, 1985);
    const int month = dice.Between(1, 12);
    player.birthYear = static_cast<std::int16_t>(year);
    player.birthMonth = static_cast<std::int16_t>(month);
    player.birthDay = static_cast<std::int16_t>(dice.Between(1, DaysInMonth(month, year)));
}

void SetBatting(PlayerRecord& player, Role role, Dice& dice)
{
    struct Range { int low, high; };
    constexpr std::array<Range, 6> skill{{{35, 60}, {32, 58}, {28, 55}, {22, 45}, {10, 30}, {0, 15}}};
    const Range range = skill[static_cast<std::size_t>(role - 1)];
    player.batPosition = static_cast<std::int16_t>(role);
    player.bats = static_cast<std::int16_t>(dice.Chance(25) ? 1 : 0);
    player.batSkill = static_cast<std::int16_t>(dice.Between(range.low, range.high));
    player.batAggression = static_cast<std::int16_t>(role == LateOrder || role == AllRounder
                                                         ? dice.Between(8, 20)
                                                         : dice.Between(0, 16));
}

void SetBowling(PlayerRecord& player, Role role, Dice& dice)
{
    const bool batsman = role <= MiddleOrder;
    if (batsman && dice.Chance(70)) {
        player.bowlType = NoBowling;
        player.bowls = player.bats;
        player.bowlSkill = static_cast<std::int16_t>(dice.Between(0, 8));
        player.bowlEconomy = static_cast<std::int16_t>(dice.Between(0, 6));
        return;
    }
    const int type = BowlingTypes[static_cast<std::size_t>(dice.Between(0, BowlingTypes.size() - 1))];
    player.bowlType = static_cast<std::int16_t>(type);
    // Slow left-arm bowlers bowl with the left hand; the rest mostly with the right.
    const bool leftArm = type == 5 || type == 6 || (type < FirstSpinType && dice.Chance(20));
    player.bowls = static_cast<std::int16_t>(leftArm ? 1 : 0);
    const int low = batsman ? 5 : role == AllRounder ? 25 : 35;
    const int high = batsman ? 25 : role == AllRounder ? 48 : 60;
    player.bowlSkill = static_cast<std::int16_t>(dice.Between(low, high));
    player.bowlEconomy = static_cast<std::int16_t>(dice.Between(batsman ? 3 : 8, batsman ? 12 : 20));
}

PlayerRecord MakePlayer(int number, int nationality, int team, Role role, bool keeper, Dice& dice)
{
    PlayerRecord player;
    player.playerNumber = static_cast<std::int16_t>(number);
    player.initials = Initials(dice);
    player.surname = Surname(dice);
    SetBirth(player, dice);
    player.homeCountry = static_cast<std::int16_t>(nationality);
    player.teamNumber = static_cast<std::int16_t>(team);
    SetBatting(player, role, dice);
    SetBowling(player, role, dice);
    player.fieldAbility = static_cast<std::int16_t>(keeper ? dice.Between(25, 40) : dice.Between(10, 40));
    player.fieldsAt = static_cast<std::int16_t>(keeper ? 1 : dice.Between(2, 4));
    // Younger players have more to come.
    const int youth = (player.birthYear - 1960) * 20 / 25;
    player.potential = static_cast<std::int16_t>(std::clamp(youth + dice.Between(-5, 5), 0, 20));
    player.carriedValue = static_cast<std::int16_t>(dice.Chance(30) ? dice.Between(1, 9) : 0);
    return player;
}

int Nationality(int teamCountry, Dice& dice)
{
    if (teamCountry != 0 && dice.Chance(88))
        return teamCountry;
    return dice.Chance(50) ? dice.Between(1, 10) : dice.Between(11, 39);
}

char Upper(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

// Names and abbreviations are both kept unique across the world.
TeamRecord MakeTeam(int slot, int country, std::set<std::string>& taken, Dice& dice)
{
    TeamRecord team;
    do {
        const std::string_view start = dice.Pick(TownStarts);
        const std::string_view end = dice.Pick(TownEnds);
        const std::string_view club = dice.Pick(ClubWords);
        team.teamName = std::string(start) + std::string(end) + " " + std::string(club);
        team.abbreviation = {start[0], Upper(end[0]), club[0]};
    } while (taken.contains(team.teamName) || taken.contains(team.abbreviation));
    taken.insert(team.teamName);
    taken.insert(team.abbreviation);
    team.homeCountry = static_cast<std::int16_t>(country);
    team.teamNumber = static_cast<std::int16_t>(slot);
    team.reputation = static_cast<std::int16_t>(dice.Between(20, 95));
    team.wealth = static_cast<std::int16_t>(dice.Between(20, 95));
    team.support = static_cast<std::int16_t>(dice.Between(20, 95));
    return team;
}

struct TeamPlan {
    int country;
    int squadSize;
};

// Numbers the squads' players first, team by team, then the players without a team.
void BuildWorld(Game& game, const std::vector<TeamPlan>& plan, int freePlayers, Dice& dice)
{
    std::set<std::string> taken;
    int number = 0;
    for (std::size_t t = 0; t < plan.size(); ++t) {
        const int slot = static_cast<int>(t) + 1;
        TeamRecord& team = game.Teams[static_cast<std::size_t>(slot)];
        team = MakeTeam(slot, plan[t].country, taken, dice);
        for (int place = 1; place <= plan[t].squadSize; ++place) {
            const std::size_t index = static_cast<std::size_t>(place - 1);
            const Role role = index < SquadRoles.size() ? SquadRoles[index]
                                                        : static_cast<Role>(dice.Between(Opener, TailEnder));
            ++number;
            game.Players[static_cast<std::size_t>(number)] =
                MakePlayer(number, Nationality(plan[t].country, dice), slot, role, index == KeeperIndex, dice);
            team.squad[static_cast<std::size_t>(place)] = static_cast<std::int16_t>(number);
        }
    }
    for (int i = 0; i < freePlayers; ++i) {
        ++number;
        const auto role = static_cast<Role>(dice.Between(Opener, TailEnder));
        game.Players[static_cast<std::size_t>(number)] =
            MakePlayer(number, Nationality(0, dice), 0, role, dice.Chance(8), dice);
    }
    game.PlayerCount = static_cast<std::int16_t>(number);
    game.TeamCount = static_cast<std::int16_t>(plan.size() + 2);
}

}  // namespace

void GenerateSampleWorld(Game& game, std::uint32_t seed)
{
    // Teams for each of the ten team countries, the larger cricket nations first.
    constexpr std::array<int, 10> teamsInCountry{6, 8, 6, 4, 4, 5, 3, 4, 2, 2};
    Dice dice(seed);
    std::vector<TeamPlan> plan;
    for (std::size_t c = 0; c < teamsInCountry.size(); ++c) {
        for (int i = 0; i < teamsInCountry[c]; ++i)
            plan.push_back({static_cast<int>(c) + 1, dice.Between(14, 20)});
    }
    BuildWorld(game, plan, 100, dice);
}

void GenerateFullSizeWorld(Game& game, std::uint32_t seed)
{
    constexpr int freePlayers = 100;
    Dice dice(seed);
    std::vector<TeamPlan> plan;
    for (int t = 0; t < MaxTeams; ++t)
        plan.push_back({t % 10 + 1, 3});
    // Deal the players left over one at a time to squads with room.
    int left = MaxPlayers - freePlayers - MaxTeams * 3;
    while (left > 0) {
        TeamPlan& team = plan[static_cast<std::size_t>(dice.Between(0, MaxTeams - 1))];
        if (team.squadSize < SquadSize) {
            ++team.squadSize;
            --left;
        }
    }
    BuildWorld(game, plan, freePlayers, dice);
}
