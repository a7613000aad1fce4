#include "options/folder_lists.h"

#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QStorageInfo>
#include <QStyle>
#include <algorithm>

#include "forms/beep.h"

namespace {

constexpr int PathRole = Qt::UserRole;

#ifdef Q_OS_WIN
constexpr Qt::CaseSensitivity FileNameCase = Qt::CaseInsensitive;
#else
constexpr Qt::CaseSensitivity FileNameCase = Qt::CaseSensitive;
#endif

QString CleanAbsolute(const QString& path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

bool IsReadableDirectory(const QString& path)
{
    const QFileInfo info(path);
    return info.isDir() && info.isReadable() && info.isExecutable();
}

// Whether `path` lies at or below `root`, judged by the text alone so that it
// also answers for paths that no longer exist.
bool LiesUnder(const QString& path, const QString& root)
{
    const QString prefix = root.endsWith(u'/') ? root : root + u'/';
    return path.compare(root, FileNameCase) == 0 || path.startsWith(prefix, FileNameCase);
}

QString DriveOf(const QString& directory)
{
    return QStorageInfo(directory).rootPath();
}

}  // namespace

DriveBox::DriveBox(QWidget* parent) : QComboBox(parent)
{
    QList<QStorageInfo> volumes = QStorageInfo::mountedVolumes();
    std::sort(volumes.begin(), volumes.end(), [](const QStorageInfo& a, const QStorageInfo& b) {
        return a.rootPath().compare(b.rootPath(), FileNameCase) < 0;
    });
    for (const QStorageInfo& volume : volumes) {
        // Single files mounted into a container are volumes too, but no drive.
        if (QFileInfo(volume.rootPath()).isDir())
            AddDrive(volume.rootPath(), volume.name());
    }
    AddDrive(QDir::rootPath());
    SetDrive(QDir::currentPath());
    connect(this, &QComboBox::currentIndexChanged, this, &DriveBox::driveChosen);
}

QString DriveBox::Drive() const
{
    return currentData(PathRole).toString();
}

void DriveBox::SetDrive(const QString& path)
{
    // The drive of a path is the listed root nearest above it: a volume
    // mounted inside another is a drive of its own.
    const QString target = CleanAbsolute(path);
    int best = -1;
    for (int row = 0; row < count(); ++row) {
        const QString root = itemData(row, PathRole).toString();
        if (LiesUnder(target, root) && (best < 0 || root.size() > itemData(best, PathRole).toString().size()))
            best = row;
    }
    if (best >= 0)
        setCurrentIndex(best);
}

void DriveBox::AddDrive(const QString& root, const QString& label)
{
    const QString clean = QDir::cleanPath(root);
    if (findData(clean, PathRole, Qt::MatchFixedString | Qt::MatchCaseSensitive) >= 0)
        return;
    const QString shown = QDir::toNativeSeparators(clean);
    addItem(label.isEmpty() ? shown : QStringLiteral("%1  [%2]").arg(shown, label), clean);
}

FolderTree::FolderTree(QWidget* parent) : QTreeWidget(parent)
{
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setExpandsOnDoubleClick(false);
    setUniformRowHeights(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    connect(this, &QTreeWidget::itemActivated, this,
            [this](const QTreeWidgetItem* item, int) { Open(item); });
    SetPath(QDir::currentPath());
}

bool FolderTree::SetPath(const QString& path)
{
    const QString target = CleanAbsolute(path);
    if (!IsReadableDirectory(target))
        return false;
    if (target == path_)
        return true;
    path_ = target;
    lastOpenOnDrive_.insert(DriveOf(path_), path_);
    Rebuild();
    emit folderOpened();
    return true;
}

bool FolderTree::OpenDrive(const QString& root)
{
    const QString last = lastOpenOnDrive_.value(QDir::cleanPath(root));
    return (!last.isEmpty() && SetPath(last)) || SetPath(root);
}

void FolderTree::keyPressEvent(QKeyEvent* event)
{
    // Enter opens the highlighted directory and goes no further: it must not
    // also press the window's OK button.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        Open(currentItem());
        event->accept();
        return;
    }
    QTreeWidget::keyPressEvent(event);
}

void FolderTree::Open(const QTreeWidgetItem* item)
{
    if (item && !SetPath(item->data(0, PathRole).toString()))
        Beep();
}

void FolderTree::Rebuild()
{
    clear();
    QStringList chain;
    for (QDir dir(path_);;) {
        chain.prepend(dir.absolutePath());
        if (dir.isRoot() || !dir.cdUp())
            break;
    }

    const QIcon openFolder = style()->standardIcon(QStyle::SP_DirOpenIcon);
    QTreeWidgetItem* parent = nullptr;
    for (const QString& directory : chain) {
        auto* item = parent ? new QTreeWidgetItem(parent) : new QTreeWidgetItem(this);
        const QString name = QFileInfo(directory).fileName();
        item->setText(0, name.isEmpty() ? QDir::toNativeSeparators(directory) : name);
        item->setIcon(0, openFolder);
        item->setData(0, PathRole, directory);
        parent = item;
    }

    const QIcon closedFolder = style()->standardIcon(QStyle::SP_DirClosedIcon);
    const QFileInfoList inside =
        QDir(path_).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
    for (const QFileInfo& directory : inside) {
        auto* item = new QTreeWidgetItem(parent);
        item->setText(0, directory.fileName());
        item->setIcon(0, closedFolder);
        item->setData(0, PathRole, directory.absoluteFilePath());
    }

    expandAll();
    setCurrentItem(parent);
    scrollToItem(parent);
}

FileNameList::FileNameList(QWidget* parent) : QListWidget(parent)
{
    setSelectionMode(QAbstractItemView::SingleSelection);
    SetPath(QDir::currentPath());
}

void FileNameList::SetPath(const QString& path)
{
    path_ = CleanAbsolute(path);
    Refill();
}

void FileNameList::SetPattern(const QString& pattern)
{
    pattern_ = pattern;
    Refill();
}

void FileNameList::Refill()
{
    clear();
    // Patterns match without regard to case, as on the game's own system;
    // whoever reads the list decides how exact a name must be.
    addItems(QDir(path_).entryList(pattern_.split(u';', Qt::SkipEmptyParts), QDir::Files,
                                   QDir::Name | QDir::IgnoreCase));
}
