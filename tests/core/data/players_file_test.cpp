#include "data/players_file.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/file_text.h"

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

// What the writer makes of slots `from` to `to` when they never held a player.
Lines Blanks(int from, int to)
{
    Lines lines;
    for (int n = from; n <= to; ++n)
        lines = Cat(std::move(lines), Lines{std::to_string(n), "#", "#", "#"}, Lines(17, "0"));
    return lines;
}

const Lines Terminator = Lines(21, "");

// Each file is loaded into a game where an earlier load left PlayerCount 7
// and player 4 "Q Kept", who shows where a load leaves a slot alone.
std::vector<Load> Loads()
{
    const Lines one = Player("1", "A#", "One#"), two = Player("2", "B#", "Two#", 40);
    const Lines again = Player("2", "X#", "Again#"), three = Player("3", "C#", "Three#");
    const Lines five = Player("5", "E#", "Five#"), seven = Player("7", "G#", "Seven#");
    const Lines kept = Edit(Blanks(4, 4), {{3, "Q#"}, {4, "Kept#"}, {12, "99"}});
    const Lines earlier = Cat(Blanks(1, 3), kept, Blanks(5, 7));
    const Lines own = Cat(Player("1", "A J#", "Br\xE9mont#"), Player("2", "#", "O\"Brien #"),
                          Player("3", "K#", "Ha#sh#", -20), Player("4", "\xD6#", "#"));
    const Lines twoCut(two.begin(), two.begin() + 8);
    std::vector<Load> loads{
        {"Windows-1252, blanks inside and at the end of names, '#' and a quote in a name, negatives",
         Cat(own, Terminator), 4, own},
        {"an empty file stores nothing and leaves the count", {}, 7, earlier},
        {"the count is not reset: a first number equal to it ends the load", Cat(seven, one, Terminator), 7,
         Cat(Blanks(1, 3), kept, Blanks(5, 6), seven), "players.dat: 21 lines after the record that ends the file"},
        {"3, 5: gaps keep their slot and are written blank", Cat(three, five, Terminator), 5,
         Cat(Blanks(1, 2), three, kept, five)},
        {"1, 2, 5, 3: the count is the last number read, not the highest", Cat(one, two, five, three, Terminator),
         3, Cat(one, two, three), "players.dat: player 5, numbered above the last player read"},
        {"1, 2, 2, 3: a repeated number overwrites and ends the load", Cat(one, two, again, three, Terminator), 2,
         Cat(one, again), "players.dat: 21 lines after the record that ends the file"},
        {"'#' alone empties a name, an empty line leaves it, the last character goes whatever it is",
         Cat(Player("1", "AB", "Smith"), Player("3", "#", "#"), Player("4", "", ""), Terminator), 4,
         Cat(Player("1", "A#", "Smit#"), Blanks(2, 2), Player("3", "#", "#"),
             Edit(Player("4", "", ""), {{3, "Q#"}, {4, "Kept#"}}))},
        {"a bad number line leaves its field and the load goes on in step",
         Cat(Edit(Player("4", "D#", "Four#"), {{12, "lots"}, {13, "40000"}}), five, Terminator), 5,
         Cat(Blanks(1, 3), Edit(Player("4", "D#", "Four#"), {{12, "99"}, {13, "0"}}), five)},
        {"a file cut inside a record keeps what was read", Cat(one, twoCut), 2, Cat(one, twoCut, Lines(13, "0"))},
        // Why the editor refuses to save such a name: the comma splits the line
        // and the record's last number is read as the next record's number.
        {"a comma in a surname shifts the record and its last line ends the load",
         Cat(Edit(Player("1", "A#", "Smith, J#"), {{21, "0"}}), two, Terminator), 1,
         Edit(Player("1", "A#", "Smit#", 9), {{5, "0"}}), "players.dat: 1 line after the record that ends the file"},
    };
    for (int tail : {0, 1})
        loads.push_back({std::to_string(tail) + " empty lines after the last record", Cat(one, two, Lines(tail, "")),
                         2, Cat(one, two)});
    for (const char* end : {"", "0", " 0 "})
        loads.push_back({"a number line \"" + std::string(end) + "\" ends the load",
                         Cat(one, Lines{end}, Lines(20, ""), two), 1, one, "players.dat: 21 lines after the record that ends the file"});
    for (const char* number : {"-1", "2001", "40000", "abc"})
        loads.push_back({"a record numbered " + std::string(number) + " is skipped whole",
                         Cat(one, Player(number, "X#", "Nowhere#", 700), two), 2, Cat(one, two),
                         "players.dat: 1 record without a usable player number (record 2)" +
                             std::string(number == std::string("2001") ? ", 1 of them numbered past 2000" : "")});
    Lines unnumbered;
    for (int i = 0; i < 12; ++i)
        unnumbered = Cat(std::move(unnumbered), Player("?", "X#", "Nowhere#"));
    loads.push_back({"a long list of what was dropped is cut", Cat(unnumbered, Terminator), 7, earlier,
                     "players.dat: 12 records without a usable player number (record 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, ...)"});
    return loads;
}

TEST(PlayersFile, LoadsAndWritesBack)
{
    for (const Load& load : Loads()) {
        SCOPED_TRACE(load.what);
        auto game = NewGame();
        game->PlayerCount = 7;
        game->Players[4].initials = "Q";
        game->Players[4].surname = "Kept";
        game->Players[4].batSkill = 99;
        const LoadReport report = ReadPlayers(*game, Join(load.file));
        EXPECT_EQ(report.DroppedText(), load.dropped);
        EXPECT_EQ(report.DroppedAny(), !load.dropped.empty());
        EXPECT_EQ(game->PlayerCount, load.count);
        const std::string written = WritePlayers(*game);
        EXPECT_EQ(written, Join(load.written, Terminator));

        // No record strays outside the slots it names, and slot 0 never takes a name.
        EXPECT_EQ(game->Players[0].initials + game->Players[0].surname, "");
        for (std::size_t slot = 8; slot < game->Players.size(); ++slot)
            ASSERT_EQ(game->Players[slot], PlayerRecord{}) << "slot " << slot;

        auto again = NewGame();
        ReadPlayers(*again, written);
        EXPECT_EQ(again->PlayerCount, load.count);
        EXPECT_EQ(WritePlayers(*again), written);
    }
}

}  // namespace
