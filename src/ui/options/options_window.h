#pragma once

#include <QDialog>
#include <functional>

#include "options/setting_places.h"

class DriveBox;
class FileNameList;
class FolderTree;
class QLabel;
class QPushButton;

// Where the user tells the editor which directory holds the game's
// players.dat and teams.dat, kept in editor.dat for the next start. On the
// first start the window opens at the process's current directory; opened
// from the menu of a running editor it opens at the game's directory, and a
// directory chosen there is loaded before the window closes.
class OptionsWindow : public QDialog {
    Q_OBJECT
public:
    enum class Mode { FirstStart, ChangeDirectory };

    // `folder` is the game's directory; empty on the first start.
    OptionsWindow(std::string folder, SettingPlaces places, Mode mode, QWidget* parent = nullptr);

    // Whether the file list shows both "teams.dat" and "players.dat". The
    // names must match in case: the game itself opens them so.
    bool BothDataFilesListed() const;

    // The directory chosen on the first start; empty when none was.
    const std::string& ChosenFolder() const { return folder_; }

    // Asked before another folder replaces the game: false keeps the game
    // and this window as they are (the user cancelled, or a save failed).
    void SetLeaveGameCheck(std::function<bool()> mayLeave) { mayLeaveGame_ = std::move(mayLeave); }

signals:
    // From the menu: the user chose `folder`, which is to be loaded before
    // this window closes.
    void folderChosen(const std::string& folder);

private:
    void OnDriveChosen();
    void OnFolderOpened();
    // First start: keeps a good directory, or tells the user the editor ends.
    void OnFirstStartOk();
    // From the menu: only a good directory closes the window.
    void OnChangeDirectoryOk();

    // Keeps the game's directory in editor.dat for the next start; a failure
    // is told to the user and changes nothing else.
    void StoreSetting();

    std::string folder_;
    SettingPlaces places_;

    QLabel* filesNote_ = nullptr;
    DriveBox* driveList_ = nullptr;
    FolderTree* folderList_ = nullptr;
    FileNameList* fileList_ = nullptr;
    QPushButton* firstStartOkButton_ = nullptr;
    QPushButton* changeDirectoryOkButton_ = nullptr;
    std::function<bool()> mayLeaveGame_;
};

// Game paths are kept as the system's own bytes and separators.
std::string ToSystemPath(const QString& path);
QString FromSystemPath(const std::string& path);
