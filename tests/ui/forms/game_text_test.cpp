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
        EXPECT_TRUE(IsStorableName(QString::fromUtf8(name))) << name;
    // "ŁQ" would be shortened to a storable "Q", but the box must not let
    // the user believe the whole name was kept.
    for (const char* name : {"O,Neil", "\"Q", "Ł", " \"Q", "ŁQ"})
        EXPECT_FALSE(IsStorableName(QString::fromUtf8(name))) << name;
}
