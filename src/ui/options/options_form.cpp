#include "options/options_form.h"

#include <QDir>
#include <QLabel>
#include <QPushButton>

#include "data/setting_file.h"
#include "forms/message_box.h"
#include "forms/fitted_layout.h"
#include "options/folder_lists.h"

namespace {

// Client area of the window, in twips.
constexpr int AreaWidth = 4740;
constexpr int AreaHeight = 4485;

const QString TeamsFileName = QStringLiteral("teams.dat");
const QString PlayersFileName = QStringLiteral("players.dat");

template <typename Control>
Control* Place(FittedLayout& at, Control* control, const char* name, QRect twips, bool mustFit = false)
{
    control->setObjectName(QString::fromLatin1(name));
    return at.Put(control, twips, mustFit);
}

// A caption of one line must fit its width; a longer one wraps inside its box.
QLabel* MakeLabel(FittedLayout& at, QWidget* form, const char* name, const QString& caption, QRect twips,
                  bool wraps)
{
    auto* label = Place(at, new QLabel(caption, form), name, twips, !wraps);
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

OptionsForm::OptionsForm(Game& game, SettingPlaces places, QWidget* parent)
    : QDialog(parent), game_(game), places_(std::move(places))
{
    setObjectName(QStringLiteral("opt1"));
    setWindowTitle(QStringLiteral("Options"));
    FittedLayout at(this, {AreaWidth, AreaHeight});

    Label2[1] = MakeLabel(at, this, "Label2(1)", QStringLiteral("Set your Default KOLTA directory :-"),
                          QRect(180, 180, 3735, 315), false);
    Label2[0] = MakeLabel(
        at, this, "Label2(0)",
        QStringLiteral("Please note that the files Players.dat and teams.dat must be present in the directory."),
        QRect(180, 480, 3735, 435), true);

    Drive1 = Place(at, new DriveList(this), "Drive1", QRect(180, 960, 1935, 315));
    Dir1 = Place(at, new DirList(this), "Dir1", QRect(180, 1380, 2295, 2340));
    File1 = Place(at, new FileList(this), "File1", QRect(2640, 1380, 2055, 2430));
    File1->SetPattern(QStringLiteral("*.dat"));

    Command1 = Place(at, new QPushButton(QStringLiteral("OK"), this), "Command1", QRect(1620, 3960, 1455, 375), true);
    Command2 = Place(at, new QPushButton(QStringLiteral("OK"), this), "Command2", QRect(1620, 3960, 1455, 375), true);
    Command2->hide();
    at.Apply();

    connect(Drive1, &DriveList::Change, this, &OptionsForm::Drive1_Change);
    connect(Dir1, &DirList::Change, this, &OptionsForm::Dir1_Change);
    connect(Command1, &QPushButton::clicked, this, &OptionsForm::Command1_Click);
    connect(Command2, &QPushButton::clicked, this, &OptionsForm::Command2_Click);
}

bool OptionsForm::BothDataFilesListed() const
{
    bool teamsSeen = false;
    bool playersSeen = false;
    for (int i = 0; i < File1->ListCount() && !(teamsSeen && playersSeen); ++i) {
        const QString name = File1->List(i);
        teamsSeen = teamsSeen || name == TeamsFileName;
        playersSeen = playersSeen || name == PlayersFileName;
    }
    return teamsSeen && playersSeen;
}

void OptionsForm::Drive1_Change()
{
    // A drive with nothing readable in it leaves the directory list where it
    // was; the drive list goes on naming the drive that failed.
    if (!Dir1->OpenDrive(Drive1->Drive()))
        MsgBox(QStringLiteral("Error reading Drive"), MbCritical, QStringLiteral("Error"));
}

void OptionsForm::Dir1_Change()
{
    File1->SetPath(Dir1->Path());
    Label2[0]->setText(BothDataFilesListed()
                           ? QStringLiteral("Files teams.dat and players.dat found in this directory.")
                           : QStringLiteral("Files teams.dat and players.dat NOT found in current directory."));
}

void OptionsForm::Command1_Click()
{
    if (BothDataFilesListed()) {
        SetGameDirectory(game_, ToSystemPath(Dir1->Path()));
        StoreSetting();
    } else {
        MsgBox(QStringLiteral("teams.dat and players.dat not found in current directory.KOLTA ed will exit."),
               MbCritical, QStringLiteral("Error"));
    }
    accept();
}

void OptionsForm::Command2_Click()
{
    if (!BothDataFilesListed()) {
        MsgBox(QStringLiteral("teams.dat and players.dat not found in current directory."), MbCritical,
               QStringLiteral("Error"));
        return;
    }
    SetGameDirectory(game_, ToSystemPath(Dir1->Path()));
    StoreSetting();
    emit GameDirectoryChanged();
    accept();
}

void OptionsForm::StoreSetting()
{
    const QString settingFile = places_.PathToWrite();
    const FileResult stored = WriteSettingFile(ToSystemPath(settingFile), game_.GameDirectory);
    if (stored.ok())
        return;
    MsgBox(QStringLiteral("The game directory could not be kept in %1: %2.\n\n"
                          "The editor uses this directory until it closes; the next start will not know of it.")
               .arg(QDir::toNativeSeparators(settingFile), QString::fromLocal8Bit(stored.reason)),
           MbExclamation, QStringLiteral("Options"));
}
