#include "options/setting_places.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {
const QString SettingFileName = QStringLiteral("editor.dat");
}

SettingPlaces SettingPlaces::ForThisProgram()
{
    const QString configFolder = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
    return {QDir(QCoreApplication::applicationDirPath()).filePath(SettingFileName),
            QDir(configFolder).filePath(SettingFileName)};
}

QString SettingPlaces::PathToRead() const
{
    return QFileInfo::exists(besideExecutable) ? besideExecutable : userConfig;
}

QString SettingPlaces::PathToWrite() const
{
    const QFileInfo beside(besideExecutable);
    const bool canWriteBeside =
        beside.exists() ? beside.isWritable() : QFileInfo(beside.absolutePath()).isWritable();
    if (canWriteBeside)
        return besideExecutable;
    QDir().mkpath(QFileInfo(userConfig).absolutePath());
    return userConfig;
}
