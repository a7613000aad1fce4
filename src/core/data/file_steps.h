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

// Removes `path`; a missing file is no failure.
std::string RemoveFile(const std::string& path);

// Whether `path` names anything, a dangling link included.
bool Exists(const std::string& path);

#if defined(_WIN32)
// Why Windows refused, in words, from its error code; a file in use is the
// common case, because the game keeps its files open while it runs.
std::string WindowsReason(unsigned long code);
#endif

// Puts the names changed in `folder` on the disk.
void SyncFolder(const std::string& folder);

// The file a link points to, followed to its end; `path` itself otherwise.
std::string FollowLinks(const std::string& path);
