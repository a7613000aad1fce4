#include "bulkedit/bulk_edit.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tuple>

#include "csv/csv_export.h"
#include "table_game.h"

using ::testing::ElementsAre;
using ::testing::HasSubstr;

namespace {

// The game after the plan is applied, which must undo to the game before it.
std::unique_ptr<Game> Applied(const Game& game, const BulkEdit& plan)
{
    auto after = std::make_unique<Game>(game);
    plan.change.Redo(*after);
    auto undone = std::make_unique<Game>(*after);
    plan.change.Undo(*undone);
    EXPECT_TRUE(undone->Players == game.Players && undone->Teams == game.Teams);
    return after;
}

TEST(SetValue, TakesWhatTheRecordsHoldAndRefusesTheRestWhole)
{
    auto game = TableGame();
    game->Players[2].batAggression = 32767;
    game->Teams[2].wealth = -32768;
    using P = PlayerRecord;
    // Accepted: the column, the players chosen, the value typed, and what each
    // of them holds in the field afterwards.
    const std::tuple<const char*, std::vector<int>, const char*, std::int16_t P::*, std::vector<int>> accepted[] = {
        {"potential", {3, 1}, " 7 ", &P::potential, {7, 7}},
        {"batSkill", {1, 2}, "+2", &P::batSkill, {47, 32}},
        {"batSkill", {1, 2}, "-30", &P::batSkill, {15, 0}},
        {"batskill", {1}, "=-3", &P::batSkill, {-3}},
        {"homeCountry", {1, 2}, "namibia", &P::homeCountry, {13, 13}},
        {"bats", {1}, "Left Handed", &P::bats, {1}},
        // The birth date sets its three fields, held to a new player's rule.
        {"birthDate", {3, 1}, " 29/2/2000 ", &P::birthDay, {29, 29}},
        {"birthDate", {2}, "1/12/1999", &P::birthMonth, {12}},
    };
    for (const auto& [column, numbers, value, field, after] : accepted) {
        SCOPED_TRACE(std::string(column) + " " + value);
        const BulkEdit plan = PlanSetValue(*game, RecordKind::Player, column, numbers, value);
        ASSERT_TRUE(plan.ok()) << plan.refusal;
        const auto changed = Applied(*game, plan);
        for (std::size_t i = 0; i < numbers.size(); ++i)
            EXPECT_EQ(changed->Players[numbers[i]].*field, after[i]);
    }
    // Refused whole: the column, the players chosen, the value typed, what is
    // said and the record it is said of (0: none).
    const std::tuple<const char*, std::vector<int>, const char*, const char*, int> refused[] = {
        {"birthDate", {1, 2}, "29/2/1999", "Date of birth 29/2/1999 does not exist.", 1},
        {"birthDate", {1}, "+1", "Date of birth takes day/month/year", 1},
        {"homeCountry", {1}, "40", "homeCountry takes a word of its list or a code from 1 to 39", 1},
        {"bowlType", {1}, "+1", "only numbers can be raised or lowered", 1},
        {"batSkill", {1}, "12.5", "batSkill takes a whole number from -32768 to 32767", 1},
        {"batAggression", {1, 2, 3}, "+1",
         "player 2 (B Smithers): batAggression would be 32768, beyond what the record holds", 2},
        {"surname", {4}, "", "a surname cannot be empty", 4},
        {"surname", {4}, "Dyke, E", "cannot be saved because it contains a comma", 4},
        {"teamNumber", {4}, "2", "teamNumber cannot be changed here", 0},
        {"age", {4}, "2", "age cannot be changed here", 0},
        {"potential", {1, 7}, "7", "there is no player 7", 7},
    };
    for (const auto& [column, numbers, value, refusal, fault] : refused) {
        const BulkEdit plan = PlanSetValue(*game, RecordKind::Player, column, numbers, value);
        EXPECT_THAT(plan.refusal, HasSubstr(refusal));
        EXPECT_EQ(plan.faultRecord, fault) << refusal;
        EXPECT_TRUE(plan.change.Empty());
    }
    const BulkEdit poorer = PlanSetValue(*game, RecordKind::Team, "wealth", std::vector{1, 2}, "-1");
    EXPECT_THAT(poorer.refusal, HasSubstr("team 2 (Perth): wealth would be -32769"));
    EXPECT_EQ(poorer.faultRecord, 2);
    EXPECT_TRUE(poorer.change.Empty());

    // Records come in number order, only those that change, with a name for the step.
    const std::vector<int> chosen{6, 4, 1};
    const BulkEdit names = PlanSetValue(*game, RecordKind::Player, "initials", chosen, "A J");
    EXPECT_THAT(Numbers(names.change.players), ElementsAre(4, 6));
    EXPECT_TRUE(names.change.teams.empty());
    EXPECT_EQ(names.summary, "set initials on 3 players");
    const BulkEdit high = PlanSetValue(*game, RecordKind::Player, "potential", chosen, "21");
    EXPECT_THAT(high.note, HasSubstr("3 players now hold a value outside the range the game gives it"));
    EXPECT_EQ(Applied(*game, PlanSetValue(*game, RecordKind::Team, "teamName", std::vector{3}, "Ashby Town"))
                  ->Teams[3].teamName, "Ashby Town");
}

TEST(Paste, FillsTheChosenCellsAllOrNothing)
{
    const auto game = TableGame();
    const std::vector<std::string> skills{"batSkill", "potential"};
    const std::vector<int> rows{2, 1};

    const auto after = Applied(*game, PlanPaste(*game, RecordKind::Player, rows, skills, "7\t8\r\n9\t10\r\n"));
    EXPECT_EQ(after->Players[2].batSkill, 7);
    EXPECT_EQ(after->Players[2].potential, 8);
    EXPECT_EQ(after->Players[1].batSkill, 9);
    EXPECT_EQ(after->Players[1].potential, 10);
    // One cell, or one row, repeats over every cell chosen.
    const auto filled = Applied(*game, PlanPaste(*game, RecordKind::Player, rows, skills, "5\n"));
    EXPECT_EQ(filled->Players[1].potential, 5);
    EXPECT_EQ(filled->Players[2].batSkill, 5);
    const auto names = Applied(*game, PlanPaste(*game, RecordKind::Player, rows, std::vector<std::string>{
                                                    "initials", "surname", "homeCountry"}, "K\tAmber\tIndia"));
    EXPECT_EQ(names->Players[2].surname, "Amber");
    EXPECT_EQ(names->Players[1].homeCountry, 3);

    // The columns chosen, the block pasted, what is said and the record it is said of (0: none).
    const std::tuple<std::vector<std::string>, const char*, const char*, int> refused[] = {
        {skills, "1\t2\t3", "a block of 1 row by 3 columns does not fit the 2 rows by 2 columns chosen", 0},
        {skills, "1\t2\n3", "the pasted rows hold different numbers of cells", 0},
        {skills, "", "there is nothing to paste", 0},
        {skills, "1\t2\n3\tx", "player 1 (A J Smith): potential takes a whole number from -32768 to 32767, not \"x\"", 1},
        {{"surname", "age"}, "a\t1", "age cannot be changed here", 0},
        {{"surname"}, "\"Quoted", "player 2 (B Smithers): surname", 2},
        {{"birthDate"}, "30/2/2000", "player 2 (B Smithers): Date of birth 30/2/2000 does not exist.", 2},
    };
    for (const auto& [columns, block, refusal, fault] : refused) {
        const BulkEdit plan = PlanPaste(*game, RecordKind::Player, rows, columns, block);
        EXPECT_THAT(plan.refusal, HasSubstr(refusal)) << block;
        EXPECT_EQ(plan.faultRecord, fault) << block;
        EXPECT_TRUE(plan.change.Empty());
    }
}

// Add Existing for each in turn: out of every old squad, to the end of this one.
TEST(MoveToTeam, JoinsTheSquadUpToTwenty)
{
    auto game = TableGame();
    const BulkEdit plan = PlanMoveToTeam(*game, std::vector{4, 1, 3, 4}, 2);
    ASSERT_TRUE(plan.ok()) << plan.refusal;
    EXPECT_EQ(plan.summary, "move of 2 players to team 2 (Perth)");
    const auto after = Applied(*game, plan);
    EXPECT_THAT(Places(after->Teams[2]), ElementsAre(3, 6, 4, 1));
    EXPECT_THAT(Places(after->Teams[1]), ElementsAre(2));
    EXPECT_EQ(after->Players[4].teamNumber, 2);
    EXPECT_EQ(after->Players[1].teamNumber, 2);

    EXPECT_THAT(PlanMoveToTeam(*game, std::vector{3, 6}, 2).refusal, HasSubstr("holds every player chosen already"));
    EXPECT_THAT(PlanMoveToTeam(*game, std::vector{1}, 4).refusal, HasSubstr("there is no team 4"));
    GameBuilder full;
    full.Players(30);
    full.Team(1, "Full", PlayerRun(1, 18));
    full.Team(2, "Other", {25});
    const BulkEdit over = PlanMoveToTeam(*full.game, std::vector{21, 22, 25}, 1);
    EXPECT_EQ(over.refusal, "team 1 (Full) has room for 2 players, not 3: a squad holds at most 20");
    EXPECT_EQ(over.faultRecord, 25);
}

TEST(ExportSelection, WritesTheChosenRowsInTheirOrderAsTheExportDoes)
{
    const auto game = TableGame();
    const std::string all = PlayersCsv(*game);
    const auto line = [&all](int n) {
        std::size_t at = 0;
        for (int i = 0; i < n; ++i)
            at = all.find("\r\n", at) + 2;
        return all.substr(at, all.find("\r\n", at) + 2 - at);
    };
    EXPECT_EQ(PlayersCsvOf(*game, std::vector{3, 1, 9}), line(0) + line(3) + line(1));
    EXPECT_EQ(TeamsCsvOf(*game, std::vector{2}), TeamsCsv(*game, {.team = 2, .country = {}}));
}

}  // namespace
