#include "commands/game_folder_trouble.h"

#include <QDir>
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
        if (!QFileInfo::exists(QDir(folder).filePath(QLatin1String(name))))
            return QStringLiteral("The game folder %1 holds no %2.").arg(shown, QLatin1String(name));
    }
    return std::nullopt;
}
