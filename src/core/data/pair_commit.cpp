#include "data/pair_commit.h"

#include <filesystem>
#include <optional>
#include <vector>

#include "data/file_steps.h"

namespace fs = std::filesystem;

namespace {

CommitStepHook stepHook = nullptr;

void Step(std::string_view name)
{
    if (stepHook)
        stepHook(name);
}

// One move of the commit: `from`, a complete temporary file, over `to`.
struct Move {
    char kind;         // 'm' a game file, 'b' a .bak, 'o' an .orig
    std::string from;
    std::string to;
    std::string prev;  // for a game file: its old contents, or empty when it had none
};

constexpr std::string_view RecordTag = "kolta pair commit 1";

std::string Serialize(const std::vector<Move>& moves)
{
    std::string text(RecordTag);
    text += '\0';
    for (const Move& move : moves) {
        text += move.kind;
        for (const std::string* field : {&move.from, &move.to, &move.prev})
            (text += '\0') += *field;
        text += '\0';
    }
    return text + "end";
}

// Nothing when the record is not one this program wrote whole.
std::optional<std::vector<Move>> Parse(const std::string& text)
{
    std::vector<std::string> fields;
    std::size_t start = 0;
    for (std::size_t end; (end = text.find('\0', start)) != std::string::npos; start = end + 1)
        fields.push_back(text.substr(start, end - start));
    if (text.substr(start) != "end" || fields.empty() || fields[0] != RecordTag || (fields.size() - 1) % 4 != 0)
        return std::nullopt;
    std::vector<Move> moves;
    for (std::size_t i = 1; i < fields.size(); i += 4) {
        if (fields[i].size() != 1)
            return std::nullopt;
        moves.push_back({fields[i][0], fields[i + 1], fields[i + 2], fields[i + 3]});
    }
    return moves;
}

std::string Named(const std::string& folder, const char* name)
{
    return JoinPath(folder, name);
}

// Puts back what the moves already made to the game files, and drops the
// temporary files of those not made. A .bak or .orig pair of which only one
// half moved is removed whole. The reason of the first failure, or empty.
std::string Undo(const std::vector<Move>& moves)
{
    std::string reason;
    const auto note = [&reason](std::string failure) {
        if (reason.empty())
            reason = std::move(failure);
    };
    for (const char kind : {'b', 'o'}) {
        int moved = 0, kept = 0;
        for (const Move& move : moves) {
            if (move.kind == kind)
                (Exists(move.from) ? kept : moved) += 1;
        }
        for (const Move& move : moves) {
            if (move.kind != kind)
                continue;
            RemoveFile(move.from);
            if (moved > 0 && kept > 0)
                RemoveFile(move.to);
        }
    }
    for (const Move& move : moves) {
        if (move.kind != 'm')
            continue;
        if (Exists(move.from)) {
            RemoveFile(move.from);
        } else if (move.prev.empty()) {
            if (std::string failure = RemoveFile(move.to); !failure.empty())
                note(move.to + ": " + failure);
        } else {
            const std::string restoring = TemporaryName(move.to, "restoring");
            std::string failure = LinkOrCopy(move.prev, restoring);
            if (failure.empty())
                failure = MoveReplacing(restoring, move.to);
            if (!failure.empty()) {
                RemoveFile(restoring);
                note(move.to + ": " + failure);
            }
        }
    }
    return reason;
}

// Makes every move not made yet; the first that fails stops it, with its reason.
FileResult Apply(const std::vector<Move>& moves)
{
    for (const Move& move : moves) {
        if (!Exists(move.from))
            continue;  // made before the save was cut off
        if (move.kind == 'o' && Exists(move.to)) {
            RemoveFile(move.from);  // an .orig is never replaced
            continue;
        }
        if (std::string reason = MoveReplacing(move.from, move.to); !reason.empty())
            return {move.to, reason};
        Step("moved " + PathText(NativePath(move.to).filename()));
    }
    return FileResult::Success({});
}

std::string WriteRecord(const std::string& folder, const std::vector<Move>& moves)
{
    const std::string record = CommitRecordPath(folder);
    const std::string writing = TemporaryName(record, "saving");
    std::string reason = WriteNewFile(writing, Serialize(moves));
    if (reason.empty())
        reason = MoveReplacing(writing, record);
    if (!reason.empty())
        RemoveFile(writing);
    return reason;
}

std::string RemoveRecord(const std::string& folder)
{
    std::string reason = RemoveFile(CommitRecordPath(folder));
    SyncFolder(folder);
    return reason;
}

// Temporary files of saves that died before their record, and the half of a
// side pair whose other half is missing. This process's own temporary names
// are left to it: it writes them afresh.
void ClearLeftovers(const std::string& folder)
{
    const std::string own = PathText(NativePath(TemporaryName("", "")).filename());
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(NativePath(folder), error)) {
        const std::string name = PathText(entry.path().filename());
        if (name.ends_with(own.substr(own.rfind('-'))))
            continue;
        for (const char* prefix : {"players.dat.", "teams.dat.", "kolta-save.commit."}) {
            const std::string start = prefix;
            if (name.starts_with(start) && (name.find(".saving-", start.size() - 1) != std::string::npos ||
                                            name.find(".restoring-", start.size() - 1) != std::string::npos))
                RemoveFile(PathText(entry.path()));
        }
    }
    for (const char* suffix : {".bak", ".orig", ".prev"}) {
        const std::string players = Named(folder, "players.dat") + suffix;
        const std::string teams = Named(folder, "teams.dat") + suffix;
        if (Exists(players) != Exists(teams)) {
            RemoveFile(players);
            RemoveFile(teams);
        }
    }
}

// A temporary copy of `path` beside `sideName` for a move into it.
std::string CopyFor(const std::string& path, const std::string& sideName, std::vector<Move>& moves, char kind)
{
    const std::string from = TemporaryName(sideName, "saving");
    std::string reason = LinkOrCopy(path, from);
    if (reason.empty())
        moves.push_back({kind, from, sideName, {}});
    return reason;
}

void DropTemporaries(const std::vector<Move>& moves)
{
    for (const Move& move : moves)
        RemoveFile(move.from);
}

}  // namespace

std::string CommitRecordPath(const std::string& folder)
{
    return Named(folder, "kolta-save.commit");
}

void SetCommitStepHook(CommitStepHook hook)
{
    stepHook = hook;
}

FileResult CommitPair(const PairSave& save)
{
    struct Target {
        const std::string& path;  // as the game names it
        std::string file;         // where a link leads
        const std::string& bytes;
    };
    const Target targets[] = {{save.playersPath, FollowLinks(save.playersPath), save.playersBytes},
                              {save.teamsPath, FollowLinks(save.teamsPath), save.teamsBytes}};
    std::vector<Move> moves;
    std::vector<Move> main;
    const auto fail = [&](const std::string& path, const std::string& reason) {
        DropTemporaries(moves);
        DropTemporaries(main);
        return FileResult{path, reason};
    };

    Step("began the commit");
    for (const Target& target : targets) {
        const std::string from = TemporaryName(target.file, "saving");
        std::error_code error;
        const bool existed = fs::exists(NativePath(target.file), error);
        main.push_back({'m', from, target.file, existed ? target.path + ".prev" : std::string{}});
        if (std::string reason = WriteNewFile(from, target.bytes); !reason.empty())
            return fail(target.path, reason);
        if (existed)
            fs::permissions(NativePath(from), fs::status(NativePath(target.file), error).permissions(), error);
        Step("wrote new " + PathText(NativePath(target.path).filename()));
    }

    const bool keepOriginal = !Exists(save.playersPath + ".orig") && !Exists(save.teamsPath + ".orig");
    for (const Target& target : targets) {
        if (!Exists(target.file))
            continue;
        if (save.keepBackup) {
            if (std::string reason = CopyFor(target.file, target.path + ".bak", moves, 'b'); !reason.empty())
                return fail(target.path + ".bak", reason);
        }
        if (keepOriginal) {
            if (std::string reason = CopyFor(target.file, target.path + ".orig", moves, 'o'); !reason.empty())
                return fail(target.path + ".orig", reason);
        }
    }
    Step("copied the backups");

    // The old pair stays reachable until the new one is in place.
    for (const Target& target : targets)
        RemoveFile(target.path + ".prev");
    for (const Move& move : main) {
        if (move.prev.empty())
            continue;
        if (std::string reason = LinkOrCopy(move.to, move.prev); !reason.empty())
            return fail(move.prev, reason);
    }
    SyncFolder(save.folder);
    Step("kept the old pair as .prev");

    moves.insert(moves.end(), main.begin(), main.end());
    main.clear();
    if (std::string reason = WriteRecord(save.folder, moves); !reason.empty())
        return fail(CommitRecordPath(save.folder), reason);
    Step("wrote the commit record");

    if (FileResult applied = Apply(moves); !applied.ok()) {
        std::string reason = applied.reason;
        if (std::string undone = Undo(moves); undone.empty()) {
            RemoveRecord(save.folder);
            reason += "; players.dat and teams.dat were put back as they were";
        } else {
            // The record stays, so that the next load can try again.
            reason += "; putting the old files back failed too (" + undone + ")";
        }
        return {applied.path, reason};
    }
    RemoveRecord(save.folder);
    Step("removed the commit record");
    return FileResult::Success(save.playersPath);
}

std::string RecoverPair(const std::string& folder)
{
    std::string said;
    const std::string record = CommitRecordPath(folder);
    if (Exists(record)) {
        const FileBytes bytes = ReadFileBytes(record);
        const auto moves = bytes.ok() ? Parse(bytes.bytes) : std::nullopt;
        if (!moves) {
            // Records are moved into place whole, so this one is not ours to follow.
            said = "an unreadable save record " + record + " was left alone";
        } else if (const FileResult applied = Apply(*moves); applied.ok()) {
            RemoveRecord(folder);
            said = "a save that was cut off has been finished: players.dat and teams.dat are the pair it wrote";
        } else if (const std::string undone = Undo(*moves); undone.empty()) {
            RemoveRecord(folder);
            said = "a save that was cut off could not be finished (" + applied.path + ": " + applied.reason +
                   "), so it was undone: players.dat and teams.dat are the pair from before it";
        } else {
            return "a save that was cut off can neither be finished nor undone (" + undone +
                   "); the files are not a matching pair";
        }
    }
    if (!Exists(record))
        ClearLeftovers(folder);
    return said;
}
