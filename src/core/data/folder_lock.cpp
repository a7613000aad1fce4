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
#include <sys/stat.h>
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

namespace {

// A lock on the first byte of the presence file that belongs to this open
// file, not to the process, and changes between shared and exclusive in one
// step: an editor that comes or goes at the same moment never slips into a
// gap between the two.
bool LockPresence(int fd, short type)
{
    struct flock lock {};
    lock.l_type = type;
    lock.l_whence = SEEK_SET;
    lock.l_len = 1;
    return ::fcntl(fd, F_OFD_SETLK, &lock) == 0;
}

// Whether another editor holds its shared lock on the file.
bool OthersHoldPresence(int fd)
{
    struct flock lock {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    lock.l_len = 1;
    return ::fcntl(fd, F_OFD_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
}

// Whether `fd` is still the file at `path`, which the last editor to leave
// may have removed between our open and our lock.
bool StillThere(int fd, const std::string& path)
{
    struct stat opened {};
    struct stat named {};
    return ::fstat(fd, &opened) == 0 && ::stat(path.c_str(), &named) == 0 && opened.st_dev == named.st_dev &&
           opened.st_ino == named.st_ino;
}

}  // namespace

FolderPresence::FolderPresence(const std::string& folder)
    : path_(JoinPath(folder, PresenceFile))
{
    // A leaving editor holds the file exclusively while it removes it; the
    // file is opened afresh until this one holds the file that stays.
    for (int attempt = 0; attempt < 100; ++attempt) {
        fd_ = ::open(path_.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
        if (fd_ < 0)
            return;
        const bool locked = LockPresence(fd_, F_RDLCK);
        if (!locked && errno != EAGAIN && errno != EACCES)
            return;  // a file system without locks: nobody can be told
        if (locked && StillThere(fd_, path_)) {
            othersHadItOpen_ = OthersHoldPresence(fd_);
            return;
        }
        ::close(fd_);
        fd_ = -1;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

FolderPresence::~FolderPresence()
{
    if (fd_ < 0)
        return;
    if (LockPresence(fd_, F_WRLCK))
        ::unlink(path_.c_str());
    ::close(fd_);
}

bool EditorHasFolderOpen(const std::string& folder)
{
    // A file left by an editor that died is held by nobody: no editor.
    const int fd = ::open(JoinPath(folder, PresenceFile).c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return false;
    const bool held = OthersHoldPresence(fd);
    ::close(fd);
    return held;
}
#endif
