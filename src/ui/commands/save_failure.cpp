#include "commands/save_failure.h"

#include <QDir>
#include <QFile>

FilesBeforeSave::FilesBeforeSave(const Game& game)
    : playersPath_(game.PlayersPath), teamsPath_(game.TeamsPath),
      players_(ReadWholeFile(playersPath_)), teams_(ReadWholeFile(teamsPath_))
{
}

QString FilesBeforeSave::FailureText(const FileResult& result) const
{
    const bool playersKept = ReadWholeFile(playersPath_) == players_;
    const bool teamsKept = ReadWholeFile(teamsPath_) == teams_;
    QString outcome;
    if (playersKept && teamsKept)
        outcome = QStringLiteral("Neither players.dat nor teams.dat was changed.");
    else if (playersKept || teamsKept)
        outcome = QStringLiteral("%1 was written but %2 was not, so the two no longer belong together: "
                                 "save again once the fault is put right.")
                      .arg(playersKept ? QStringLiteral("teams.dat") : QStringLiteral("players.dat"),
                           playersKept ? QStringLiteral("players.dat") : QStringLiteral("teams.dat"));
    else
        outcome = QStringLiteral("Both files were written.");
    return QStringLiteral("Could not save %1:\n%2\n\n%3 Your changes are still in the editor.")
        .arg(QDir::toNativeSeparators(QString::fromStdString(result.path)), QString::fromStdString(result.reason),
             outcome);
}
