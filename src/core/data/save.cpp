#include "data/save.h"

#include "data/names.h"
#include "data/players_file.h"
#include "data/teams_file.h"

FileResult SaveGame(Game& game)
{
    if (const auto fault = FirstUnstorableName(game)) {
        const std::string& path = fault->file == "players.dat" ? game.PlayersPath : game.TeamsPath;
        return {path, fault->description};
    }
    // Both files are tried before either is written, so that a read-only
    // teams.dat does not leave a new players.dat beside an old teams.dat.
    for (const std::string* path : {&game.PlayersPath, &game.TeamsPath}) {
        if (FileResult writable = CheckWritable(*path); !writable.ok())
            return writable;
    }
    if (!game.BackupsKept) {
        for (const std::string* path : {&game.PlayersPath, &game.TeamsPath}) {
            if (FileResult backup = KeepBackup(*path); !backup.ok())
                return backup;
        }
        game.BackupsKept = true;
    }
    // Squads and players name each other, so a new players.dat must not stand
    // beside an old teams.dat: both are written in full before either moves.
    if (FileResult players = WriteBeside(game.PlayersPath, WritePlayers(game)); !players.ok())
        return players;
    if (FileResult teams = WriteBeside(game.TeamsPath, WriteTeams(game)); !teams.ok()) {
        DropWritten(game.PlayersPath);
        return teams;
    }
    if (FileResult players = MoveOver(game.PlayersPath); !players.ok()) {
        DropWritten(game.TeamsPath);
        return players;
    }
    return MoveOver(game.TeamsPath);
}
