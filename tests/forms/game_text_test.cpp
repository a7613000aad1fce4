#include "forms/game_text.h"

#include <gtest/gtest.h>

TEST(GameText, RoundTripsEveryByteOfTheCodePage)
{
    std::string all;
    for (int byte = 1; byte < 256; ++byte)
        all.push_back(static_cast<char>(byte));
    EXPECT_EQ(ToGame(FromGame(all)), all);
    EXPECT_EQ(FromGame("Zo\xEB"), QString::fromUtf8("Zoë"));
    EXPECT_EQ(FromGame("\x80"), QString::fromUtf8("€"));
}

TEST(GameText, DropsCharactersTheCodePageCannotHold)
{
    EXPECT_EQ(ToGame(QString::fromUtf8("Łukasz")), "ukasz");
}

TEST(GameText, StorableNames)
{
    EXPECT_TRUE(IsStorableName("Smith"));
    EXPECT_TRUE(IsStorableName(QString::fromUtf8("Zoë")));
    EXPECT_TRUE(IsStorableName(QString::fromUtf8("Šimůnek").remove(QChar(0x016F))));
    EXPECT_TRUE(IsStorableName("O'Neil"));
    EXPECT_TRUE(IsStorableName("Q\""));
    EXPECT_FALSE(IsStorableName("O,Neil"));
    EXPECT_FALSE(IsStorableName("\"Q"));
    EXPECT_FALSE(IsStorableName(QString::fromUtf8("Ł")));
    EXPECT_FALSE(IsStorableName(" \"Q"));
    // The encoder would shorten this to a storable "Q", but the box must not
    // let the user believe the whole name was kept.
    EXPECT_FALSE(IsStorableName(QString::fromUtf8("ŁQ")));
}
