#include "data/file_io.h"

#include "data/file_steps.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <system_error>

#if defined(_WIN32)
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
// windows.h names a function of its own ReplaceFile; ours is meant here.
#undef ReplaceFile
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

#if defined(_WIN32)
// Whether another program holds `target` open in a way that stops it being
// replaced; the reason, or empty.
std::string HeldOpenReason(const fs::path& target)
{
    const HANDLE handle = CreateFileW(target.c_str(), DELETE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle != INVALID_HANDLE_VALUE) {
        CloseHandle(handle);
        return {};
    }
    const DWORD code = GetLastError();
    if (code == ERROR_FILE_NOT_FOUND || code == ERROR_PATH_NOT_FOUND)
        return {};
    return WindowsReason(code);
}
#endif

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

FileResult MakeFolders(const std::string& path)
{
    std::error_code error;
    fs::create_directories(NativePath(path), error);
    if (error)
        return Failure(path, error.message());
    return FileResult::Success(path);
}

#if defined(_WIN32)
FileBytes ReadFileBytes(const std::string& path)
{
    const fs::path native = NativePath(path);
    std::error_code error;
    const fs::file_status status = fs::status(native, error);
    if (error)
        return {{}, error.message()};
    if (!fs::is_regular_file(status))
        return {{}, NotRegular(fs::is_directory(status))};
    std::FILE* file = _wfopen(native.c_str(), L"rb");
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
    // Read straight into the result, with a byte to spare so that the read
    // which finds the end needs no more room; a file that grows meanwhile,
    // or says it is empty as some system files do, gets more as it goes.
    std::size_t filled = 0;
    if (read.reason.empty())
        read.bytes.resize(static_cast<std::size_t>(info.st_size) + 1);
    while (read.reason.empty()) {
        if (filled == read.bytes.size())
            read.bytes.resize(filled + (1 << 16));
        const ssize_t got = ::read(fd, read.bytes.data() + filled, read.bytes.size() - filled);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            read.reason = std::strerror(errno);
        else if (got == 0)
            break;
        else
            filled += static_cast<std::size_t>(got);
        if (filled > MaxFileSize)
            read.reason = TooLarge();
    }
    ::close(fd);
    read.bytes.resize(read.reason.empty() ? filled : 0);
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
    const fs::path target = NativePath(path);
    const fs::path folder = target.has_parent_path() ? target.parent_path() : fs::path(".");
    std::error_code error;
    const fs::file_status folderStatus = fs::status(folder, error);
    if (!fs::is_directory(folderStatus))
        return Failure(path, "the folder " + PathText(folder) + " does not exist");
#if !defined(_WIN32)
    // A read-only mark on a Windows folder does not stop files being written in it.
    if (LacksWriteBits(folderStatus))
        return Failure(path, "the folder " + PathText(folder) + " is read-only");
#endif
    const fs::file_status fileStatus = fs::status(target, error);
    if (fs::exists(fileStatus) && LacksWriteBits(fileStatus))
        return Failure(path, "the file is read-only");
#if defined(_WIN32)
    if (std::string held = HeldOpenReason(target); !held.empty())
        return Failure(path, held);
#endif
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
    if (reason.empty() && fs::exists(NativePath(target), error))
        fs::permissions(NativePath(writing), fs::status(NativePath(target), error).permissions(), error);
    if (reason.empty())
        reason = MoveReplacing(writing, target);
    if (!reason.empty()) {
        RemoveFile(writing);
        return Failure(path, reason);
    }
    return FileResult::Success(path);
}

std::string LinkOrCopy(const std::string& from, const std::string& to)
{
    if (std::string removed = RemoveFile(to); !removed.empty())
        return removed;
    std::error_code error;
    fs::create_hard_link(NativePath(from), NativePath(to), error);
    if (!error)
        return {};
    // Copied through our own reader and writer, so that a full disk says so
    // rather than giving a bare input/output error.
    FileBytes bytes = ReadFileBytes(from);
    if (!bytes.ok())
        return bytes.reason;
    std::string reason = WriteNewFile(to, bytes.bytes);
    if (!reason.empty())
        RemoveFile(to);
    return reason;
}
