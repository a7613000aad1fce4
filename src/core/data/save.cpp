#include "data/save.h"

#include <filesystem>
#include <functional>

#include "data/folder_lock.h"
#include "data/names.h"
#include "data/pair_commit.h"
#include "data/players_file.h"
#include "data/teams_file.h"

namespace {

std::string FolderOf(const std::string& path)
{
    const std::filesystem::path file = NativePath(path);
    return file.has_parent_path() ? PathText(file.parent_path()) : std::string(".");
}

}  // namespace

FileResult SaveGame(Game& game, bool dropConfirmed, OtherChanges otherChanges)
{
    if (!game.LoadDropped.empty() && !dropConfirmed)
        return {game.PlayersPath, "saving would lose what the load could not keep: " + game.LoadDropped};
    if (const auto fault = FirstUnstorableName(game)) {
        const std::string& path = fault->file == "players.dat" ? game.PlayersPath : game.TeamsPath;
        return {path, fault->description};
    }
    // Both files are tried before either is written.
    for (const std::string* path : {&game.PlayersPath, &game.TeamsPath}) {
        if (FileResult writable = CheckWritable(*path); !writable.ok())
            return writable;
    }
    const std::string folder = FolderOf(game.PlayersPath);
    const FolderLock lock(folder, WriterPatience);
    if (!lock.Held())
        return {game.PlayersPath, lock.Reason()};
    RecoverPair(folder);
    if (otherChanges == OtherChanges::Refuse && FilesChangedSinceLoaded(game))
        return {game.PlayersPath, "the files were changed by another program since they were loaded; "
                                  "nothing was changed"};
    const PairSave save{folder, game.PlayersPath, game.TeamsPath, WritePlayers(game), WriteTeams(game),
                        !game.BackupsKept};
    FileResult result = CommitPair(save);
    if (result.ok()) {
        game.BackupsKept = true;
        game.LoadDropped.clear();
        game.LoadedStamp = GameFilesStamp(save.playersBytes, save.teamsBytes);
    }
    return result;
}

bool FilesChangedSinceLoaded(const Game& game)
{
    return !game.LoadedStamp.empty() && GameFilesStamp(game) != game.LoadedStamp;
}

std::string GameFilesStamp(const std::string& playersBytes, const std::string& teamsBytes)
{
    const std::hash<std::string> hash;
    return std::to_string(playersBytes.size()) + '-' + std::to_string(hash(playersBytes)) + '/' +
           std::to_string(teamsBytes.size()) + '-' + std::to_string(hash(teamsBytes));
}

std::string GameFilesStamp(const Game& game)
{
    const FileBytes players = ReadFileBytes(game.PlayersPath);
    const FileBytes teams = ReadFileBytes(game.TeamsPath);
    return GameFilesStamp(players.ok() ? players.bytes : "?" + players.reason,
                          teams.ok() ? teams.bytes : "?" + teams.reason);
}

std::string RecoverInterruptedSave(const std::string& folder)
{
    std::error_code error;
    if (!std::filesystem::is_directory(NativePath(folder), error))
        return {};
    const FolderLock lock(folder, WriterPatience);
    if (lock.Busy())
        return "another program was still saving in this folder; the files were read as they stood";
    // A folder that cannot be locked cannot be written either: nothing to put right.
    return lock.Held() ? RecoverPair(folder) : std::string{};
}
