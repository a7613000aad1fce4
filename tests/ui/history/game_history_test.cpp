// The history of steps as the main window's ticks feed it: one step per box,
// and undo and redo put records back, say where to look and keep the
// unsaved-changes state. Squad commands are undone in the main window's tests.
#include "history/game_history.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include "support/game_builder.h"

namespace {

class History : public ::testing::Test {
protected:
    History()
    {
        b.Player(1, "Neskerly", "A").batSkill = 30;
        b.Player(2, "Ormsby", "");
        b.Player(3, "Vanterpool", "T");
        b.Team(1, "Perth Pelicans", {1, 2});
        b.Team(2, "Darwin Dingoes", {3});
        history.Restart();
        QObject::connect(&history, &GameHistory::StepShown,
                         [this](StepPlace place) { shown.push_back({place.team, place.player}); });
    }

    void Undo() { history.Stack().undo(); }
    void Redo() { history.Stack().redo(); }
    QString UndoText() const { return history.Stack().undoText(); }
    int Steps() const { return history.Stack().count(); }

    GameBuilder b;
    Game& game = *b.game;
    GameHistory history{game};
    std::vector<std::pair<int, int>> shown;   // team, player
};

TEST_F(History, TypingIsOneStepPerBoxAndTypingBackLeavesNone)
{
    PlayerRecord& player = game.Players[1];
    // A tick that finds nothing new makes no step.
    history.RecordTyping(1, 1);
    EXPECT_EQ(Steps(), 0);

    // "4", then "45" into Bat skill: one step.
    for (int skill : {4, 45}) {
        player.batSkill = std::int16_t(skill);
        history.RecordTyping(1, 1);
    }
    EXPECT_EQ(Steps(), 1);
    EXPECT_EQ(UndoText(), "edit of Bat skill for A Neskerly");

    // The focus moves on to the team's Wealth: a step of its own.
    history.EndTyping();
    game.Teams[1].wealth = 900;
    history.RecordTyping(1, 1);
    EXPECT_EQ(Steps(), 2);
    EXPECT_EQ(UndoText(), "edit of Wealth for Perth Pelicans");

    // The name, typed over and back again: the step goes away.
    history.EndTyping();
    player.surname = "Neskerl";
    history.RecordTyping(1, 1);
    EXPECT_EQ(UndoText(), "edit of Player Name for A Neskerly");
    player.surname = "Neskerly";
    history.RecordTyping(1, 1);
    EXPECT_EQ(Steps(), 2);

    Undo();
    EXPECT_EQ(game.Teams[1].wealth, 0);
    Undo();
    EXPECT_EQ(player.batSkill, 30);
    EXPECT_EQ(shown, (std::vector<std::pair<int, int>>{{1, 1}, {1, 1}}));
    Redo();
    EXPECT_EQ(player.batSkill, 45);

    // Typing after an undo starts a new step, even in the same box.
    player.batSkill = 46;
    history.RecordTyping(1, 1);
    EXPECT_EQ(Steps(), 2);
    Undo();
    EXPECT_EQ(player.batSkill, 45);
}

TEST_F(History, UnsavedChangesFollowTheSavedStateThroughUndoAndRedo)
{
    QSignalSpy unsaved(&history, &GameHistory::UnsavedChangesChanged);
    const auto type = [&](int skill) {
        history.EndTyping();
        game.Players[1].batSkill = std::int16_t(skill);
        history.RecordTyping(1, 1);
    };
    EXPECT_FALSE(history.HasUnsavedChanges());
    type(40);
    EXPECT_TRUE(history.HasUnsavedChanges());
    history.MarkSaved();
    EXPECT_FALSE(history.HasUnsavedChanges());

    // Typing on in the box of the saved step does not join it: the saved
    // state stays one undo away.
    game.Players[1].batSkill = 41;
    history.RecordTyping(1, 1);
    EXPECT_EQ(Steps(), 2);
    EXPECT_TRUE(history.HasUnsavedChanges());
    Undo();
    EXPECT_FALSE(history.HasUnsavedChanges());
    Undo();
    EXPECT_TRUE(history.HasUnsavedChanges());   // before the save is unsaved too
    Redo();
    EXPECT_FALSE(history.HasUnsavedChanges());

    // A load forgets the steps and counts as saved.
    type(50);
    history.Restart();
    EXPECT_EQ(Steps(), 0);
    EXPECT_FALSE(history.HasUnsavedChanges());
    std::vector<bool> marks;
    for (const auto& signal : unsaved)
        marks.push_back(signal.at(0).toBool());
    EXPECT_EQ(marks, (std::vector<bool>{true, false, true, false, true, false, true, false}));
}

}  // namespace
