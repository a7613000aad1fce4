#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cli_folder.h"
#include "data/players_file.h"
#include "data/teams_file.h"

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

namespace {

class ExportImport : public CliTest {
protected:
    // A copy of `game` in which every value and name of every record differs.
    fs::path ScrambledCopy(const fs::path& game)
    {
        auto loaded = NewGame();
        ReadPlayers(*loaded, FileBytes(game / "players.dat"));
        ReadTeams(*loaded, FileBytes(game / "teams.dat"));
        for (int i = 1; i <= loaded->PlayerCount; ++i) {
            PlayerRecord& player = loaded->Players[i];
            player.initials += "Q";
            player.surname = "Zz" + player.surname;
            for (std::int16_t* field : {&player.birthDay, &player.birthMonth, &player.birthYear, &player.homeCountry,
                                        &player.teamNumber, &player.batPosition, &player.bats, &player.batSkill,
                                        &player.batAggression, &player.bowlType, &player.bowls, &player.bowlSkill,
                                        &player.bowlEconomy, &player.fieldAbility, &player.fieldsAt,
                                        &player.potential, &player.carriedValue})
                ++*field;
        }
        for (int i = 1; i <= LoadedTeamCount(*loaded); ++i) {
            TeamRecord& team = loaded->Teams[i];
            team.teamName += " Old";
            team.abbreviation = "X" + team.abbreviation;
            for (std::int16_t* field : {&team.homeCountry, &team.reputation, &team.wealth, &team.support})
                ++*field;
            std::reverse(team.squad.begin() + 1, team.squad.end());
        }
        return GameFolder(WritePlayers(*loaded), WriteTeams(*loaded), "scrambled");
    }

    // Exports `from`, imports the CSV files into `into`, and expects the files of both to agree byte for byte.
    void ExpectRoundTrip(const fs::path& from, const fs::path& into)
    {
        const fs::path csv = NewFolder("csv");
        ASSERT_EQ(RunTool({"export", from.string(), csv.string()}).code, 0);
        const ToolRun imported = RunTool({"import", into.string(), csv.string()});
        ASSERT_EQ(imported.code, 0) << imported.err;
        EXPECT_EQ(FileBytes(into / "players.dat"), FileBytes(from / "players.dat"));
        EXPECT_EQ(FileBytes(into / "teams.dat"), FileBytes(from / "teams.dat"));
    }
};

TEST_F(ExportImport, SampleGameComesBackByteForByte)
{
    const fs::path sample = SampleCopy();
    const fs::path scrambled = ScrambledCopy(sample);
    const std::string scrambledPlayers = FileBytes(scrambled / "players.dat");
    ExpectRoundTrip(sample, scrambled);
    // The save kept what it replaced.
    EXPECT_EQ(FileBytes(scrambled / "players.dat.bak"), scrambledPlayers);
    EXPECT_EQ(RunTool({"check", scrambled.string()}).code, 0);
}

TEST_F(ExportImport, WindowsNamesComeBackByteForByte)
{
    // é, €, the undefined 0x81, Ÿ, a double quote and a "#" inside a name, a
    // blank at the end of a surname, no initials.
    const Lines players =
        Cat(With(PlayerRecordLines(1, "Ch\xE9ron \x80", 1), InitialsLine, "\x81\x9F#"),
            With(PlayerRecordLines(2, "Mac\"Dee#Two ", 1), InitialsLine, "#"),
            PlayerRecordLines(3, "O'Rourke"));
    const Lines teams = With(With(TeamRecordLines("Z\xFCrich Zebras", 1, {1, 2}), AbbreviationLine, "Z\xDF#"),
                             ReputationLine, "-7");
    const fs::path game = GameFolder(PlayersBytes(players), TeamsBytes(teams));

    const fs::path csv = NewFolder("csv");
    ASSERT_EQ(RunTool({"export", game.string(), csv.string()}).code, 0);
    const std::string playersCsv = FileBytes(csv / "players.csv");
    EXPECT_THAT(playersCsv, HasSubstr("1,\xC2\x81\xC5\xB8,Ch\xC3\xA9ron \xE2\x82\xAC,"));
    EXPECT_THAT(playersCsv, HasSubstr("2,,\"Mac\"\"Dee#Two \","));
    EXPECT_THAT(FileBytes(csv / "teams.csv"), HasSubstr("1,Z\xC3\xBCrich Zebras,Z\xC3\x9F,2,England,-7,"));

    const Lines blanked = Cat(PlayerRecordLines(1, "A", 1), PlayerRecordLines(2, "B", 1), PlayerRecordLines(3));
    const fs::path into = GameFolder(PlayersBytes(blanked), TeamsBytes(TeamRecordLines("Y", 1, {1, 2})), "into");
    ExpectRoundTrip(game, into);
}

TEST_F(ExportImport, AnUnchangedImportWritesNothing)
{
    const fs::path game = SampleCopy();
    const fs::path csv = NewFolder("csv");
    ASSERT_EQ(RunTool({"export", game.string(), csv.string()}).code, 0);
    const ToolRun run = RunTool({"import", game.string(), csv.string()});
    EXPECT_EQ(run.code, 0);
    EXPECT_EQ(run.out, "Nothing to change.\n");
    EXPECT_FALSE(fs::exists(game / "players.dat.bak"));
}

TEST_F(ExportImport, ExportOfOneTeamOrCountry)
{
    const Lines players = Cat(PlayerRecordLines(1, "Arlow", 2), With(PlayerRecordLines(2, "Brenick", 1), NationLine, "3"),
                              With(PlayerRecordLines(3, "Corvane", 2), NationLine, "3"), PlayerRecordLines(4, "Dunmore"));
    const Lines teams = Cat(TeamRecordLines("Ashby", 1, {2}, 3), TeamRecordLines("Bexley", 2, {3, 1}));
    const fs::path game = GameFolder(PlayersBytes(players), TeamsBytes(teams));
    const auto exported = [&](const std::string& option, const std::string& value) {
        const fs::path csv = NewFolder("csv");
        const ToolRun run = RunTool({"export", option, value, game.string(), csv.string()});
        EXPECT_EQ(run.code, 0) << run.err;
        return std::pair(FileBytes(csv / "players.csv"), FileBytes(csv / "teams.csv"));
    };
    const auto rowsOf = [](const std::string& csv) {
        std::vector<std::string> keys;
        for (std::size_t at = csv.find("\r\n"); at + 2 < csv.size(); at = csv.find("\r\n", at + 2))
            keys.push_back(csv.substr(at + 2, csv.find(',', at + 2) - at - 2));
        return keys;
    };

    const auto [teamPlayers, teamTeams] = exported("--team", "2");
    EXPECT_THAT(rowsOf(teamPlayers), testing::ElementsAre("1", "3"));
    EXPECT_THAT(rowsOf(teamTeams), testing::ElementsAre("2"));
    const auto [countryPlayers, countryTeams] = exported("--country", "india");
    EXPECT_THAT(rowsOf(countryPlayers), testing::ElementsAre("2", "3"));
    EXPECT_THAT(rowsOf(countryTeams), testing::ElementsAre("1"));

    for (const auto& [option, value] : {std::pair("--team", "3"), std::pair("--country", "Atlantis")}) {
        const ToolRun refused = RunTool({"export", option, value, game.string(), NewFolder("csv").string()});
        EXPECT_EQ(refused.code, 2) << option;
        EXPECT_THAT(refused.err, HasSubstr(value)) << option;
    }
}

}  // namespace
