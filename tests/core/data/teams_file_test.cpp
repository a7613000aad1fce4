#include "data/teams_file.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/file_text.h"

namespace {

// A team record as the game writes it; unlisted squad places are 0.
Lines Team(std::string name, std::string abbreviation, int country, std::vector<int> squad = {},
           std::string number = "0")
{
    Lines lines{"0", std::move(name), std::move(abbreviation), std::to_string(country), "70", "55", "60",
                std::move(number), "0", "0"};
    squad.resize(SquadSize);
    for (int player : squad)
        lines.push_back(std::to_string(player));
    return lines;
}

// `count` teams numbered as the writer numbers them.
Lines Teams(int count)
{
    Lines lines;
    for (int i = 1; i <= count; ++i)
        lines = Cat(std::move(lines),
                    Team("Team " + std::to_string(i) + "#", "T#", i % 10 + 1, {i, 0, i + 1}, std::to_string(i)));
    return lines;
}

const Lines Terminator = Lines(20, "");

// Each file is loaded into a game where an earlier load left TeamCount 9 and
// team 2 "Old", which shows where a load leaves a field alone.
std::vector<Load> Loads()
{
    const Lines own =
        Cat(Team("K\xF6ln Rovers #", "KR#", 0, {17, 0, 40}, "1"), Team("#", "#", 11, {0, 0, 0, 5}, "2"));
    std::vector<Load> loads{
        {"Windows-1252, a blank at the end of a name, squad holes, countries no list reaches, '#' alone",
         Cat(own, Terminator), 4, own},
        {"lines 1, 8 and 9 are rewritten, line 8 with the place; blanks before a value go",
         Cat(Edit(Team("Ninety Nine#", " NN#", 3, {}, "99"), {{1, "x"}, {4, "003"}, {9, "7"}}), Terminator), 3,
         Team("Ninety Nine#", "NN#", 3, {}, "1")},
        {"an empty name line leaves the name, a bad number its field, an empty number gives 0, the load goes on",
         Cat(Teams(1), Edit(Team("", "", 3, {5, 6, 7}), {{4, ""}, {5, "high"}, {6, "99999"}, {12, "x"}, {13, ""}}),
             Terminator),
         4, Cat(Teams(1), Edit(Team("Old#", "OLD#", 0, {5, 77}, "2"), {{5, "99"}, {6, "99"}}))},
        {"an empty line 10 ends the load after that record",
         Cat(Teams(2), Edit(Team("Last#", "L#", 4), {{10, ""}}), Teams(3), Terminator), 4, Teams(2),
         "teams.dat: 90 lines after the record that ends the file"},
        {"an empty file", {}, 2, {}},
        {"500 teams fill the table", Cat(Teams(MaxTeams), Terminator), MaxTeams + 2, Teams(MaxTeams)},
        {"teams beyond the 500th are not read", Cat(Teams(MaxTeams + 3), Terminator), MaxTeams + 2, Teams(MaxTeams),
         "teams.dat: 3 teams after the 500th"},
    };
    for (int tail : {0, 1})
        loads.push_back({std::to_string(tail) + " empty lines after the last team", Cat(Teams(3), Lines(tail, "")), 5,
                         Teams(3)});
    return loads;
}

TEST(TeamsFile, LoadsAndWritesBack)
{
    for (const Load& load : Loads()) {
        SCOPED_TRACE(load.what);
        auto game = NewGame();
        game->TeamCount = 9;
        game->Teams[2] = {"Old", "OLD", 9, 0, {}, 99, 99, 99};
        game->Teams[2].squad.fill(77);
        const LoadReport report = ReadTeams(*game, Join(load.file));
        EXPECT_EQ(report.DroppedText(), load.dropped);
        EXPECT_EQ(report.DroppedAny(), !load.dropped.empty());
        EXPECT_EQ(game->TeamCount, load.count);
        const std::string written = WriteTeams(*game);
        EXPECT_EQ(written, Join(load.written, Terminator));

        auto again = NewGame();
        ReadTeams(*again, written);
        EXPECT_EQ(again->TeamCount, load.count);
        EXPECT_EQ(WriteTeams(*again), written);
    }
}

}  // namespace
