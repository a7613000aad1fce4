#pragma once

#include <QFileSystemWatcher>
#include <QMessageBox>
#include <QObject>
#include <QString>
#include <QTimer>
#include <optional>
#include <string>

#include "options/setting_places.h"

class GameDocument;
class QWidget;

// The game's files as the user works them: the start-up, a change of folder,
// saving, and the questions before unsaved changes could be lost. A command
// that opens a window opens it over `owner`.
class GameFiles : public QObject {
    Q_OBJECT
public:
    GameFiles(GameDocument& document, SettingPlaces places);

    // Reads the setting and opens the game it names, asking for the folder
    // first when none is known. A game that cannot be opened is told, with
    // the offer to choose another folder. False when there is still no
    // folder: the program ends.
    bool Start(QWidget* owner);
    // What the start leaves until the window is first shown: marks the
    // folder as open in this editor and watches its files.
    void FinishStart();
    // File > Options: the chooser, and the game of the folder chosen there.
    void ChooseFolder(QWidget* owner);

    // Saves both files and says how it went; false when nothing was saved.
    bool Save();
    // With unsaved changes, asks whether to save them first; false when the
    // user cancels or the save fails.
    bool MayLeaveGame();
    // Exit asks whether to save even with nothing changed; false when the
    // user cancels or the save fails.
    bool MayExit();

    // Reads the files as another program saved them, asking first when
    // there are unsaved changes; false when the user keeps his.
    bool ReloadTheirs();
    // The user keeps what he has: the files as they are now are not told
    // again. A save asks before it writes over them.
    void KeepMine();

signals:
    // The files were written.
    void saved();
    // Whether another program has changed the files since the editor last
    // read or wrote them, each time that turns.
    void changedElsewhere(bool changed);

private:
    // Opens the game in `folder`, says what became of a save cut off there
    // and whether another editor has it open. Gives why a file that is there
    // could not be read, if one could not.
    std::optional<QString> Open(const std::string& folder);
    // Marks the folder as open in this editor, says whether another editor
    // has it open too, and watches the files.
    void ClaimFolder();
    // Looks at the files once the changes to them have settled.
    void LookAtFiles();
    void TellChangedElsewhere(bool changed);
    // A folder that cannot be opened, or a file in it that was `refused`, is
    // told, with the offer to choose another folder.
    void OfferOtherFolder(const std::optional<QString>& refused, QWidget* owner);
    QMessageBox::StandardButton AskToSave();

    GameDocument& document_;
    SettingPlaces places_;
    // The folder and both files, watched for another program's saves; a save
    // renames files and moves them out of the watch, so they are watched again
    // after each change.
    QFileSystemWatcher watcher_;
    QTimer settling_;
    bool claimed_ = false;   // the start is finished; a new folder is claimed at once
    bool toldChanged_ = false;
    std::string keptStamp_;   // the other program's files the user chose to keep his over
};
