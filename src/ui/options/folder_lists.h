#pragma once

#include <QComboBox>
#include <QHash>
#include <QListWidget>
#include <QString>
#include <QTreeWidget>

// The three lists of the directory chooser, read straight from the file
// system. Each starts at the process's current directory.

// The machine's drives. Where there are no drive letters these are the root
// and the mounted volumes; Drive() is the root of the chosen one.
class DriveList : public QComboBox {
    Q_OBJECT
public:
    explicit DriveList(QWidget* parent = nullptr);

    QString Drive() const;
    // Chooses the drive that holds `path`. Change runs if that is another drive.
    void SetDrive(const QString& path);
    // Lists a drive the system did not report, such as a network share.
    void AddDrive(const QString& root, const QString& label = {});

signals:
    // The chosen drive changed, by the user or by SetDrive.
    void Change();
};

// The open directory, the directories above it, and the directories inside
// it. Opening one (double-click or Enter) makes it the Path; a single click
// only highlights it.
class DirList : public QTreeWidget {
    Q_OBJECT
public:
    explicit DirList(QWidget* parent = nullptr);

    QString Path() const { return path_; }
    // Opens `path`. False, with the list left as it was, when the directory
    // can't be read.
    bool SetPath(const QString& path);
    // Opens the directory last open on the drive whose root this is, or the
    // root itself, as choosing a drive letter does.
    bool OpenDrive(const QString& root);

signals:
    // Path changed, by the user or by code.
    void Change();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Open(const QTreeWidgetItem* item);
    void Rebuild();

    QString path_;
    QHash<QString, QString> lastOpenOnDrive_;
};

// The files of one directory whose names match a pattern ("*.dat", or
// several joined by ";"), in order of name.
class FileList : public QListWidget {
    Q_OBJECT
public:
    explicit FileList(QWidget* parent = nullptr);

    QString Path() const { return path_; }
    void SetPath(const QString& path);
    QString Pattern() const { return pattern_; }
    void SetPattern(const QString& pattern);

    int ListCount() const { return count(); }
    QString List(int index) const;   // empty outside the list

private:
    void Refill();

    QString path_;
    QString pattern_ = QStringLiteral("*");
};
