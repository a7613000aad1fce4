#pragma once

// A game written into a folder of its own, an editor.dat that names it, and
// the main window opened on it as the program opens it.

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QTest>
#include <memory>
#include <ostream>
#include <vector>

#include <gtest/gtest.h>

#include "forms/combo_box.h"
#include "forms/list_box.h"
#include "forms/message_box.h"
#include "forms/text_box.h"
#include "mainwindow/main_window.h"
#include "support/game_builder.h"
#include "support/qt_path.h"
#include "support/scratch_folder.h"
#include "support/window_parts.h"

inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

// The entries of a list or combo box, as the user reads them.
template <typename Control>
std::vector<QString> Rows(const Control& control)
{
    std::vector<QString> rows;
    for (int row = 0; row < control.ListCount(); ++row)
        rows.push_back(control.List(row));
    return rows;
}

class EditorTest : public ::testing::Test {
protected:
    EditorTest();
    ~EditorTest() override { SetMessageAnswerer({}); }

    // Two Australian teams (the second with a gap in its squad) and a West
    // Indies team; editor_fixture.cpp has the players.
    static GameBuilder SmallWorld();

    // Writes the game's files and editor.dat, then runs the start-up as the
    // program does and shows the window.
    void Open(GameBuilder built = SmallWorld());

    // The tick as the timer runs it.
    void Tick() { main->CarryEditsIntoRecords(); }

    // Answers for the coming message boxes, in order; OK when none is left.
    void Answer(std::vector<int> answers) { answers_ = std::move(answers); }

    QString GameFolder() const { return QtPath(scratch_ / "game"); }

    // Types into a box as a person would, after clearing it with the keys.
    void Retype(const char* box, const QString& text);
    QString BoxText(const char* box) const { return Find<TextBox>(*main, box).Text(); }

    // The window's controls by the names of their jobs.
    ComboBox& Combo(const char* name) const { return Find<ComboBox>(*main, name); }
    ListBox& Squad() const { return Find<ListBox>(*main, "squadList"); }
    QString TeamNumber() const { return Find<QLabel>(*main, "teamNumber").text(); }

    ScratchFolder scratch_;
    std::unique_ptr<Game> game;
    std::unique_ptr<MainWindow> main;

private:
    std::vector<int> answers_;
};
