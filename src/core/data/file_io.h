#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

// What became of a file operation: empty `reason` means it worked.
struct FileResult {
    std::string path;
    std::string reason;

    bool ok() const { return reason.empty(); }
    static FileResult Success(std::string path) { return {std::move(path), {}}; }
};

// Paths travel through the program as UTF-8 text on every system; these turn
// them into the system's own form (wide characters on Windows) and back. On
// Windows a path that is not UTF-8 is read as Windows-1252.
std::filesystem::path NativePath(const std::string& path);
std::string PathText(const std::filesystem::path& path);
// `name` inside `folder`, with the system's separator.
std::string JoinPath(const std::string& folder, const std::string& name);

std::optional<std::string> ReadWholeFile(const std::string& path);

// Makes the folder and any missing folders above it.
FileResult MakeFolders(const std::string& path);

// Whether `path` can be replaced: its folder exists and neither the file nor,
// where folders have such a thing, the folder forbids writing. Permission bits
// are checked here rather than left to the system, which lets an
// administrator write anything. On Windows a file that another program holds
// open without letting it be replaced (the game, while it runs) is refused.
FileResult CheckWritable(const std::string& path);

// Writes `bytes` beside `path` and moves them over it in one step, so the old
// file is either replaced whole or left as it was. What CheckWritable refuses
// is refused here too.
FileResult ReplaceFile(const std::string& path, std::string_view bytes);

// ReplaceFile in two halves, for files that must change together: write each
// beside its target, and only when all are written move each over. Until its
// move the old file is untouched, and DropWritten takes the copy back.
FileResult WriteBeside(const std::string& path, std::string_view bytes);
FileResult MoveOver(const std::string& path);
void DropWritten(const std::string& path);

// Copies `path` to `path` + ".bak"; a missing file needs no copy.
FileResult KeepBackup(const std::string& path);
