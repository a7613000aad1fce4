#pragma once

#include <QComboBox>
#include <QHash>
#include <QListWidget>
#include <QString>
#include <QTreeWidget>

// The three views of the directory chooser, read straight from the file
// system. Each starts at the process's current directory.

// The machine's drives. Where there are no drive letters these are the root
// and the mounted volumes; Drive() is the root of the chosen one.
class DriveBox : public QComboBox {
    Q_OBJECT
public:
    explicit DriveBox(QWidget* parent = nullptr);

    QString Drive() const;
    // Chooses the drive that holds `path`; driveChosen follows if that is
    // another drive.
    void SetDrive(const QString& path);
    // Lists a drive the system did not report, such as a network share.
    void AddDrive(const QString& root, const QString& label = {});

signals:
    // The chosen drive changed, by the user or by SetDrive.
    void driveChosen();
};

// The open folder, the folders above it, and the folders inside it. Opening
// one (double-click or Enter) makes it the Path; a single click only
// highlights it.
class FolderTree : public QTreeWidget {
    Q_OBJECT
public:
    explicit FolderTree(QWidget* parent = nullptr);

    QString Path() const { return path_; }
    // Opens `path`. False, with the list left as it was, when the directory
    // can't be read.
    bool SetPath(const QString& path);
    // Opens the directory last open on the drive whose root this is, or the
    // root itself, as choosing a drive letter does.
    bool OpenDrive(const QString& root);

signals:
    // Path changed, by the user or by code.
    void folderOpened();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Open(const QTreeWidgetItem* item);
    void Rebuild();

    QString path_;
    QHash<QString, QString> lastOpenOnDrive_;
};

// The files of one folder whose names match a pattern ("*.dat", or several
// joined by ";"), in order of name.
class FileNameList : public QListWidget {
    Q_OBJECT
public:
    explicit FileNameList(QWidget* parent = nullptr);

    QString Path() const { return path_; }
    void SetPath(const QString& path);
    QString Pattern() const { return pattern_; }
    void SetPattern(const QString& pattern);

private:
    void Refill();

    QString path_;
    QString pattern_ = QStringLiteral("*");
};
