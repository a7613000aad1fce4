#include "forms/game_text.h"

#include <gtest/gtest.h>

TEST(GameText, RoundTripsEveryByteOfTheCodePageAndNamesOnlyWhatItCanHold)
{
    std::string all;
    for (int byte = 1; byte < 256; ++byte)
        all.push_back(static_cast<char>(byte));
    EXPECT_EQ(ToGame(FromGame(all)), all);
    EXPECT_EQ(FromGame("Zo\xEB\x80"), QString::fromUtf8("Zoë€"));
    EXPECT_EQ(ToGame(QString::fromUtf8("Łukasz")), "ukasz");

    for (const char* name : {"Smith", "Zoë", "Šimonek", "O'Neil", "Q\""})
        EXPECT_EQ(NameRefusalOf(QString::fromUtf8(name)), std::nullopt) << name;
    // "ŁQ" would be shortened to a storable "Q", but the box must not let
    // the user believe the whole name was kept.
    const std::pair<const char*, const char*> refused[] = {
        {"O,Neil", "A name cannot hold a comma"},
        {"\"Q", "A name cannot begin with a double quote"},
        {" \"Q", "A name cannot begin with a blank"},
        {"ŁQ", "A name cannot hold the character Ł"},
    };
    for (const auto& [name, why] : refused) {
        EXPECT_EQ(NameRefusalOf(QString::fromUtf8(name)).value_or(QString()), QString::fromUtf8(why)) << name;
    }
}
