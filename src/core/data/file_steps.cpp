#include "data/file_steps.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <system_error>

#include "data/file_io.h"

#if defined(_WIN32)
#include <io.h>
#include <process.h>
#include <windows.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace fs = std::filesystem;

namespace {

#if defined(_WIN32)
std::string WindowsReason(DWORD code)
{
    return std::system_category().message(static_cast<int>(code));
}
#endif

}  // namespace

std::string TemporaryName(const std::string& path, std::string_view kind)
{
#if defined(_WIN32)
    const long long process = _getpid();
#else
    const long long process = ::getpid();
#endif
    return path + '.' + std::string(kind) + '-' + std::to_string(process);
}

std::string WriteNewFile(const std::string& path, std::string_view bytes)
{
#if defined(_WIN32)
    std::FILE* file = _wfopen(fs::path(path).c_str(), L"wb");
#else
    std::FILE* file = std::fopen(path.c_str(), "wb");
#endif
    if (!file)
        return std::strerror(errno);
    std::string reason;
    if (std::fwrite(bytes.data(), 1, bytes.size(), file) != bytes.size() || std::fflush(file) != 0)
        reason = std::strerror(errno);
#if defined(_WIN32)
    if (reason.empty() && _commit(_fileno(file)) != 0)
        reason = std::strerror(errno);
#else
    if (reason.empty() && ::fsync(fileno(file)) != 0)
        reason = std::strerror(errno);
#endif
    if (std::fclose(file) != 0 && reason.empty())
        reason = std::strerror(errno);
    return reason;
}

std::string MoveReplacing(const std::string& from, const std::string& to)
{
#if defined(_WIN32)
    if (!MoveFileExW(fs::path(from).c_str(), fs::path(to).c_str(),
                     MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
        return WindowsReason(GetLastError());
    return {};
#else
    if (std::rename(from.c_str(), to.c_str()) != 0)
        return std::strerror(errno);
    SyncFolder(fs::path(to).parent_path().string());
    return {};
#endif
}

std::string LinkOrCopy(const std::string& from, const std::string& to)
{
    if (std::string removed = RemoveFile(to); !removed.empty())
        return removed;
    std::error_code error;
    fs::create_hard_link(from, to, error);
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

std::string RemoveFile(const std::string& path)
{
    std::error_code error;
    fs::remove(path, error);
    return error ? error.message() : std::string{};
}

bool Exists(const std::string& path)
{
    std::error_code error;
    return fs::exists(fs::symlink_status(path, error));
}

void SyncFolder(const std::string& folder)
{
#if !defined(_WIN32)
    // Windows has no such call; its moves are written through instead.
    const int fd = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return;
    ::fsync(fd);
    ::close(fd);
#else
    (void)folder;
#endif
}

std::string FollowLinks(const std::string& path)
{
    std::error_code error;
    if (!fs::is_symlink(fs::symlink_status(path, error)))
        return path;
    const fs::path target = fs::weakly_canonical(path, error);
    return error ? path : target.string();
}
