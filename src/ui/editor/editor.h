#pragma once

#include <memory>

#include "commands/game_files.h"
#include "commands/game_tools.h"
#include "document/game_document.h"
#include "mainwindow/main_window.h"
#include "options/setting_places.h"

// The editor as the program runs it: the game document in the middle, the
// commands over its files and over the whole game beside it, and the main
// window that shows it and edits through it.
class Editor {
public:
    explicit Editor(SettingPlaces places, std::unique_ptr<Game> game = std::make_unique<Game>());

    // Opens the game that editor.dat names, or the one the user chooses;
    // false when there is none and the program must end without a window.
    bool Start();
    // Whether what the start leaves until the window is first painted is done.
    bool Started() const { return started_; }

    GameDocument& Document() { return document_; }
    MainWindow& Window() { return window_; }

private:
    GameDocument document_;
    GameFiles files_;
    GameTools tools_;
    MainWindow window_;
    bool started_ = false;
};
