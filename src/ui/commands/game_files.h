#pragma once

#include <QMessageBox>
#include <QObject>
#include <QString>
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

signals:
    // The files were written.
    void saved();

private:
    // Opens the game in `folder`, says what became of a save cut off there
    // and whether another editor has it open. Gives why a file that is there
    // could not be read, if one could not.
    std::optional<QString> Open(const std::string& folder);
    // A folder that cannot be opened, or a file in it that was `refused`, is
    // told, with the offer to choose another folder.
    void OfferOtherFolder(const std::optional<QString>& refused, QWidget* owner);
    QMessageBox::StandardButton AskToSave();

    GameDocument& document_;
    SettingPlaces places_;
};
