#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "data/code_lists.h"
#include "data/records.h"

// The fields of both records by name, so that every subcommand walks them the
// same way and in the order of the files.

struct CodeList {
    std::span<const std::string_view> words;
    int firstCode;  // the code of the first word: 1, or 0 for the hands

    std::optional<std::string_view> WordFor(int code) const;
};

inline constexpr CodeList Countries{CountryList, 1};
inline constexpr CodeList TeamCountries{TeamCountryList, 1};
inline constexpr CodeList BatPositions{BatPositionList, 1};
inline constexpr CodeList Hands{HandList, 0};
inline constexpr CodeList BowlTypes{BowlTypeList, 1};
inline constexpr CodeList FieldPositions{FieldPositionList, 1};

// The stated range of a skill, as the editor's Help window lists it.
struct Range {
    int low;
    int high;
};

template <class Record>
struct NumberField {
    std::string_view name;
    std::int16_t Record::*member;
    const CodeList* codes = nullptr;
    std::optional<Range> range;
};

template <class Record>
struct TextField {
    std::string_view name;
    std::string Record::*member;
};

inline constexpr std::array<TextField<PlayerRecord>, 2> PlayerTextFields{{
    {"initials", &PlayerRecord::initials},
    {"surname", &PlayerRecord::surname},
}};

inline constexpr std::array<NumberField<PlayerRecord>, 17> PlayerNumberFields{{
    {"birthDay", &PlayerRecord::birthDay, nullptr, std::nullopt},
    {"birthMonth", &PlayerRecord::birthMonth, nullptr, std::nullopt},
    {"birthYear", &PlayerRecord::birthYear, nullptr, std::nullopt},
    {"homeCountry", &PlayerRecord::homeCountry, &Countries, std::nullopt},
    {"teamNumber", &PlayerRecord::teamNumber, nullptr, std::nullopt},
    {"batPosition", &PlayerRecord::batPosition, &BatPositions, std::nullopt},
    {"bats", &PlayerRecord::bats, &Hands, std::nullopt},
    {"batSkill", &PlayerRecord::batSkill, nullptr, Range{0, 60}},
    {"batAggression", &PlayerRecord::batAggression, nullptr, Range{0, 20}},
    {"bowlType", &PlayerRecord::bowlType, &BowlTypes, std::nullopt},
    {"bowls", &PlayerRecord::bowls, &Hands, std::nullopt},
    {"bowlSkill", &PlayerRecord::bowlSkill, nullptr, Range{0, 60}},
    {"bowlEconomy", &PlayerRecord::bowlEconomy, nullptr, Range{0, 20}},
    {"fieldAbility", &PlayerRecord::fieldAbility, nullptr, Range{10, 40}},
    {"fieldsAt", &PlayerRecord::fieldsAt, &FieldPositions, std::nullopt},
    {"potential", &PlayerRecord::potential, nullptr, Range{0, 20}},
    {"carriedValue", &PlayerRecord::carriedValue, nullptr, std::nullopt},
}};

inline constexpr std::array<TextField<TeamRecord>, 2> TeamTextFields{{
    {"teamName", &TeamRecord::teamName},
    {"abbreviation", &TeamRecord::abbreviation},
}};

inline constexpr std::array<NumberField<TeamRecord>, 4> TeamNumberFields{{
    {"homeCountry", &TeamRecord::homeCountry, &TeamCountries, std::nullopt},
    {"reputation", &TeamRecord::reputation, nullptr, std::nullopt},
    {"wealth", &TeamRecord::wealth, nullptr, std::nullopt},
    {"support", &TeamRecord::support, nullptr, std::nullopt},
}};

// The column beside a coded field that carries its word: "homeCountryName".
std::string WordColumn(std::string_view field);

// "squad7" for place 7.
std::string SquadColumn(int place);

// A player as a person reads him: "A J Example" (UTF-8).
std::string PlayerLabel(const PlayerRecord& player);
