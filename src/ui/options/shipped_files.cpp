#include "options/shipped_files.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStringList>

namespace {
const QString DataFolder = QStringLiteral("kolta-editor");
}

QString ShippedFile(const QString& name)
{
    const QDir programFolder(QCoreApplication::applicationDirPath());
    const QString beside = programFolder.absoluteFilePath(name);
    if (QFileInfo::exists(beside))
        return beside;
    // An installed copy finds its share/ folder from where it stands, so a
    // package unpacked anywhere works as well as one installed under /usr.
    const QString installed =
        QDir::cleanPath(programFolder.absoluteFilePath(QStringLiteral("../share/") + DataFolder + '/' + name));
    if (QFileInfo::exists(installed))
        return installed;
    const QString located = QStandardPaths::locate(QStandardPaths::GenericDataLocation, DataFolder + '/' + name);
    return located.isEmpty() ? beside : located;
}

bool ReportShippedFiles(QTextStream& out)
{
    bool allFound = true;
    for (const QString& name : {QStringLiteral("help.txt"), QStringLiteral("guide.html"),
                                QStringLiteral("file-formats.html")}) {
        const QString path = ShippedFile(name);
        const bool found = QFileInfo::exists(path);
        allFound = allFound && found;
        out << name << ": " << QDir::toNativeSeparators(path) << (found ? "" : " (missing)") << '\n';
    }
    return allFound;
}
