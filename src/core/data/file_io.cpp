#include "data/file_io.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <system_error>

#if defined(__unix__) || defined(__APPLE__)
#include <unistd.h>
#endif

namespace fs = std::filesystem;

namespace {

FileResult Failure(const std::string& path, std::string reason)
{
    return {path, std::move(reason)};
}

constexpr fs::perms AnyWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;

bool LacksWriteBits(const fs::file_status& status)
{
    return (status.permissions() & AnyWrite) == fs::perms::none;
}

// Writes and flushes the temporary file; the reason of the first failure.
std::string WriteTemporary(const fs::path& temporary, std::string_view bytes)
{
    std::FILE* file = std::fopen(temporary.string().c_str(), "wb");
    if (!file)
        return std::strerror(errno);
    std::string reason;
    if (std::fwrite(bytes.data(), 1, bytes.size(), file) != bytes.size() || std::fflush(file) != 0)
        reason = std::strerror(errno);
#if defined(__unix__) || defined(__APPLE__)
    if (reason.empty() && ::fsync(fileno(file)) != 0)
        reason = std::strerror(errno);
#endif
    if (std::fclose(file) != 0 && reason.empty())
        reason = std::strerror(errno);
    return reason;
}

fs::path WrittenCopy(const std::string& path)
{
    fs::path copy(path);
    copy += ".saving";
    return copy;
}

}  // namespace

std::optional<std::string> ReadWholeFile(const std::string& path)
{
    // Some systems open a folder for reading as if it were an empty file.
    std::error_code error;
    if (fs::is_directory(path, error))
        return std::nullopt;
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return std::nullopt;
    std::string bytes;
    std::array<char, 1 << 16> block;
    while (in.read(block.data(), block.size()) || in.gcount() > 0)
        bytes.append(block.data(), static_cast<std::size_t>(in.gcount()));
    if (in.bad())
        return std::nullopt;
    return bytes;
}

FileResult CheckWritable(const std::string& path)
{
    const fs::path target(path);
    const fs::path folder = target.has_parent_path() ? target.parent_path() : fs::path(".");
    std::error_code error;
    const fs::file_status folderStatus = fs::status(folder, error);
    if (!fs::is_directory(folderStatus))
        return Failure(path, "the folder " + folder.string() + " does not exist");
#if !defined(_WIN32)
    // A read-only mark on a Windows folder does not stop files being written in it.
    if (LacksWriteBits(folderStatus))
        return Failure(path, "the folder " + folder.string() + " is read-only");
#endif
    const fs::file_status fileStatus = fs::status(target, error);
    if (fs::exists(fileStatus) && LacksWriteBits(fileStatus))
        return Failure(path, "the file is read-only");
    return FileResult::Success(path);
}

FileResult WriteBeside(const std::string& path, std::string_view bytes)
{
    if (FileResult writable = CheckWritable(path); !writable.ok())
        return writable;
    if (std::string reason = WriteTemporary(WrittenCopy(path), bytes); !reason.empty()) {
        DropWritten(path);
        return Failure(path, reason);
    }
    return FileResult::Success(path);
}

FileResult MoveOver(const std::string& path)
{
    const fs::path target(path);
    const fs::path copy = WrittenCopy(path);
    std::error_code error;
    if (fs::exists(target, error))
        fs::permissions(copy, fs::status(target, error).permissions(), error);
    fs::rename(copy, target, error);
    if (error) {
        DropWritten(path);
        return Failure(path, error.message());
    }
    return FileResult::Success(path);
}

void DropWritten(const std::string& path)
{
    std::error_code ignored;
    fs::remove(WrittenCopy(path), ignored);
}

FileResult ReplaceFile(const std::string& path, std::string_view bytes)
{
    if (FileResult written = WriteBeside(path, bytes); !written.ok())
        return written;
    return MoveOver(path);
}

FileResult KeepBackup(const std::string& path)
{
    std::error_code error;
    if (!fs::exists(path, error))
        return FileResult::Success(path);
    // Copied beside and moved over like any save, so that a copy cut short
    // never replaces a good one from an earlier session.
    const std::string backup = path + ".bak";
    fs::copy_file(path, WrittenCopy(backup), fs::copy_options::overwrite_existing, error);
    if (error) {
        DropWritten(backup);
        return Failure(backup, error.message());
    }
    return MoveOver(backup);
}
