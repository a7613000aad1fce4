#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include "data/game.h"

class ChangesWindow;
class GameDocument;
class ProblemsWindow;
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

    void FindPlayer(QWidget* owner);
    void CheckGame(QWidget* owner);
    void ChangesSinceSave(QWidget* owner);
    void ChangesSinceOriginal(QWidget* owner);
    // The originals appear with the first save in a folder.
    bool HasOriginals() const;
    void ExportCsv(QWidget* owner);
    void ImportCsv(QWidget* owner);

signals:
    void playerChosen(int number);
    void teamChosen(int number);
    // How many errors the files hold, after each check of them.
    void errorsCounted(int errors);
    // An import from CSV has just changed records anywhere in the game.
    void gameImported();

private:
    void ShowChanges(QWidget* owner, const QString& since, const Game& before);
    QString ChooseFolder(QWidget* owner, const QString& title);

    GameDocument& document_;
    QPointer<ProblemsWindow> problemsWindow_;
    QPointer<ChangesWindow> changesWindow_;
};
