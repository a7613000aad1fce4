#include "options/options_window.h"

#include <QDir>
#include <QLabel>
#include <QPushButton>

#include "data/setting_file.h"
#include "forms/fitted_layout.h"
#include "forms/message_box.h"
#include "options/folder_lists.h"

namespace {

// Client area of the window, as designed.
constexpr int AreaWidth = 4740;
constexpr int AreaHeight = 4485;

const QString TeamsFileName = QStringLiteral("teams.dat");
const QString PlayersFileName = QStringLiteral("players.dat");

template <typename Control>
Control* Place(FittedLayout& at, Control* control, const char* name, QRect designed, bool mustFit = false)
{
    control->setObjectName(QString::fromLatin1(name));
    return at.Put(control, designed, mustFit);
}

// A caption of one line must fit its width; a longer one wraps inside its box.
QLabel* MakeLabel(FittedLayout& at, QWidget* form, const char* name, const QString& caption, QRect designed, bool wraps)
{
    auto* label = Place(at, new QLabel(caption, form), name, designed, !wraps);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setWordWrap(wraps);
    return label;
}

}  // namespace

std::string ToSystemPath(const QString& path)
{
    return QDir::toNativeSeparators(path).toStdString();
}

QString FromSystemPath(const std::string& path)
{
    return QDir::fromNativeSeparators(QString::fromStdString(path));
}

OptionsWindow::OptionsWindow(std::string folder, SettingPlaces places, Mode mode, QWidget* parent)
    : QDialog(parent), folder_(std::move(folder)), places_(std::move(places))
{
    setObjectName(QStringLiteral("optionsWindow"));
    setWindowTitle(QStringLiteral("Options"));
    FittedLayout at(this, {AreaWidth, AreaHeight});

    MakeLabel(at, this, "heading", QStringLiteral("Set your Default KOLTA directory :-"), QRect(180, 180, 3735, 315),
              false);
    filesNote_ = MakeLabel(
        at, this, "filesNote",
        QStringLiteral("Please note that the files Players.dat and teams.dat must be present in the directory."),
        QRect(180, 480, 3735, 435), true);

    driveList_ = Place(at, new DriveBox(this), "driveList", QRect(180, 960, 1935, 315));
    folderList_ = Place(at, new FolderTree(this), "folderList", QRect(180, 1380, 2295, 2340));
    fileList_ = Place(at, new FileNameList(this), "fileList", QRect(2640, 1380, 2055, 2430));
    fileList_->SetPattern(QStringLiteral("*.dat"));

    // Two OK buttons share one spot; the mode shows one of them.
    firstStartOkButton_ = Place(at, new QPushButton(QStringLiteral("OK"), this), "firstStartOkButton",
                                QRect(1620, 3960, 1455, 375), true);
    changeDirectoryOkButton_ = Place(at, new QPushButton(QStringLiteral("OK"), this), "changeDirectoryOkButton",
                                     QRect(1620, 3960, 1455, 375), true);
    changeDirectoryOkButton_->hide();
    at.Apply();

    connect(driveList_, &DriveBox::driveChosen, this, &OptionsWindow::OnDriveChosen);
    connect(folderList_, &FolderTree::folderOpened, this, &OptionsWindow::OnFolderOpened);
    connect(firstStartOkButton_, &QPushButton::clicked, this, &OptionsWindow::OnFirstStartOk);
    connect(changeDirectoryOkButton_, &QPushButton::clicked, this, &OptionsWindow::OnChangeDirectoryOk);

    if (mode == Mode::ChangeDirectory) {
        firstStartOkButton_->hide();
        changeDirectoryOkButton_->show();
        folderList_->SetPath(FromSystemPath(folder_));
        driveList_->SetDrive(folderList_->Path());
        folderList_->SetPath(fileList_->Path());
    }
}

bool OptionsWindow::BothDataFilesListed() const
{
    bool teamsSeen = false;
    bool playersSeen = false;
    for (int i = 0; i < fileList_->count() && !(teamsSeen && playersSeen); ++i) {
        const QString name = fileList_->item(i)->text();
        teamsSeen = teamsSeen || name == TeamsFileName;
        playersSeen = playersSeen || name == PlayersFileName;
    }
    return teamsSeen && playersSeen;
}

void OptionsWindow::OnDriveChosen()
{
    // A drive with nothing readable in it leaves the directory list where it
    // was; the drive list goes on naming the drive that failed.
    if (!folderList_->OpenDrive(driveList_->Drive()))
        ShowMessage(QMessageBox::Critical, QStringLiteral("Error"), QStringLiteral("Error reading Drive"));
}

void OptionsWindow::OnFolderOpened()
{
    fileList_->SetPath(folderList_->Path());
    filesNote_->setText(BothDataFilesListed()
                           ? QStringLiteral("Files teams.dat and players.dat found in this directory.")
                           : QStringLiteral("Files teams.dat and players.dat NOT found in current directory."));
}

void OptionsWindow::OnFirstStartOk()
{
    if (BothDataFilesListed()) {
        folder_ = ToSystemPath(folderList_->Path());
        StoreSetting();
    } else {
        ShowMessage(QMessageBox::Critical, QStringLiteral("Error"),
                    QStringLiteral("teams.dat and players.dat not found in current directory.KOLTA ed will exit."));
    }
    accept();
}

void OptionsWindow::OnChangeDirectoryOk()
{
    if (!BothDataFilesListed()) {
        ShowMessage(QMessageBox::Critical, QStringLiteral("Error"),
                    QStringLiteral("teams.dat and players.dat not found in current directory."));
        return;
    }
    if (mayLeaveGame_ && !mayLeaveGame_())
        return;
    folder_ = ToSystemPath(folderList_->Path());
    StoreSetting();
    emit folderChosen(folder_);
    accept();
}

void OptionsWindow::StoreSetting()
{
    const QString settingFile = places_.PathToWrite();
    const FileResult stored = WriteSettingFile(ToSystemPath(settingFile), folder_);
    if (stored.ok())
        return;
    ShowMessage(QMessageBox::Warning, QStringLiteral("Options"),
                QStringLiteral("The game directory could not be kept in %1: %2.\n\n"
                               "The editor uses this directory until it closes; the next start will not know of it.")
                    .arg(QDir::toNativeSeparators(settingFile), QString::fromLocal8Bit(stored.reason)));
}
