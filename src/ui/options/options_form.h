#pragma once

#include <QDialog>
#include <array>

#include "data/game.h"
#include "mainwindow/setting_places.h"

class DirList;
class DriveList;
class FileList;
class QLabel;
class QPushButton;

// opt1: where the user tells the editor which directory holds the game's
// players.dat and teams.dat. Two OK buttons share one spot: Command1 on the
// first start, Command2 when the window is opened from the menu of a running
// editor, which then loads the new directory.
class OptionsForm : public QDialog {
    Q_OBJECT
public:
    OptionsForm(Game& game, SettingPlaces places, QWidget* parent = nullptr);

    void Drive1_Change();
    void Dir1_Change();
    void Command1_Click();
    void Command2_Click();

    // Whether File1 lists both "teams.dat" and "players.dat". The names must
    // match in case: the game itself opens them so.
    bool BothDataFilesListed() const;

    std::array<QLabel*, 2> Label2{};
    DriveList* Drive1 = nullptr;
    DirList* Dir1 = nullptr;
    FileList* File1 = nullptr;
    QPushButton* Command1 = nullptr;
    QPushButton* Command2 = nullptr;

signals:
    // Command2 has pointed the game at a new directory; the main window
    // loads it before the window closes.
    void GameDirectoryChanged();

private:
    // Keeps the game's directory in editor.dat for the next start; a failure
    // is told to the user and changes nothing else.
    void StoreSetting();

    Game& game_;
    SettingPlaces places_;
};

// Game paths go to the core as UTF-8 with the system's own separators.
std::string ToSystemPath(const QString& path);
QString FromSystemPath(const std::string& path);
