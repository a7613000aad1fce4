#pragma once

// A game written into a folder of its own, an editor.dat that names it, and
// the editor opened on it as the program opens it.

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QTest>
#include <memory>
#include <vector>

#include <gtest/gtest.h>

#include "forms/choice_list.h"
#include "forms/message_box.h"
#include "editor/editor.h"
#include "forms/text_box.h"
#include "support/game_builder.h"
#include "support/qt_path.h"
#include "support/scratch_folder.h"
#include "support/window_parts.h"

class NewPlayerWindow;
class SearchWindow;

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
    // The editor as the program makes it, before its start.
    void MakeEditor(const SettingPlaces& places);
    GameDocument& Document() const { return editor->Document(); }

    // Answers for the coming message boxes, in order; OK when none is left.
    void Answer(std::vector<QMessageBox::StandardButton> answers) { answers_ = std::move(answers); }

    QString GameFolder() const { return QtPath(scratch_ / "game"); }
    // The bytes of both game files in the folder, and the game they hold.
    std::string Files() const;
    std::unique_ptr<Game> OnDisk() const;

    // Types into a box as a person would, over its whole text chosen with the keys.
    void Retype(const char* box, const QString& text);
    QString BoxText(const char* box) const { return Find<TextBox>(*main, box).text(); }
    // Gives every box of the new player's form a good entry, `surname` his name.
    static void FillNewPlayer(NewPlayerWindow& form, const char* surname);
    // Searches with the search window's filters as they stand and picks the
    // candidate listed as `name`: his initials and surname.
    static void SearchAndPick(SearchWindow& form, const QString& name);

    // The window's controls by the names of their jobs.
    QComboBox& Combo(const char* name) const { return Find<QComboBox>(*main, name); }
    ChoiceList& Squad() const { return Find<ChoiceList>(*main, "squadList"); }
    QString TeamNumber() const { return Find<QLabel>(*main, "teamNumber").text(); }
    // Where the window stands: country, team entry, chosen squad row and surname box.
    std::vector<QString> Place() const;

    ScratchFolder scratch_;
    std::unique_ptr<Editor> editor;
    MainWindow* main = nullptr;
    const Game* game = nullptr;

private:
    std::vector<QMessageBox::StandardButton> answers_;
};
