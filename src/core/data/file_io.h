#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "data/native_path.h"

// What became of a file operation: empty `reason` means it worked.
struct FileResult {
    std::string path;
    std::string reason;

    bool ok() const { return reason.empty(); }
    static FileResult Success(std::string path) { return {std::move(path), {}}; }
};

// Larger than any file the game or the editor could make: a file past this is
// refused rather than read.
inline constexpr std::uintmax_t MaxFileSize = 16 * 1024 * 1024;

// The bytes of a file, or why they could not be read.
struct FileBytes {
    std::string bytes;
    std::string reason;

    bool ok() const { return reason.empty(); }
};

// Reads only a regular file, or one a link points to, of at most MaxFileSize
// bytes; a device, a pipe or a folder is refused without waiting on it.
FileBytes ReadFileBytes(const std::string& path);
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
// is refused here too. A link is followed: the file it points to is replaced.
FileResult ReplaceFile(const std::string& path, std::string_view bytes);

// Makes `to` a second name of `from`, or where the disk cannot (another
// drive, a file system without links) a flushed copy of it.
std::string LinkOrCopy(const std::string& from, const std::string& to);
