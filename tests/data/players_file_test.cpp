#include "data/players_file.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "file_text.h"

namespace {

// A record whose lines 5 to 21 hold first, first + 1, ..., first + 16, so a
// record read out of step shows at once.
Lines Player(std::string number, std::string initials, std::string surname, int first = 10)
{
    Lines lines{std::move(number), "#", std::move(initials), std::move(surname)};
    for (int i = 0; i < 17; ++i)
        lines.push_back(std::to_string(first + i));
    return lines;
}

const Lines Terminator = EmptyLines(21);

// Lines 5 to 21 of a record, in file order.
std::array<int, 17> Numbers(const PlayerRecord& p)
{
    return {p.birthDay,  p.birthMonth, p.birthYear,    p.homeCountry, p.teamNumber,   p.batPosition,
            p.bats,      p.batSkill,   p.batAggression, p.bowlType,   p.bowls,        p.bowlSkill,
            p.bowlEconomy, p.fieldAbility, p.fieldsAt, p.potential,   p.carriedValue};
}

std::array<int, 17> NumbersFrom(int first)
{
    std::array<int, 17> numbers{};
    for (int i = 0; i < 17; ++i)
        numbers[static_cast<std::size_t>(i)] = first + i;
    return numbers;
}

PlayerRecord Marked(const char* surname)
{
    PlayerRecord player;
    player.initials = "Q";
    player.surname = surname;
    player.batSkill = 99;
    return player;
}

TEST(PlayersFile, ReadsTheGamesOwnRecordIntoItsSlot)
{
    const Lines example{"17", "#", "A J#", "Example#", "21", "3", "1975", "2", "4", "2", "0",
                        "45", "12", "5", "1", "20", "8", "25", "3", "10", "0"};
    auto game = NewGame();
    ReadPlayers(*game, Join(Cat(example, Terminator)));

    const PlayerRecord& p = game->Players[17];
    EXPECT_EQ(p.playerNumber, 17);
    EXPECT_EQ(p.initials, "A J");
    EXPECT_EQ(p.surname, "Example");
    EXPECT_EQ(Numbers(p), (std::array<int, 17>{21, 3, 1975, 2, 4, 2, 0, 45, 12, 5, 1, 20, 8, 25, 3, 10, 0}));
    EXPECT_EQ(game->PlayerCount, 17);
}

TEST(PlayersFile, WritesBackTheFileItReadByteForByte)
{
    // Windows-1252 letters, a blank before the "#", a "#" inside a name, an
    // empty name and negative numbers all survive.
    const std::string file = Join(Cat(Player("1", "A J#", "Br\xE9mont#"), Player("2", "#", "Smith #"),
                                      Player("3", "K#", "Ha#sh#", -20), Player("4", "\xD6#", "#"),
                                      Terminator));
    auto game = NewGame();
    ReadPlayers(*game, file);
    EXPECT_EQ(game->PlayerCount, 4);
    EXPECT_EQ(game->Players[2].surname, "Smith ");
    EXPECT_EQ(game->Players[3].surname, "Ha#sh");
    EXPECT_EQ(game->Players[3].birthDay, -20);
    EXPECT_EQ(WritePlayers(*game), file);
}

TEST(PlayersFile, NormalisesWhatTheWriterNeverWrites)
{
    Lines odd = Player("1", "   A J  #", "Smith#");
    odd[0] = " 001 ";
    odd[1] = "anything";
    odd[4] = "007";
    odd[5] = " 3.6 ";
    auto game = NewGame();
    ReadPlayers(*game, Join(Cat(odd, Terminator)));

    Lines normal = Player("1", "A J#", "Smith#");
    normal[4] = "7";
    normal[5] = "4";
    EXPECT_EQ(WritePlayers(*game), Join(Cat(normal, Terminator)));
}

TEST(PlayersFile, EndsAtTheFirstEmptyOrZeroNumberAndFillsSlotZeroFromIt)
{
    for (const char* end : {"", "0", " 0 "}) {
        auto game = NewGame();
        Lines stop = Player(end, "Z#", "Zero#", 500);
        ReadPlayers(*game, Join(Cat(Player("1", "A#", "One#"), stop, Player("2", "B#", "Two#"))));
        EXPECT_EQ(game->PlayerCount, 1) << "end line \"" << end << "\"";
        EXPECT_EQ(game->Players[2], PlayerRecord{});
        // Slot 0 takes the numbers of the closing record but never its names.
        EXPECT_EQ(Numbers(game->Players[0]), NumbersFrom(500));
        EXPECT_EQ(game->Players[0].initials, "");
        EXPECT_EQ(game->Players[0].surname, "");
    }
}

TEST(PlayersFile, LoadsTheSameWhateverFollowsTheLastRecord)
{
    const Lines body = Cat(Player("1", "A#", "One#"), Player("2", "B#", "Two#", 40));
    auto whole = NewGame();
    ReadPlayers(*whole, Join(Cat(body, Terminator)));
    for (const Lines& tail : {Lines{}, EmptyLines(1), EmptyLines(5)}) {
        auto game = NewGame();
        ReadPlayers(*game, Join(Cat(body, tail)));
        EXPECT_EQ(game->PlayerCount, 2) << tail.size() << " empty lines";
        EXPECT_EQ(game->Players[1], whole->Players[1]);
        EXPECT_EQ(game->Players[2], whole->Players[2]);
        EXPECT_EQ(WritePlayers(*game), WritePlayers(*whole));
    }
}

TEST(PlayersFile, EmptyFileOrLeadingEmptyLineStoresNoPlayer)
{
    for (const std::string& file : {std::string{}, Join(Cat(EmptyLines(1), Player("1", "A#", "One#")))}) {
        auto game = NewGame();
        game->PlayerCount = 7;
        game->Players[1] = Marked("Kept");
        ReadPlayers(*game, file);
        EXPECT_EQ(game->PlayerCount, 7);
        EXPECT_EQ(game->Players[1], Marked("Kept"));
    }
}

TEST(PlayersFile, StoresEachRecordAtItsNumberAndCountsTheLastNumberRead)
{
    auto game = NewGame();
    game->Players[4] = Marked("Between");
    ReadPlayers(*game, Join(Cat(Player("3", "C#", "Three#"), Player("5", "E#", "Five#"), Terminator)));
    EXPECT_EQ(game->PlayerCount, 5);
    EXPECT_EQ(game->Players[4], Marked("Between"));
    EXPECT_EQ(game->Players[5].surname, "Five");

    // The writer fills the gaps with blank records, so the file is dense from then on.
    auto fresh = NewGame();
    ReadPlayers(*fresh, Join(Cat(Player("3", "C#", "Three#"), Player("5", "E#", "Five#"), Terminator)));
    const auto blank = [](const char* number) { return Cat(Lines{number, "#", "#", "#"}, Lines(17, "0")); };
    EXPECT_EQ(WritePlayers(*fresh), Join(Cat(blank("1"), blank("2"), Player("3", "C#", "Three#"), blank("4"),
                                             Player("5", "E#", "Five#"), Terminator)));
}

TEST(PlayersFile, OutOfOrderNumbersLeaveTheHigherPlayerUnwritten)
{
    auto game = NewGame();
    ReadPlayers(*game, Join(Cat(Player("1", "A#", "One#"), Player("2", "B#", "Two#"), Player("5", "E#", "Five#"),
                                Player("3", "C#", "Three#"), Terminator)));
    EXPECT_EQ(game->PlayerCount, 3);
    EXPECT_EQ(game->Players[5].surname, "Five");
    EXPECT_EQ(WritePlayers(*game).find("Five#"), std::string::npos);
}

TEST(PlayersFile, ARepeatedNumberEndsTheLoadAfterOverwriting)
{
    auto game = NewGame();
    ReadPlayers(*game, Join(Cat(Player("1", "A#", "One#"), Player("2", "B#", "Two#"), Player("2", "X#", "Again#"),
                                Player("3", "C#", "Three#"), Terminator)));
    EXPECT_EQ(game->PlayerCount, 2);
    EXPECT_EQ(game->Players[2].surname, "Again");
    EXPECT_EQ(game->Players[3], PlayerRecord{});
}

// The count is not reset, so a second file whose first number equals the
// count left by the first ends after that record.
TEST(PlayersFile, ASecondLoadComparesWithTheCountOfTheFirst)
{
    auto game = NewGame();
    ReadPlayers(*game, Join(Cat(Player("1", "A#", "One#"), Player("2", "B#", "Two#"), Terminator)));
    ReadPlayers(*game, Join(Cat(Player("2", "N#", "New#"), Player("3", "C#", "Three#"), Terminator)));
    EXPECT_EQ(game->PlayerCount, 2);
    EXPECT_EQ(game->Players[2].surname, "New");
    EXPECT_EQ(game->Players[3], PlayerRecord{});

    ReadPlayers(*game, Join(Cat(Player("1", "M#", "Other#"), Player("3", "C#", "Three#"), Terminator)));
    EXPECT_EQ(game->PlayerCount, 3);
    EXPECT_EQ(game->Players[1].surname, "Other");
    EXPECT_EQ(game->Players[2].surname, "New");
}

TEST(PlayersFile, ANameLineOfJustTheMarkEmptiesTheNameAndAnEmptyLineKeepsIt)
{
    auto game = NewGame();
    game->Players[1] = Marked("Old");
    game->Players[2] = Marked("Old");
    ReadPlayers(*game, Join(Cat(Player("1", "#", "#"), Player("2", "", ""), Terminator)));
    EXPECT_EQ(game->Players[1].initials, "");
    EXPECT_EQ(game->Players[1].surname, "");
    EXPECT_EQ(game->Players[2].initials, "Q");
    EXPECT_EQ(game->Players[2].surname, "Old");
    // The last character goes whatever it is: a line without its mark loses a letter.
    ReadPlayers(*game, Join(Cat(Player("3", "AB", "Smith"), Terminator)));
    EXPECT_EQ(game->Players[3].initials, "A");
    EXPECT_EQ(game->Players[3].surname, "Smit");
}

TEST(PlayersFile, SkipsARecordWithoutASlotWholeAndReadsOn)
{
    for (const char* number : {"-1", "2001", "32767", "40000", "abc", "1e9"}) {
        auto game = NewGame();
        ReadPlayers(*game, Join(Cat(Player("1", "A#", "One#"), Player(number, "X#", "Nowhere#", 700),
                                    Player("2", "B#", "Two#"))));
        EXPECT_EQ(game->PlayerCount, 2) << "number " << number;
        EXPECT_EQ(game->Players[2].surname, "Two") << "number " << number;
        EXPECT_EQ(Numbers(game->Players[2]), NumbersFrom(10)) << "number " << number;
        for (std::size_t slot = 0; slot < game->Players.size(); ++slot) {
            if (slot != 1 && slot != 2) {
                ASSERT_EQ(game->Players[slot], PlayerRecord{}) << "number " << number << ", slot " << slot;
            }
        }
    }
}

TEST(PlayersFile, ABadNumberLineLeavesItsFieldAndTheLoadGoesOn)
{
    auto game = NewGame();
    game->Players[1].batSkill = 33;
    Lines bad = Player("1", "A#", "One#");
    bad[11] = "lots";    // batSkill
    bad[12] = "40000";   // batAggression
    ReadPlayers(*game, Join(Cat(bad, Player("2", "B#", "Two#"), Terminator)));
    EXPECT_EQ(game->Players[1].batSkill, 33);
    EXPECT_EQ(game->Players[1].batAggression, 0);
    EXPECT_EQ(game->Players[1].bowlType, 19);
    EXPECT_EQ(game->PlayerCount, 2);
}

TEST(PlayersFile, AFileCutInsideARecordKeepsWhatWasRead)
{
    auto game = NewGame();
    game->Players[2] = Marked("Old");
    Lines cut = Player("2", "B#", "Two#");
    cut.resize(8);  // up to homeCountry
    ReadPlayers(*game, Join(Cat(Player("1", "A#", "One#"), cut)));
    EXPECT_EQ(game->PlayerCount, 2);
    EXPECT_EQ(game->Players[2].surname, "Two");
    EXPECT_EQ(game->Players[2].homeCountry, 13);
    EXPECT_EQ(game->Players[2].teamNumber, 0);
    EXPECT_EQ(game->Players[2].batSkill, 99);
}

// The reason the editor refuses to save such a name: the comma splits the
// line, every later value moves one line on, and the last one is read as
// the next record's number.
TEST(PlayersFile, ACommaInANameThrowsTheRestOfTheFileOutOfStep)
{
    Lines first = Player("1", "A#", "Smith, J#");
    first.back() = "0";
    auto game = NewGame();
    ReadPlayers(*game, Join(Cat(first, Player("2", "B#", "Two#"), Terminator)));
    EXPECT_EQ(game->Players[1].surname, "Smit");
    EXPECT_EQ(game->Players[1].birthDay, 0);  // "J#" is no number
    EXPECT_EQ(game->Players[1].birthMonth, 10);
    EXPECT_EQ(game->PlayerCount, 1);
    EXPECT_EQ(game->Players[2], PlayerRecord{});
}

TEST(PlayersFile, WritesOnlyTheClosingLinesForAnEmptyGame)
{
    auto game = NewGame();
    EXPECT_EQ(WritePlayers(*game), Join(Terminator));
}

}  // namespace
