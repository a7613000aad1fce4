#pragma once

#include <QObject>
#include <QPointer>
#include <memory>

#include "data/game.h"

class ChangesWindow;
class MainWindow;
class ProblemsBar;
class ProblemsWindow;
class QAction;
class QMenu;
class QMenuBar;

// The main window's commands over the whole game: Find Player, the check and
// its bar under the menu, the changes since the last save or since the
// original files, and the CSV files. They go to a record through the main
// window's GoToPlayer and GoToTeam.
class GameTools : public QObject {
    Q_OBJECT
public:
    GameTools(MainWindow& window, Game& game);

    // Export and Import go into the File menu before `exitAction`; Find
    // Player into `edit`; the check and the changes into a Tools menu of
    // their own, added to `menus` here.
    void AddCommands(QMenu& file, QAction* exitAction, QMenu& edit, QMenuBar& menus);

    // The game's files were just read or written: the bar under the menu
    // says whether they hold errors.
    void CheckFiles();

    void OnFindPlayer();
    void OnCheckGame();
    void OnChangesSinceSave();
    void OnChangesSinceOriginal();
    void OnExportCsv();
    void OnImportCsv();

signals:
    // An import from CSV has just changed the open game as one step.
    void importApplied(const QString& stepText);

private:
    void ShowProblems();
    void ShowChanges(const QString& since, const Game& before);
    // OK in the import window: the open game takes the imported tables.
    void ApplyImportedGame(const Game& imported);
    QString ChooseFolder(const QString& title);

    MainWindow& window_;
    Game& game_;
    ProblemsBar* problemsBar_ = nullptr;
    QPointer<ProblemsWindow> problemsWindow_;
    QPointer<ChangesWindow> changesWindow_;
    QAction* changesSinceOriginalAction_ = nullptr;
};
