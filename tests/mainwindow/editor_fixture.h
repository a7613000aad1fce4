#pragma once

// A game written into a folder of its own, an editor.dat that names it, and
// the main window opened on it as the program opens it.

#include <QString>
#include <QTemporaryDir>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "data/game.h"
#include "forms/message_box.h"
#include "mainwindow/main_form.h"
#include "search/game_builder.h"

inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

class EditorTest : public ::testing::Test {
protected:
    EditorTest();
    ~EditorTest() override;

    // The game the tests open unless they build another: two Australian
    // teams, a West Indies team, an Indian team with no players and a team
    // of a country no pick lists. See editor_fixture.cpp for the players.
    static GameBuilder SmallWorld();

    // Writes the game's files and editor.dat, then runs the start-up as the
    // program does and shows the window.
    void Open(GameBuilder built);
    void Open() { Open(SmallWorld()); }

    // The tick as the timer runs it.
    void Tick() { main->Timer1_Timer(); }

    // The files on disk, read into a game of their own.
    std::unique_ptr<Game> ReadBack() const;

    // Answers for the coming message boxes, in order; OK when none is left.
    void Answer(std::vector<int> answers) { answers_ = std::move(answers); }
    std::vector<QString> MessageTexts() const;

    QString GameFolder() const { return root_.filePath(QStringLiteral("game")); }
    QString ProgramFolder() const { return root_.filePath(QStringLiteral("bin")); }

    // The rows of List1 and the entries of Combo2, as the user reads them.
    std::vector<QString> SquadRows() const;
    std::vector<QString> TeamEntries() const;

    // Types into a box as a person would, after clearing it with the keys.
    void Retype(int box, const QString& text);

    QTemporaryDir root_;
    std::unique_ptr<Game> game;
    std::unique_ptr<MainForm> main;

private:
    std::vector<int> answers_;
};
