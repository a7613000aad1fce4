#include "options/web_pages.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>

#include "forms/message_box.h"

namespace {

PageOpener& Opener()
{
    static PageOpener opener;
    return opener;
}

QUrl PageBesideProgram(const QString& name)
{
    return QUrl::fromLocalFile(QDir(QCoreApplication::applicationDirPath()).absoluteFilePath(name));
}

}  // namespace

QUrl UserGuidePage()
{
    return PageBesideProgram(QStringLiteral("guide.html"));
}

QUrl FileFormatsPage()
{
    return PageBesideProgram(QStringLiteral("file-formats.html"));
}

void OpenWebPage(const QUrl& page)
{
    const QString path = QDir::toNativeSeparators(page.toLocalFile());
    if (page.isLocalFile() && !QFileInfo::exists(page.toLocalFile())) {
        MsgBox(QStringLiteral("The page %1 is missing. It belongs in the editor's folder.").arg(path),
               MbInformation, QStringLiteral("Help"));
        return;
    }
    const bool opened = Opener() ? Opener()(page) : QDesktopServices::openUrl(page);
    if (!opened) {
        MsgBox(QStringLiteral("No web browser could be started for %1.").arg(path), MbInformation,
               QStringLiteral("Help"));
    }
}

void SetPageOpener(PageOpener opener)
{
    Opener() = std::move(opener);
}
