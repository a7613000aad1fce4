#include "data/file_io.h"

#include "data/file_steps.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <system_error>

#if defined(_WIN32)
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
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

std::string TooLarge()
{
    return "the file is larger than " + std::to_string(MaxFileSize / (1024 * 1024)) +
           " MB, more than any game makes";
}

std::string NotRegular(bool folder)
{
    return folder ? "it is a folder, not a file" : "it is not a regular file";
}

}  // namespace

#if defined(_WIN32)
FileBytes ReadFileBytes(const std::string& path)
{
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (error)
        return {{}, error.message()};
    if (!fs::is_regular_file(status))
        return {{}, NotRegular(fs::is_directory(status))};
    std::FILE* file = _wfopen(fs::path(path).c_str(), L"rb");
    if (!file)
        return {{}, std::strerror(errno)};
    FileBytes read;
    std::array<char, 1 << 16> block;
    std::size_t got = 0;
    while ((got = std::fread(block.data(), 1, block.size(), file)) > 0) {
        read.bytes.append(block.data(), got);
        if (read.bytes.size() > MaxFileSize)
            break;
    }
    if (std::ferror(file))
        read.reason = std::strerror(errno);
    std::fclose(file);
    if (read.reason.empty() && read.bytes.size() > MaxFileSize)
        read.reason = TooLarge();
    if (!read.reason.empty())
        read.bytes.clear();
    return read;
}
#else
FileBytes ReadFileBytes(const std::string& path)
{
    // Opened without waiting, so that a pipe with no writer cannot hold the
    // load up; what it is decides whether it is read at all.
    const int fd = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0)
        return {{}, std::strerror(errno)};
    FileBytes read;
    struct stat info {};
    if (::fstat(fd, &info) != 0)
        read.reason = std::strerror(errno);
    else if (!S_ISREG(info.st_mode))
        read.reason = NotRegular(S_ISDIR(info.st_mode));
    else if (static_cast<std::uintmax_t>(info.st_size) > MaxFileSize)
        read.reason = TooLarge();
    std::array<char, 1 << 16> block;
    while (read.reason.empty()) {
        const ssize_t got = ::read(fd, block.data(), block.size());
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            read.reason = std::strerror(errno);
        else if (got == 0)
            break;
        else
            read.bytes.append(block.data(), static_cast<std::size_t>(got));
        if (read.bytes.size() > MaxFileSize)
            read.reason = TooLarge();
    }
    ::close(fd);
    if (!read.reason.empty())
        read.bytes.clear();
    return read;
}
#endif

std::optional<std::string> ReadWholeFile(const std::string& path)
{
    FileBytes file = ReadFileBytes(path);
    if (!file.ok())
        return std::nullopt;
    return std::move(file.bytes);
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

FileResult ReplaceFile(const std::string& path, std::string_view bytes)
{
    if (FileResult writable = CheckWritable(path); !writable.ok())
        return writable;
    // A link stays a link: the file it points to is the one replaced.
    const std::string target = FollowLinks(path);
    const std::string writing = TemporaryName(target, "saving");
    std::string reason = WriteNewFile(writing, bytes);
    std::error_code error;
    if (reason.empty() && fs::exists(target, error))
        fs::permissions(writing, fs::status(target, error).permissions(), error);
    if (reason.empty())
        reason = MoveReplacing(writing, target);
    if (!reason.empty()) {
        RemoveFile(writing);
        return Failure(path, reason);
    }
    return FileResult::Success(path);
}
