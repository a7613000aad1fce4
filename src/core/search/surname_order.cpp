#include "search/surname_order.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <numeric>
#include <string_view>

#include "data/cp1252.h"

namespace {

// Each byte's place among the characters the 256 bytes decode to, which are
// all different; all but 0x80 to 0x9F keep their own number's place.
const std::array<unsigned char, 256>& CharacterPlaces()
{
    static const std::array<unsigned char, 256> places = [] {
        std::array<unsigned char, 256> bytes{};
        std::iota(bytes.begin(), bytes.end(), 0);
        std::sort(bytes.begin(), bytes.end(),
                  [](unsigned char a, unsigned char b) { return Cp1252ToUnicode(a) < Cp1252ToUnicode(b); });
        std::array<unsigned char, 256> placeOf{};
        for (int place = 0; place < 256; ++place)
            placeOf[bytes[place]] = static_cast<unsigned char>(place);
        return placeOf;
    }();
    return places;
}

// The first eight characters' places as one number, which orders surnames as
// their characters do whenever it differs. Most surnames differ in their first
// eight letters, and the rest are compared whole.
std::uint64_t Prefix(std::string_view surname)
{
    const auto& places = CharacterPlaces();
    std::uint64_t prefix = 0;
    for (std::size_t i = 0; i < 8; ++i)
        prefix = prefix << 8 | (i < surname.size() ? places[static_cast<unsigned char>(surname[i])] : 0);
    return prefix;
}

// Bytes 0x80 to 0x9F are the only ones whose characters are out of the
// bytes' order.
bool InByteOrder(std::string_view surname)
{
    return std::none_of(surname.begin(), surname.end(), [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return byte >= 0x80 && byte <= 0x9F;
    });
}

struct Named {
    std::uint64_t prefix;
    std::string_view surname;
    bool inByteOrder;
    int row;
};

// Orders two surnames by their characters: the first byte that differs decides.
int CompareByCharacters(const Named& a, const Named& b)
{
    if (a.inByteOrder && b.inByteOrder)
        return a.surname.compare(b.surname);
    const auto [inA, inB] = std::mismatch(a.surname.begin(), a.surname.end(), b.surname.begin(), b.surname.end());
    if (inA == a.surname.end())
        return inB == b.surname.end() ? 0 : -1;
    if (inB == b.surname.end())
        return 1;
    const auto& places = CharacterPlaces();
    return places[static_cast<unsigned char>(*inA)] < places[static_cast<unsigned char>(*inB)] ? -1 : 1;
}

}  // namespace

SurnameOrder OrderSurnames(const SearchRows& rows)
{
    const int count = static_cast<int>(rows.size());
    std::vector<Named> named(rows.size());
    for (int row = 1; row <= count; ++row) {
        const std::string_view surname = rows[std::size_t(row - 1)].surname;
        named[std::size_t(row - 1)] = {Prefix(surname), surname, InByteOrder(surname), row};
    }
    std::sort(named.begin(), named.end(), [](const Named& a, const Named& b) {
        if (a.prefix != b.prefix)
            return a.prefix < b.prefix;
        if (const int order = CompareByCharacters(a, b); order != 0)
            return order < 0;
        return a.row < b.row;
    });

    SurnameOrder order{std::vector<int>(rows.size() + 1), std::vector<int>(rows.size() + 1)};
    for (int place = 1; place <= count; ++place) {
        const Named& at = named[std::size_t(place - 1)];
        if (place > 1 && at.surname != named[std::size_t(place - 2)].surname)
            ++order.lastRank;
        order.rankOfRow[at.row] = order.lastRank;
        order.rowAt[place] = at.row;
    }
    return order;
}
