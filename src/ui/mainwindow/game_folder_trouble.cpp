#include "mainwindow/game_folder_trouble.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

std::optional<QString> GameFolderTrouble(const QString& folder)
{
    const QFileInfo where(folder);
    const QString shown = QDir::toNativeSeparators(folder);
    if (!where.exists())
        return QStringLiteral("The game folder %1 does not exist.").arg(shown);
    if (!where.isDir())
        return QStringLiteral("The game folder %1 is not a folder.").arg(shown);
    for (const char* name : {"players.dat", "teams.dat"}) {
        QFile file(QDir(folder).filePath(QLatin1String(name)));
        if (!file.exists())
            return QStringLiteral("The game folder %1 holds no %2.").arg(shown, QLatin1String(name));
        if (!file.open(QIODevice::ReadOnly))
            return QStringLiteral("%1 in the game folder %2 cannot be read: %3.").arg(QLatin1String(name), shown, file.errorString());
    }
    return std::nullopt;
}
