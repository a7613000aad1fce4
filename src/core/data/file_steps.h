#pragma once

#include <string>
#include <string_view>

// The single steps a save is made of, each one system call or close to it.
// Each returns an empty text when it worked, or the system's reason.

// A name beside `path` for a file being written, unique to this process.
std::string TemporaryName(const std::string& path, std::string_view kind);

// Creates or empties `path`, writes `bytes` and flushes them to the disk.
std::string WriteNewFile(const std::string& path, std::string_view bytes);

// Moves `from` over `to` in one step: `to` is the old file or the new one,
// never a mix. The move is on the disk when this returns.
std::string MoveReplacing(const std::string& from, const std::string& to);

// Makes `to` a second name of `from`, or where the disk cannot (another
// drive, a file system without links) a flushed copy of it.
std::string LinkOrCopy(const std::string& from, const std::string& to);

// Removes `path`; a missing file is no failure.
std::string RemoveFile(const std::string& path);

// Whether `path` names anything, a dangling link included.
bool Exists(const std::string& path);

// Puts the names changed in `folder` on the disk.
void SyncFolder(const std::string& folder);

// The file a link points to, followed to its end; `path` itself otherwise.
std::string FollowLinks(const std::string& path);
