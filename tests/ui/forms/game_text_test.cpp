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

    // What the files cannot carry is refused in the core's tests; here, what
    // the code page cannot: "ŁQ" would be shortened to a storable "Q", but the
    // box must not let the user believe the whole name was kept.
    for (const char* name : {"Zoë", "Šimonek"})
        EXPECT_EQ(NameRefusalOf(QString::fromUtf8(name)), std::nullopt) << name;
    EXPECT_EQ(NameRefusalOf(QString::fromUtf8("ŁQ")).value_or(QString()), QString::fromUtf8("A name cannot hold the character Ł"));
    EXPECT_EQ(NameRefusalOf(QStringLiteral("O,Neil")).value_or(QString()), "A name cannot hold a comma");
}
