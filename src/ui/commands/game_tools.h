#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>

#include "data/game.h"

class ChangesWindow;
class GameDocument;
class ProblemsWindow;
class TableWindow;
class QWidget;

// The commands over the whole game: Find Player, the check of the game and
// the count of its errors for the bar under the menu, the changes since the
// last save or since the original files, and the CSV files. The windows they
// open stand over `owner`; a record chosen in them is told by a signal.
class GameTools : public QObject {
    Q_OBJECT
public:
    explicit GameTools(GameDocument& document);

    // The game's files were just read or written: counts their errors.
    void CheckFiles();
    // After a step: the errors are counted again as soon as the event loop
    // is free, the files' own as last counted. Keystrokes that come in a
    // row are counted once.
    void Recount();

    void FindPlayer(QWidget* owner);
    void CheckGame(QWidget* owner);
    void ChangesSinceSave(QWidget* owner);
    void ChangesSinceOriginal(QWidget* owner);
    // The originals appear with the first save in a folder.
    bool HasOriginals() const;
    void ExportCsv(QWidget* owner);
    void ImportCsv(QWidget* owner);
    // The players and teams tables, open beside `owner`; a record chosen in
    // one brings `owner` to the front.
    void PlayersTable(QWidget* owner);
    void TeamsTable(QWidget* owner);

signals:
    void playerChosen(int number);
    void teamChosen(int number);
    // How many errors the files hold, after each check of them.
    void errorsCounted(int errors);
    // An import from CSV has just changed records anywhere in the game.
    void gameImported();

private:
    void CountErrors();
    void ShowChanges(QWidget* owner, const QString& since, const Game& before);
    QString ChooseFolder(QWidget* owner, const QString& title);
    void ShowTable(QPointer<TableWindow>& window, bool players, QWidget* owner);

    GameDocument& document_;
    // The errors only the bytes of the files show; they change when the
    // files do, not with the steps.
    int fileErrors_ = 0;
    QTimer recount_;
    QPointer<ProblemsWindow> problemsWindow_;
    QPointer<ChangesWindow> changesWindow_;
    QPointer<TableWindow> playersTable_;
    QPointer<TableWindow> teamsTable_;
};
