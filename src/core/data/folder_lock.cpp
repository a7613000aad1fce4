#include "data/folder_lock.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>
#include <thread>

#include "data/file_io.h"
#include "data/file_steps.h"

#if defined(_WIN32)
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

namespace {

constexpr std::chrono::milliseconds Retry{50};

const char* const BusyReason = "another save or import is writing in this folder; nothing was changed";

}  // namespace

const char* const PresenceFile = "kolta-editor.open";

#if defined(_WIN32)
// Windows cannot lock a folder itself, so a lock file stands for it; it goes
// away when the last handle on it closes.
FolderLock::FolderLock(const std::string& folder, std::chrono::milliseconds patience)
{
    const std::filesystem::path file = NativePath(folder) / "kolta-save.lock";
    const auto deadline = std::chrono::steady_clock::now() + patience;
    for (;;) {
        HANDLE handle = CreateFileW(file.c_str(), GENERIC_READ | GENERIC_WRITE,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_ALWAYS,
                                    FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
        if (handle == INVALID_HANDLE_VALUE) {
            reason_ = WindowsReason(GetLastError());
            return;
        }
        OVERLAPPED whole{};
        if (LockFileEx(handle, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &whole)) {
            handle_ = handle;
            held_ = true;
            return;
        }
        CloseHandle(handle);
        if (std::chrono::steady_clock::now() >= deadline) {
            reason_ = BusyReason;
            busy_ = true;
            return;
        }
        std::this_thread::sleep_for(Retry);
    }
}

FolderLock::~FolderLock()
{
    if (handle_)
        CloseHandle(static_cast<HANDLE>(handle_));
}
FolderPresence::FolderPresence(const std::string& folder)
    : path_(JoinPath(folder, PresenceFile))
{
    HANDLE handle = CreateFileW(NativePath(path_).c_str(), GENERIC_READ | GENERIC_WRITE,
                                FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_ALWAYS,
                                FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return;
    handle_ = handle;
    OVERLAPPED first{};
    if (LockFileEx(handle, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &first))
        UnlockFileEx(handle, 0, 1, 0, &first);
    else
        othersHadItOpen_ = true;
    OVERLAPPED shared{};
    LockFileEx(handle, LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &shared);
}

FolderPresence::~FolderPresence()
{
    if (handle_)
        CloseHandle(static_cast<HANDLE>(handle_));
}

bool EditorHasFolderOpen(const std::string& folder)
{
    HANDLE handle = CreateFileW(NativePath(JoinPath(folder, PresenceFile)).c_str(), GENERIC_READ,
                                FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return false;
    OVERLAPPED whole{};
    const bool nobodyHolds = LockFileEx(handle, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &whole);
    if (nobodyHolds)
        UnlockFileEx(handle, 0, 1, 0, &whole);
    CloseHandle(handle);
    return !nobodyHolds;
}
#else
FolderLock::FolderLock(const std::string& folder, std::chrono::milliseconds patience)
{
    fd_ = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd_ < 0) {
        reason_ = std::strerror(errno);
        return;
    }
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while (::flock(fd_, LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK && errno != EINTR) {
            reason_ = std::strerror(errno);
            return;
        }
        if (std::chrono::steady_clock::now() >= deadline) {
            reason_ = BusyReason;
            busy_ = true;
            return;
        }
        std::this_thread::sleep_for(Retry);
    }
    held_ = true;
}

FolderLock::~FolderLock()
{
    if (fd_ >= 0)
        ::close(fd_);
}

FolderPresence::FolderPresence(const std::string& folder)
    : path_(JoinPath(folder, PresenceFile))
{
    fd_ = ::open(path_.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
    if (fd_ < 0)
        return;
    othersHadItOpen_ = ::flock(fd_, LOCK_EX | LOCK_NB) != 0;
    ::flock(fd_, LOCK_SH | LOCK_NB);
}

FolderPresence::~FolderPresence()
{
    if (fd_ < 0)
        return;
    if (::flock(fd_, LOCK_EX | LOCK_NB) == 0)
        ::unlink(path_.c_str());
    ::close(fd_);
}

bool EditorHasFolderOpen(const std::string& folder)
{
    // A file left by an editor that died is held by nobody: no editor.
    const int fd = ::open(JoinPath(folder, PresenceFile).c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return false;
    const bool held = ::flock(fd, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    ::close(fd);
    return held;
}
#endif
