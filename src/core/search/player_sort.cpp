#include "search/player_sort.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include "data/cp1252.h"
#include "search/search_filters.h"

namespace {

// What the sort moves about: a row's key and the number of the row it stands
// for. The records themselves wait until the order is known and then move
// once each, so a worst case of 2000 rows in reverse order stays cheap.
template <typename Key>
struct SortEntry {
    Key key;
    int row;
};

// Entries count from 1, as the rows do on the bar; entry 0 is never used.
template <typename Key>
using SortEntries = std::vector<SortEntry<Key>>;

// A two-way bubble sort. An entry that is out of place is carried along as the
// held entry while the entries it passes shift by one, and each sweep shrinks
// the span to where its last entry was placed. `before` is strict, which keeps
// the sort stable.
template <typename Key, typename Before>
void CocktailSort(SortEntries<Key>& entries, int first, int last, Before before, const SortProgress& progress)
{
    const auto belongsBefore = [&](const SortEntry<Key>& a, const SortEntry<Key>& b) { return before(a.key, b.key); };
    SortEntry<Key> held;
    while (first < last) {
        if (progress)
            progress(static_cast<double>(first) / last);

        int lastPlaced = first - 1;
        for (int p = first + 1; p <= last; ++p) {
            if (!belongsBefore(entries[p], entries[p - 1]))
                continue;
            held = entries[p - 1];
            do {
                entries[p - 1] = entries[p];
                ++p;
            } while (p <= last && belongsBefore(entries[p], held));
            entries[p - 1] = held;
            lastPlaced = p - 1;
        }
        last = lastPlaced - 1;

        int firstPlaced = last + 1;
        for (int p = last - 1; p >= first; --p) {
            if (!belongsBefore(entries[p + 1], entries[p]))
                continue;
            held = entries[p + 1];
            do {
                entries[p + 1] = entries[p];
                --p;
            } while (p >= first && belongsBefore(held, entries[p]));
            entries[p + 1] = held;
            firstPlaced = p + 1;
        }
        first = firstPlaced + 1;
    }
}

// Row `row` of the sort, counted from 1.
PlayerRecord& Row(SearchRows& rows, int row)
{
    return rows[std::size_t(row - 1)];
}

// Moves each record to the row its entry ended on, following each cycle of the
// new order with one held record. Texts are moved, never copied.
template <typename Key>
void PlaceRows(SearchRows& rows, SortEntries<Key>& entries, int last)
{
    for (int start = 1; start <= last; ++start) {
        if (entries[start].row == start)
            continue;
        PlayerRecord held = std::move(Row(rows, start));
        int to = start;
        while (entries[to].row != start) {
            const int from = entries[to].row;
            Row(rows, to) = std::move(Row(rows, from));
            entries[to].row = to;
            to = from;
        }
        Row(rows, to) = std::move(held);
        entries[to].row = to;
    }
}

// `keyOf` gives the key of a row by its number.
template <typename Key, typename KeyOf, typename Before>
void SortBy(SearchRows& rows, KeyOf keyOf, Before before, const SortProgress& progress)
{
    const int last = static_cast<int>(rows.size());
    SortEntries<Key> entries(rows.size() + 1);
    for (int row = 1; row <= last; ++row)
        entries[row] = {keyOf(row), row};
    CocktailSort(entries, 1, last, before, progress);
    PlaceRows(rows, entries, last);
}

// Only bytes 0x80 to 0x9F decode to a character of another number; every other
// byte of Windows-1252 decodes to the character of its own number.
bool IsRemapped(unsigned char byte)
{
    return byte >= 0x80 && byte < 0xA0;
}

char16_t CharacterCode(unsigned char byte)
{
    return IsRemapped(byte) ? Cp1252ToUnicode(byte) : char16_t{byte};
}

struct Surname {
    std::string_view text;
    bool plain;  // no remapped byte: byte order is character order
};

Surname SurnameOf(const PlayerRecord& record)
{
    const std::string_view text = record.surname;
    return {text, std::none_of(text.begin(), text.end(), [](char c) { return IsRemapped(static_cast<unsigned char>(c)); })};
}

// Surnames compare by the characters they decode to. Each byte decodes to a
// character of its own, so the first differing byte decides.
bool SurnameBefore(const Surname& a, const Surname& b)
{
    if (a.plain && b.plain)
        return a.text < b.text;
    const auto [inA, inB] = std::mismatch(a.text.begin(), a.text.end(), b.text.begin(), b.text.end());
    if (inB == b.text.end())
        return false;
    if (inA == a.text.end())
        return true;
    return CharacterCode(static_cast<unsigned char>(*inA)) < CharacterCode(static_cast<unsigned char>(*inB));
}

// The sweeps compare about two million pairs at full size, too many to walk
// and decode surnames each time. So the surnames are ranked once by a quick
// sort, and the sweeps compare ranks: same order, and equal surnames share one.
void SortBySurname(SearchRows& rows, const SortProgress& progress)
{
    std::vector<std::pair<Surname, int>> byName;
    for (int row = 1; row <= static_cast<int>(rows.size()); ++row)
        byName.emplace_back(SurnameOf(Row(rows, row)), row);
    std::sort(byName.begin(), byName.end(), [](const auto& a, const auto& b) { return SurnameBefore(a.first, b.first); });
    std::vector<int> rankOfRow(rows.size() + 1);
    int rank = 0;
    for (std::size_t i = 0; i < byName.size(); ++i) {
        if (i > 0 && SurnameBefore(byName[i - 1].first, byName[i].first))
            ++rank;
        rankOfRow[byName[i].second] = rank;
    }
    SortBy<int>(
        rows, [&rankOfRow](int row) { return rankOfRow[row]; }, [](int a, int b) { return a < b; },
        progress);
}

// Skills sort the highest first.
void SortBySkill(SearchRows& rows, std::int16_t PlayerRecord::*skill, const SortProgress& progress)
{
    SortBy<std::int16_t>(
        rows, [&rows, skill](int row) { return Row(rows, row).*skill; },
        [](std::int16_t a, std::int16_t b) { return a > b; }, progress);
}

}  // namespace

void SortRows(SearchRows& rows, SortKey key, const SortProgress& progress)
{
    switch (key) {
    case SortKey::Surname:
        return SortBySurname(rows, progress);
    case SortKey::BatSkill:
        return SortBySkill(rows, &PlayerRecord::batSkill, progress);
    case SortKey::BatAggression:
        return SortBySkill(rows, &PlayerRecord::batAggression, progress);
    case SortKey::BowlSkill:
        return SortBySkill(rows, &PlayerRecord::bowlSkill, progress);
    case SortKey::BowlEconomy:
        return SortBySkill(rows, &PlayerRecord::bowlEconomy, progress);
    case SortKey::FieldSkill:
        return SortBySkill(rows, &PlayerRecord::fieldAbility, progress);
    case SortKey::Potential:
        return SortBySkill(rows, &PlayerRecord::potential, progress);
    }
}

void SortResults(SearchRows& rows, int sortKeyIndex, const SortProgress& progress)
{
    if (sortKeyIndex < 0 || sortKeyIndex >= SortKeyCount)
        return;
    SortRows(rows, static_cast<SortKey>(sortKeyIndex), progress);
}
