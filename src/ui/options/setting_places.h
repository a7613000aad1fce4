#pragma once

#include <QString>

// Where editor.dat, the one-line file naming the game's directory, is kept.
// It lives beside the executable; a user who cannot write there (an
// installed copy) keeps it in the per-user configuration folder instead.
struct SettingPlaces {
    QString besideExecutable;
    QString userConfig;

    static SettingPlaces ForThisProgram();

    // The file beside the executable when there is one, else the user's.
    QString PathToRead() const;
    // Beside the executable when that can be written, else the user's file,
    // whose folder is created on the way.
    QString PathToWrite() const;
};
