#include "newplayer/new_player_check.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include "check/problems.h"
#include "data/fields.h"
#include "data/squad.h"
#include "support/game_builder.h"

namespace {

constexpr int Club = 3;

// Five players, the first two in the squad of team 3 of six.
std::unique_ptr<Game> SmallGame()
{
    GameBuilder b;
    b.Players(5);
    b.Team(Club, "Club", {1, 2});
    b.game->TeamCount = 6;
    return std::move(b.game);
}

// Names, date of birth, then the six skills in the order of the Help window.
NewPlayerEntries GoodEntries()
{
    return {"R J", "Ashdown", "14", "2", "1979", "45", "12", "20", "8", "25", "10"};
}

// Player 1 of team 1, with nothing `check` would warn about.
std::unique_ptr<Game> SoundGame()
{
    GameBuilder b;
    PlayerRecord& p = b.Player(1, "Ashdown", "R J");
    for (const PlayerField& field : PlayerFields) {
        if (field.codes)
            p.*field.number = static_cast<std::int16_t>(field.codes->firstCode);
        else if (field.range)
            p.*field.number = static_cast<std::int16_t>(field.range->low);
    }
    p.birthDay = 14;
    p.birthMonth = 7;
    p.birthYear = 1979;
    b.Team(1, "Ashby", {1}).homeCountry = 1;
    return std::move(b.game);
}

}  // namespace

// Pasted text skips the window's key filter, so signs, fractions and
// exponents reach the check; a value is judged before rounding. The date must
// be a day of the calendar, the names must not be empty, and every number box
// needs a number.
TEST(NewPlayerEntries, EachBoxIsJudgedAgainstItsBoundsInclusive)
{
    using E = NewPlayerEntries;
    // A box, the text pasted into it, and whether the entries are good then.
    const std::tuple<EntryBox, std::string, bool> cases[] = {
        // The ends of each range are in the field table's test; here, what pasted text makes of them.
        {&E::batSkill, "+5", true},        {&E::batSkill, "-0", true},       {&E::batSkill, "-.4", false},
        {&E::batSkill, "60.4", false},     {&E::batSkill, "59.5", true},     {&E::fieldAbility, "9.6", false},
        {&E::fieldAbility, "40.1", false}, {&E::fieldAbility, "1e1", true},  {&E::batSkill, "6e1", true},
        {&E::batSkill, "7e1", false},      {&E::potential, ".5", true},      {&E::potential, "1e", false},
        {&E::potential, " 7 ", true},      {&E::birthDay, "99", false},      {&E::birthMonth, "0", false},
        {&E::birthYear, "9999", true},     {&E::birthYear, "1e9", false},    {&E::birthDay, "-5", false},
        {&E::birthDay, "14.5", false},     {&E::birthDay, "28", true},       {&E::birthDay, "29", false},
        {&E::birthMonth, "13", false},     {&E::initials, "", false},        {&E::initials, "  ", false},
        {&E::surname, "", false},          {&E::surname, " ", false},        {&E::initials, "J", true},
    };
    for (const auto& [box, text, good] : cases) {
        NewPlayerEntries e = GoodEntries();
        e.*box = text;
        EXPECT_EQ(EntriesAreGood(e), good) << "text \"" << text << "\"";
    }
    EXPECT_FALSE(EntriesAreGood(NewPlayerEntries{})) << "OK pressed on an untouched window";
    // Day, month and year, and whether they name a day of the calendar.
    const std::tuple<const char*, const char*, const char*, bool> dates[] = {
        {"29", "2", "1992", true}, {"29", "2", "1900", false}, {"29", "2", "2000", true}, {"31", "4", "1990", false},
        {"31", "12", "1990", true}, {"1", "1", "0", false},     {"0", "1", "1990", false},
    };
    for (const auto& [day, month, year, exists] : dates) {
        NewPlayerEntries e = GoodEntries();
        std::tie(e.birthDay, e.birthMonth, e.birthYear) = std::tie(day, month, year);
        EXPECT_EQ(EntriesAreGood(e), exists) << day << "/" << month << "/" << year;
    }
    EXPECT_EQ(FirstBadEntry(GoodEntries()), std::nullopt);
    // Each box spoilt in turn is ahead of the ones before it in the window's
    // order: the box, its text, and what the window says.
    const std::tuple<EntryBox, const char*, const char*> faults[] = {
        {&E::potential, "20.5", "Potential must lie from 0 to 20, not 20.5."},
        {&E::fieldAbility, "9", "Field ability must lie from 10 to 40, not 9."},
        {&E::birthDay, "30", "Date of birth 30/2/1979 does not exist."},
        {&E::birthMonth, "1x", "Date of birth holds no number: \"1x\"."},
        {&E::birthDay, "", "Date of birth is empty."},
        {&E::surname, " ", "Player Name has no surname."},
        {&E::initials, "", "Player Name has no initials."},
    };
    NewPlayerEntries e = GoodEntries();
    for (const auto& [box, text, said] : faults) {
        e.*box = text;
        EXPECT_EQ(FirstBadEntry(e).value_or(""), said);
    }
}

// The new player's window and `check` both take a skill's range from the
// table: its ends pass, one past either end is refused by the one and
// reported by the other. `check` reports no range for a field without one;
// a new player's date must be a day of the calendar instead. Every box needs
// a number.
TEST(FieldTable, NewPlayerChecksAndGameCheckHoldEachFieldToItsRange)
{
    for (const NumberBox& box : NumberBoxes) {
        const PlayerField& field = *FieldOf<PlayerRecord>(PlayerFields, box.field);
        for (const char* text : {"", "x", "1,5"}) {
            NewPlayerEntries e = GoodEntries();
            e.*box.box = text;
            EXPECT_FALSE(EntriesAreGood(e)) << field.name << " = \"" << text << '"';
        }
        const Range range = field.range.value_or(Range{-999, 9999});
        // A value, and whether it lies in the field's range.
        const std::pair<int, bool> cases[] = {
            {range.low - 1, !field.range}, {range.low, true}, {range.high, true}, {range.high + 1, !field.range}};
        for (const auto& [value, inRange] : cases) {
            SCOPED_TRACE(std::string(field.name) + " = " + std::to_string(value));
            NewPlayerEntries entries = GoodEntries();
            entries.*box.box = std::to_string(value);
            if (field.range) {
                EXPECT_EQ(EntriesAreGood(entries), inRange);
            }

            auto game = SoundGame();
            game->Players[1].*box.field = static_cast<std::int16_t>(value);
            std::vector<std::string> rangeWarnings;
            for (const Problem& problem : ProblemsInGame(*game)) {
                if (problem.field == field.name && problem.message.find("range") != std::string::npos)
                    rangeWarnings.push_back(problem.message);
            }
            using Warnings = std::vector<std::string>;
            EXPECT_EQ(rangeWarnings, inRange ? Warnings{}
                                             : Warnings{std::to_string(value) + " is outside the range " +
                                                        RangeText(*field.range)});
        }
    }
}

// A squad read with gaps is closed up before the new player joins its end,
// so nobody in it is overwritten. A teams.dat can name a number above the
// last player: the new player who takes it belongs to his own squad only.
// Numbers follow on after deletions and are never reused.
TEST(NewPlayerCommit, GivesTheNextNumberAndFillsTheRecord)
{
    auto game = SmallGame();
    game->Teams[Club].squad = Squad{0, 1, 0, 2};
    game->Teams[4].squad = Squad{0, 6, 3};
    game->Players[6].carriedValue = 7;  // left in a slot above the last player: no entry sets it
    // Names are stored as typed, list rows give codes from 1, and a half goes
    // to the even neighbour.
    const NewPlayerEntries e{" R J ", "Ashdown ", "14", "7", "1979", "59.5", "12", "20.5", "8", "25", "10",
                             28 /* the second Namibia */, 5, 1, 8, 1, 3};
    ASSERT_EQ(CommitNewPlayer(*game, Club, e), NewPlayerOutcome::Added);
    EXPECT_EQ(game->PlayerCount, 6);
    const PlayerRecord expected{.playerNumber = 6, .initials = " R J ", .surname = "Ashdown ",
                                .birthDay = 14, .birthMonth = 7, .birthYear = 1979, .homeCountry = 29,
                                .teamNumber = Club, .batPosition = 6, .bats = 1, .batSkill = 60,
                                .batAggression = 12, .bowlType = 9, .bowls = 1, .bowlSkill = 20,
                                .bowlEconomy = 8, .fieldAbility = 25, .fieldsAt = 4, .potential = 10,
                                .carriedValue = 7};
    EXPECT_EQ(game->Players[6], expected);
    EXPECT_EQ(Places(game->Teams[Club]), (std::vector<int>{1, 2, 6}));
    EXPECT_EQ(Places(game->Teams[4]), (std::vector<int>{3}));

    DeleteFromSquad(*game, Club, 3);  // the new player 6 leaves the squad
    DeleteFromSquad(*game, Club, 1);  // and so does player 1
    ASSERT_EQ(CommitNewPlayer(*game, Club, GoodEntries()), NewPlayerOutcome::Added);
    ASSERT_EQ(CommitNewPlayer(*game, Club, GoodEntries()), NewPlayerOutcome::Added);
    EXPECT_EQ(game->PlayerCount, 8);
    EXPECT_EQ(Places(game->Teams[Club]), (std::vector<int>{2, 7, 8}));
}

// The last free number and the twentieth place are taken; one more is refused.
TEST(NewPlayerCommit, RefusalsLeaveTheGameAsItWas)
{
    auto last = SmallGame();
    last->PlayerCount = MaxPlayers - 1;
    last->Teams[Club].squad.fill(40);
    last->Teams[Club].squad[SquadSize] = 0;
    ASSERT_EQ(CommitNewPlayer(*last, Club, GoodEntries()), NewPlayerOutcome::Added);
    EXPECT_EQ(last->Players[MaxPlayers].surname, "Ashdown");
    EXPECT_EQ(last->Teams[Club].squad[SquadSize], MaxPlayers);
    EXPECT_FALSE(CanAddNewPlayer(*last));

    using Outcome = NewPlayerOutcome;
    // What is wrong, how the game, the team or the entries are spoilt, and the outcome.
    const std::tuple<const char*, void (*)(Game&, int& team, NewPlayerEntries&), Outcome> refusals[] = {
        {"bad entries", [](Game&, int&, NewPlayerEntries& e) { e.fieldAbility = "9"; }, Outcome::BadEntries},
        {"full table", [](Game& g, int&, NewPlayerEntries&) { g.PlayerCount = MaxPlayers; }, Outcome::TableFull},
        {"no team", [](Game&, int& team, NewPlayerEntries&) { team = 0; }, Outcome::NoTeam},
        {"past the last team", [](Game&, int& team, NewPlayerEntries&) { team = MaxTeams + 1; }, Outcome::NoTeam},
        {"full squad", [](Game& g, int&, NewPlayerEntries&) { g.Teams[Club].squad.fill(40); }, Outcome::SquadFull},
    };
    for (const auto& [what, prepare, outcome] : refusals) {
        SCOPED_TRACE(what);
        auto game = SmallGame();
        int team = Club;
        NewPlayerEntries e = GoodEntries();
        prepare(*game, team, e);
        const auto before = std::make_unique<Game>(*game);

        EXPECT_EQ(CommitNewPlayer(*game, team, e), outcome);
        EXPECT_EQ(game->PlayerCount, before->PlayerCount);
        EXPECT_TRUE(game->Players == before->Players);
        EXPECT_TRUE(game->Teams == before->Teams);
    }
}
