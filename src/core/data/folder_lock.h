#pragma once

#include <chrono>
#include <string>

// One writer at a time in a game folder: a save, an import and the recovery
// of a cut-off save each hold this while they change files there. The lock
// belongs to the open handle, so a process that dies lets go of it.
class FolderLock {
public:
    // Waits up to `patience` for the folder; Held() says whether it was had.
    FolderLock(const std::string& folder, std::chrono::milliseconds patience);
    ~FolderLock();
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

    bool Held() const { return held_; }
    // Whether another writer had it all the while, rather than the lock failing.
    bool Busy() const { return busy_; }
    // Why the lock was not had, for a message.
    const std::string& Reason() const { return reason_; }

private:
    bool held_ = false;
    bool busy_ = false;
    std::string reason_;
#if defined(_WIN32)
    void* handle_ = nullptr;
#else
    int fd_ = -1;
#endif
};

// Held by an editor for as long as it has a game folder open, so that a
// second editor on the same folder can say so. Each holds a shared lock on
// kolta-editor.open in the folder; the last to leave removes the file.
class FolderPresence {
public:
    explicit FolderPresence(const std::string& folder);
    ~FolderPresence();
    FolderPresence(const FolderPresence&) = delete;
    FolderPresence& operator=(const FolderPresence&) = delete;

    // Whether another editor had the folder open when this one came.
    bool OthersHadItOpen() const { return othersHadItOpen_; }

private:
    bool othersHadItOpen_ = false;
    std::string path_;
#if defined(_WIN32)
    void* handle_ = nullptr;
#else
    int fd_ = -1;
#endif
};

// Whether an editor holds `folder` open now (a FolderPresence of another
// open handle), for a program that writes there without being one. Leaves
// no file behind.
bool EditorHasFolderOpen(const std::string& folder);

// How long a second writer waits for the first before it gives up.
inline constexpr std::chrono::milliseconds WriterPatience{3000};
