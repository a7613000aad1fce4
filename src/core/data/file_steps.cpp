#include "data/file_steps.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <system_error>

#include "data/native_path.h"

#if defined(_WIN32)
#define WIN32_LEAN_AND_MEAN
#include <io.h>
#include <process.h>
#include <windows.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace fs = std::filesystem;

#if defined(_WIN32)
std::string WindowsReason(unsigned long code)
{
    switch (code) {
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
        return "another program (the game?) has the file open";
    case ERROR_ACCESS_DENIED:
        return "access is denied: the file is read-only or another program (the game?) has it open";
    default:
        break;
    }
    wchar_t* text = nullptr;
    const DWORD length = FormatMessageW(
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
        code, 0, reinterpret_cast<wchar_t*>(&text), 0, nullptr);
    std::wstring message(text ? text : L"", length);
    LocalFree(text);
    while (!message.empty() && (message.back() == L'\n' || message.back() == L'\r' || message.back() == L'.'))
        message.pop_back();
    return message.empty() ? "Windows error " + std::to_string(code) : PathText(message);
}
#endif

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
    std::FILE* file = _wfopen(NativePath(path).c_str(), L"wb");
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
    if (!MoveFileExW(NativePath(from).c_str(), NativePath(to).c_str(),
                     MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
        return WindowsReason(GetLastError());
    return {};
#else
    if (std::rename(from.c_str(), to.c_str()) != 0)
        return std::strerror(errno);
    SyncFolder(PathText(NativePath(to).parent_path()));
    return {};
#endif
}

std::string RemoveFile(const std::string& path)
{
    std::error_code error;
    fs::remove(NativePath(path), error);
    return error ? error.message() : std::string{};
}

bool Exists(const std::string& path)
{
    std::error_code error;
    return fs::exists(fs::symlink_status(NativePath(path), error));
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
    if (!fs::is_symlink(fs::symlink_status(NativePath(path), error)))
        return path;
    const fs::path target = fs::weakly_canonical(NativePath(path), error);
    return error ? path : PathText(target);
}
