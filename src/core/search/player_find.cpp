#include "search/player_find.h"

#include <algorithm>
#include <string>

#include "data/cp1252.h"
#include "data/squad.h"

namespace {

// The small letter of a Windows-1252 byte. Besides A to Z and the accented
// capitals from 0xC0, the code page keeps three capitals among 0x80 to 0x9F
// (Š, Œ, Ž) and Ÿ, whose small letter lies at 0xFF.
unsigned char Folded(unsigned char byte)
{
    if ((byte >= 'A' && byte <= 'Z') || (byte >= 0xC0 && byte <= 0xDE && byte != 0xD7))
        return static_cast<unsigned char>(byte + 0x20);
    switch (byte) {
    case 0x8A:
    case 0x8C:
    case 0x8E:
        return static_cast<unsigned char>(byte + 0x10);
    case 0x9F:
        return 0xFF;
    default:
        return byte;
    }
}

bool IsDropped(char c)
{
    return c == ' ' || c == '.';
}

// `text` folded, without blanks and dots, added to `out`.
void AppendKey(std::string& out, std::string_view text)
{
    for (char c : text) {
        if (!IsDropped(c))
            out.push_back(static_cast<char>(Folded(static_cast<unsigned char>(c))));
    }
}

std::string Key(std::string_view text)
{
    std::string key;
    AppendKey(key, text);
    return key;
}

bool AllDigits(std::string_view text)
{
    return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

std::string_view Trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

struct Match {
    int rank;
    std::int16_t number;
};

int SearchedPlayers(const Game& game)
{
    return std::clamp<int>(game.PlayerCount, 0, MaxPlayers);
}

// Slots the load or the new-player window filled; the rest hold no player.
bool HoldsPlayer(const PlayerRecord& player)
{
    return player.playerNumber != 0;
}

// In ascending order, the exact number first.
std::vector<std::int16_t> NumberMatches(const Game& game, std::string_view digits)
{
    std::vector<std::int16_t> matches;
    for (int number = 1; number <= SearchedPlayers(game); ++number) {
        if (HoldsPlayer(game.Players[number]) && std::to_string(number).starts_with(digits))
            matches.push_back(static_cast<std::int16_t>(number));
    }
    const auto exact = std::find_if(matches.begin(), matches.end(),
                                    [digits](std::int16_t n) { return std::to_string(n) == digits; });
    if (exact != matches.end())
        std::rotate(matches.begin(), exact, exact + 1);
    return matches;
}

std::vector<Match> NameMatches(const Game& game, const std::string& wanted)
{
    std::vector<Match> matches;
    std::string surname;
    std::string fullName;
    for (int number = 1; number <= SearchedPlayers(game); ++number) {
        const PlayerRecord& player = game.Players[number];
        if (!HoldsPlayer(player))
            continue;
        surname.clear();
        AppendKey(surname, player.surname);
        int rank = 3;
        if (surname == wanted)
            rank = 0;
        else if (surname.starts_with(wanted))
            rank = 1;
        else if (surname.find(wanted) != std::string::npos)
            rank = 2;
        else {
            fullName.clear();
            AppendKey(fullName, player.initials);
            fullName += surname;
            if (fullName.find(wanted) == std::string::npos)
                continue;
        }
        matches.push_back({rank, static_cast<std::int16_t>(number)});
    }
    return matches;
}

// Orders two texts by their folded characters.
int CompareFolded(std::string_view a, std::string_view b)
{
    const std::size_t common = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < common; ++i) {
        const char16_t x = Cp1252ToUnicode(Folded(static_cast<unsigned char>(a[i])));
        const char16_t y = Cp1252ToUnicode(Folded(static_cast<unsigned char>(b[i])));
        if (x != y)
            return x < y ? -1 : 1;
    }
    return a.size() == b.size() ? 0 : a.size() < b.size() ? -1 : 1;
}

}  // namespace

std::vector<std::int16_t> FindPlayers(const Game& game, std::string_view typed)
{
    const std::string_view text = Trimmed(typed);
    if (AllDigits(text))
        return NumberMatches(game, text);
    const std::string wanted = Key(text);
    if (wanted.empty())
        return {};
    std::vector<Match> matches = NameMatches(game, wanted);

    std::sort(matches.begin(), matches.end(), [&game](const Match& a, const Match& b) {
        if (a.rank != b.rank)
            return a.rank < b.rank;
        const PlayerRecord& x = game.Players[a.number];
        const PlayerRecord& y = game.Players[b.number];
        if (const int order = CompareFolded(x.surname, y.surname); order != 0)
            return order < 0;
        if (const int order = CompareFolded(x.initials, y.initials); order != 0)
            return order < 0;
        return a.number < b.number;
    });
    std::vector<std::int16_t> numbers(matches.size());
    std::transform(matches.begin(), matches.end(), numbers.begin(), [](const Match& m) { return m.number; });
    return numbers;
}

void AppendNameKey(std::string& out, std::string_view text)
{
    AppendKey(out, text);
}

std::vector<std::int16_t> PresentClubs(const Game& game)
{
    // Teams in ascending order, so the highest-numbered holder is the one left.
    std::vector<std::int16_t> clubs(MaxPlayers + 1, 0);
    for (int team = 1; team <= LastTeamSearched(game); ++team) {
        for (int slot = 1; slot <= SquadSize; ++slot) {
            const int player = game.Teams[team].squad[slot];
            if (IsPlayerNumber(player))
                clubs[std::size_t(player)] = static_cast<std::int16_t>(team);
        }
    }
    return clubs;
}

std::optional<int> AgeOn(const PlayerRecord& player, int year, int month, int day)
{
    const bool possible = player.birthYear > 0 && player.birthMonth >= 1 && player.birthMonth <= 12 &&
                          player.birthDay >= 1 && player.birthDay <= 31;
    if (!possible)
        return std::nullopt;
    const bool birthdayToCome =
        month < player.birthMonth || (month == player.birthMonth && day < player.birthDay);
    const int age = year - player.birthYear - (birthdayToCome ? 1 : 0);
    if (age < 0)
        return std::nullopt;
    return age;
}
