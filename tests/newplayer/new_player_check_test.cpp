#include "newplayer/new_player_check.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "data/squad.h"

namespace {

constexpr int Club = 3;

// Five players, the first two in the squad of team 3.
std::unique_ptr<Game> SmallGame()
{
    auto game = std::make_unique<Game>();
    game->PlayerCount = 5;
    game->TeamCount = 6;
    for (std::int16_t p = 1; p <= 5; ++p)
        game->Players[p].playerNumber = p;
    game->Teams[Club].squad[1] = 1;
    game->Teams[Club].squad[2] = 2;
    game->Players[1].teamNumber = Club;
    game->Players[2].teamNumber = Club;
    return game;
}

NewPlayerEntries GoodEntries()
{
    NewPlayerEntries e;
    e.initials = "R J";
    e.surname = "Ashdown";
    e.birthDay = "14";
    e.birthMonth = "7";
    e.birthYear = "1979";
    e.batSkill = "45";
    e.batAggression = "12";
    e.bowlSkill = "20";
    e.bowlEconomy = "8";
    e.fieldAbility = "25";
    e.potential = "10";
    return e;
}

NewPlayerEntries With(EntryBox box, const std::string& text)
{
    NewPlayerEntries e = GoodEntries();
    e.*box = text;
    return e;
}

struct Case {
    EntryBox box;
    std::string text;
    bool good;
};

void ExpectVerdicts(const std::vector<Case>& cases)
{
    for (const Case& c : cases)
        EXPECT_EQ(EntriesAreGood(With(c.box, c.text)), c.good) << "text \"" << c.text << "\"";
}

}  // namespace

TEST(NewPlayerEntries, SkillsAreCheckedAgainstTheirBoundsInclusive)
{
    using E = NewPlayerEntries;
    ExpectVerdicts({
        {&E::batSkill, "0", true},       {&E::batSkill, "60", true},      {&E::batSkill, "61", false},
        {&E::bowlSkill, "0", true},      {&E::bowlSkill, "60", true},     {&E::bowlSkill, "61", false},
        {&E::batAggression, "0", true},  {&E::batAggression, "20", true}, {&E::batAggression, "21", false},
        {&E::bowlEconomy, "0", true},    {&E::bowlEconomy, "20", true},   {&E::bowlEconomy, "21", false},
        {&E::potential, "0", true},      {&E::potential, "20", true},     {&E::potential, "21", false},
        {&E::fieldAbility, "9", false},  {&E::fieldAbility, "10", true},  {&E::fieldAbility, "40", true},
        {&E::fieldAbility, "41", false},
    });
}

TEST(NewPlayerEntries, EveryNumberBoxMustHoldANumberButNamesMayBeAnything)
{
    EXPECT_TRUE(EntriesAreGood(GoodEntries()));
    EXPECT_FALSE(EntriesAreGood(NewPlayerEntries{})) << "OK pressed on an untouched window";
    for (EntryBox box : NumberBoxes) {
        EXPECT_FALSE(EntriesAreGood(With(box, "")));
        EXPECT_FALSE(EntriesAreGood(With(box, "x")));
        EXPECT_FALSE(EntriesAreGood(With(box, "1,5")));
    }
    NewPlayerEntries nameless = GoodEntries();
    nameless.initials.clear();
    nameless.surname.clear();
    EXPECT_TRUE(EntriesAreGood(nameless));
}

// Pasted text skips the key filter; the value is judged before rounding.
TEST(NewPlayerEntries, PastedSignsFractionsAndExponentsAreJudgedUnrounded)
{
    using E = NewPlayerEntries;
    ExpectVerdicts({
        {&E::batSkill, "+5", true},       {&E::batSkill, "-0", true},        {&E::batSkill, "-1", false},
        {&E::batSkill, "-.4", false},     {&E::batSkill, "60.4", false},     {&E::batSkill, "59.5", true},
        {&E::fieldAbility, "9.6", false}, {&E::fieldAbility, "40.1", false}, {&E::fieldAbility, "1e1", true},
        {&E::batSkill, "6e1", true},      {&E::batSkill, "7e1", false},      {&E::potential, ".5", true},
        {&E::potential, "1e", false},     {&E::potential, " 7 ", true},
    });
}

TEST(NewPlayerEntries, TheDateTakesAnyNumber)
{
    using E = NewPlayerEntries;
    ExpectVerdicts({
        {&E::birthDay, "99", true},  {&E::birthMonth, "99", true}, {&E::birthYear, "9999", true},
        {&E::birthDay, "0", true},   {&E::birthMonth, "0", true},  {&E::birthYear, "0", true},
        {&E::birthDay, "31", true},  {&E::birthYear, "1e9", true}, {&E::birthDay, "-5", true},
    });
}

TEST(NewPlayerCommit, GivesTheNextNumberAndFillsTheRecord)
{
    auto game = SmallGame();
    game->Players[6].carriedValue = 7;  // left in a slot above the last player
    NewPlayerEntries e = GoodEntries();
    e.initials = " R J ";
    e.surname = "Ashdown ";
    e.homeCountry = 28;  // the second Namibia
    e.batPosition = 5;
    e.bats = 1;
    e.bowlType = 8;
    e.bowls = 1;
    e.fieldsAt = 3;
    e.batSkill = "59.5";  // a half goes to the even neighbour
    e.bowlSkill = "20.5";

    ASSERT_EQ(CommitNewPlayer(*game, Club, e), NewPlayerOutcome::Added);

    EXPECT_EQ(game->PlayerCount, 6);
    const PlayerRecord& p = game->Players[6];
    EXPECT_EQ(p.playerNumber, 6);
    EXPECT_EQ(p.initials, " R J ") << "names are stored as typed";
    EXPECT_EQ(p.surname, "Ashdown ");
    EXPECT_EQ(p.homeCountry, 29);
    EXPECT_EQ(p.batPosition, 6);
    EXPECT_EQ(p.bats, 1);
    EXPECT_EQ(p.bowlType, 9);
    EXPECT_EQ(p.bowls, 1);
    EXPECT_EQ(p.fieldsAt, 4);
    EXPECT_EQ(p.birthDay, 14);
    EXPECT_EQ(p.birthMonth, 7);
    EXPECT_EQ(p.birthYear, 1979);
    EXPECT_EQ(p.batSkill, 60);
    EXPECT_EQ(p.batAggression, 12);
    EXPECT_EQ(p.bowlSkill, 20);
    EXPECT_EQ(p.bowlEconomy, 8);
    EXPECT_EQ(p.fieldAbility, 25);
    EXPECT_EQ(p.potential, 10);
    EXPECT_EQ(p.carriedValue, 7) << "no entry sets it";
    EXPECT_EQ(p.teamNumber, Club);
    EXPECT_EQ(game->Teams[Club].squad[3], 6);
    EXPECT_EQ(game->Teams[Club].squad[4], 0);
}

TEST(NewPlayerCommit, FirstEntriesOfEveryListGiveTheirCodes)
{
    auto game = SmallGame();
    ASSERT_EQ(CommitNewPlayer(*game, Club, GoodEntries()), NewPlayerOutcome::Added);
    const PlayerRecord& p = game->Players[6];
    EXPECT_EQ(p.homeCountry, 1);
    EXPECT_EQ(p.batPosition, 1);
    EXPECT_EQ(p.bats, 0);
    EXPECT_EQ(p.bowlType, 1);
    EXPECT_EQ(p.bowls, 0);
    EXPECT_EQ(p.fieldsAt, 1);
}

TEST(NewPlayerCommit, ADateBeyondTheGamesNumbersKeepsWhatTheSlotHeld)
{
    auto game = SmallGame();
    game->Players[6].birthYear = 1990;
    game->Players[6].birthDay = 3;
    NewPlayerEntries e = GoodEntries();
    e.birthYear = "1e9";
    e.birthDay = "-5";
    ASSERT_EQ(CommitNewPlayer(*game, Club, e), NewPlayerOutcome::Added);
    EXPECT_EQ(game->Players[6].birthYear, 1990);
    EXPECT_EQ(game->Players[6].birthDay, -5);
    EXPECT_EQ(game->Players[6].birthMonth, 7);
}

TEST(NewPlayerCommit, RefusalsLeaveTheGameAsItWas)
{
    struct Refusal {
        const char* what;
        void (*prepare)(Game&, int& team, NewPlayerEntries&);
        NewPlayerOutcome outcome;
    };
    const Refusal refusals[] = {
        {"bad entries", [](Game&, int&, NewPlayerEntries& e) { e.fieldAbility = "9"; },
         NewPlayerOutcome::BadEntries},
        {"full table", [](Game& g, int&, NewPlayerEntries&) { g.PlayerCount = MaxPlayers; },
         NewPlayerOutcome::TableFull},
        {"no team", [](Game&, int& team, NewPlayerEntries&) { team = 0; }, NewPlayerOutcome::NoTeam},
        {"past the last team", [](Game&, int& team, NewPlayerEntries&) { team = MaxTeams + 1; },
         NewPlayerOutcome::NoTeam},
        {"full squad",
         [](Game& g, int&, NewPlayerEntries&) {
             for (int slot = 1; slot <= SquadSize; ++slot)
                 g.Teams[Club].squad[slot] = static_cast<std::int16_t>(slot);
         },
         NewPlayerOutcome::SquadFull},
    };
    for (const Refusal& r : refusals) {
        auto game = SmallGame();
        int team = Club;
        NewPlayerEntries e = GoodEntries();
        r.prepare(*game, team, e);
        const auto before = std::make_unique<Game>(*game);

        EXPECT_EQ(CommitNewPlayer(*game, team, e), r.outcome) << r.what;
        EXPECT_EQ(game->PlayerCount, before->PlayerCount) << r.what;
        EXPECT_TRUE(game->Players == before->Players) << r.what;
        EXPECT_TRUE(game->Teams == before->Teams) << r.what;
    }
}

TEST(NewPlayerCommit, NumbersFollowOnAfterDeletionsAndAreNeverReused)
{
    auto game = SmallGame();
    ASSERT_EQ(CommitNewPlayer(*game, Club, GoodEntries()), NewPlayerOutcome::Added);
    DeleteFromSquad(*game, Club, 3);  // the new player 6 leaves the squad
    DeleteFromSquad(*game, Club, 1);  // and so does player 1
    ASSERT_EQ(CommitNewPlayer(*game, Club, GoodEntries()), NewPlayerOutcome::Added);
    ASSERT_EQ(CommitNewPlayer(*game, Club, GoodEntries()), NewPlayerOutcome::Added);

    EXPECT_EQ(game->PlayerCount, 8);
    EXPECT_EQ(game->Players[6].playerNumber, 6) << "a deleted player keeps his record";
    EXPECT_EQ(game->Players[6].teamNumber, 0);
    const Squad& squad = game->Teams[Club].squad;
    EXPECT_EQ(squad[1], 2);
    EXPECT_EQ(squad[2], 7);
    EXPECT_EQ(squad[3], 8);
    EXPECT_EQ(squad[4], 0);
}

TEST(NewPlayerCommit, TheTableTakesPlayersUpToItsLastSlot)
{
    auto game = SmallGame();
    game->PlayerCount = MaxPlayers - 1;
    EXPECT_TRUE(CanAddNewPlayer(*game));
    ASSERT_EQ(CommitNewPlayer(*game, Club, GoodEntries()), NewPlayerOutcome::Added);
    EXPECT_EQ(game->PlayerCount, MaxPlayers);
    EXPECT_EQ(game->Players[MaxPlayers].surname, "Ashdown");
    EXPECT_FALSE(CanAddNewPlayer(*game));
    EXPECT_EQ(CommitNewPlayer(*game, Club, GoodEntries()), NewPlayerOutcome::TableFull);
}

TEST(NewPlayerCommit, TheTwentiethPlayerFitsTheSquad)
{
    auto game = SmallGame();
    for (int slot = 1; slot <= SquadSize - 1; ++slot)
        game->Teams[Club].squad[slot] = static_cast<std::int16_t>(100 + slot);
    ASSERT_EQ(CommitNewPlayer(*game, Club, GoodEntries()), NewPlayerOutcome::Added);
    EXPECT_EQ(game->Teams[Club].squad[SquadSize], 6);
}

// A teams.dat can name a number above the last player. The new player who
// takes that number belongs to his own squad only.
TEST(NewPlayerCommit, TheNewNumberLeavesAStaleSquadPlace)
{
    auto game = SmallGame();
    game->Teams[4].squad[1] = 6;
    game->Teams[4].squad[2] = 3;
    ASSERT_EQ(CommitNewPlayer(*game, Club, GoodEntries()), NewPlayerOutcome::Added);
    EXPECT_EQ(game->Teams[4].squad[1], 3);
    EXPECT_FALSE(IsInSquad(*game, 4, 6));
    EXPECT_TRUE(IsInSquad(*game, Club, 6));
}

// A squad read with gaps is closed up before the new player joins its end,
// so nobody already in it is overwritten.
TEST(NewPlayerCommit, ASquadWithGapsKeepsEveryPlayer)
{
    auto game = SmallGame();
    game->Teams[Club].squad = Squad{0, 1, 0, 2};
    ASSERT_EQ(CommitNewPlayer(*game, Club, GoodEntries()), NewPlayerOutcome::Added);
    const Squad& squad = game->Teams[Club].squad;
    EXPECT_EQ(squad[1], 1);
    EXPECT_EQ(squad[2], 2);
    EXPECT_EQ(squad[3], 6);
}
