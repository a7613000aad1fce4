#include "options/web_pages.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>

#include "forms/message_box.h"
#include "options/shipped_files.h"

namespace {

PageOpener& Opener()
{
    static PageOpener opener;
    return opener;
}

}  // namespace

QUrl UserGuidePage()
{
    return QUrl::fromLocalFile(ShippedFile(QStringLiteral("guide.html")));
}

QUrl FileFormatsPage()
{
    return QUrl::fromLocalFile(ShippedFile(QStringLiteral("file-formats.html")));
}

void OpenWebPage(const QUrl& page)
{
    const QString path = QDir::toNativeSeparators(page.toLocalFile());
    if (page.isLocalFile() && !QFileInfo::exists(page.toLocalFile())) {
        ShowMessage(QMessageBox::Information, QStringLiteral("Help"),
                    QStringLiteral("The page %1 is missing. It belongs in the editor's folder.").arg(path));
        return;
    }
    const bool opened = Opener() ? Opener()(page) : QDesktopServices::openUrl(page);
    if (!opened) {
        ShowMessage(QMessageBox::Information, QStringLiteral("Help"),
                    QStringLiteral("No web browser could be started for %1.").arg(path));
    }
}

void SetPageOpener(PageOpener opener)
{
    Opener() = std::move(opener);
}
