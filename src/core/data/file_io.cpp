#include "data/file_io.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "data/cp1252.h"

#if defined(_WIN32)
#define WIN32_LEAN_AND_MEAN
#include <io.h>
#include <windows.h>
// windows.h names a function of its own ReplaceFile; ours is meant here.
#undef ReplaceFile
#elif defined(__unix__) || defined(__APPLE__)
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
// Why Windows refused, in words; a file in use is the common case, because
// the game keeps its files open while it runs.
std::string WindowsReason(DWORD code)
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

// Writes and flushes the temporary file, in binary so that the CR LF line
// ends go out as they are; the reason of the first failure.
std::string WriteTemporary(const fs::path& temporary, std::string_view bytes)
{
#if defined(_WIN32)
    std::FILE* file = _wfopen(temporary.c_str(), L"wb");
#else
    std::FILE* file = std::fopen(temporary.c_str(), "wb");
#endif
    if (!file)
        return std::strerror(errno);
    std::string reason;
    if (std::fwrite(bytes.data(), 1, bytes.size(), file) != bytes.size() || std::fflush(file) != 0)
        reason = std::strerror(errno);
#if defined(_WIN32)
    if (reason.empty() && _commit(_fileno(file)) != 0)
        reason = std::strerror(errno);
#elif defined(__unix__) || defined(__APPLE__)
    if (reason.empty() && ::fsync(fileno(file)) != 0)
        reason = std::strerror(errno);
#endif
    if (std::fclose(file) != 0 && reason.empty())
        reason = std::strerror(errno);
    return reason;
}

fs::path WrittenCopy(const std::string& path)
{
    fs::path copy = NativePath(path);
    copy += ".saving";
    return copy;
}

}  // namespace

fs::path NativePath(const std::string& path)
{
#if defined(_WIN32)
    // Text that is not UTF-8 is a path the game's own editor wrote into
    // editor.dat, in the game's code page.
    try {
        return fs::path(std::u8string(path.begin(), path.end()));
    } catch (const std::system_error&) {
        const std::u16string text = DecodeCp1252(path);
        return fs::path(std::wstring(text.begin(), text.end()));
    }
#else
    return fs::path(std::u8string(path.begin(), path.end()));
#endif
}

std::string PathText(const fs::path& path)
{
    const std::u8string text = path.u8string();
    return std::string(text.begin(), text.end());
}

std::string JoinPath(const std::string& folder, const std::string& name)
{
    return PathText(NativePath(folder) / NativePath(name));
}

FileResult MakeFolders(const std::string& path)
{
    std::error_code error;
    fs::create_directories(NativePath(path), error);
    if (error)
        return Failure(path, error.message());
    return FileResult::Success(path);
}

std::optional<std::string> ReadWholeFile(const std::string& path)
{
    // Some systems open a folder for reading as if it were an empty file.
    const fs::path file = NativePath(path);
    std::error_code error;
    if (fs::is_directory(file, error))
        return std::nullopt;
    std::ifstream in(file, std::ios::binary);
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
    const fs::path target = NativePath(path);
    const fs::path copy = WrittenCopy(path);
    std::error_code error;
    if (fs::exists(target, error))
        fs::permissions(copy, fs::status(target, error).permissions(), error);
#if defined(_WIN32)
    // A plain rename will not replace a file on Windows; this does, and
    // returns only when the move is on the disk.
    if (!MoveFileExW(copy.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
        const DWORD code = GetLastError();
        DropWritten(path);
        return Failure(path, WindowsReason(code));
    }
#else
    fs::rename(copy, target, error);
    if (error) {
        DropWritten(path);
        return Failure(path, error.message());
    }
#endif
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
    if (!fs::exists(NativePath(path), error))
        return FileResult::Success(path);
    // Copied beside and moved over like any save, so that a copy cut short
    // never replaces a good one from an earlier session.
    const std::string backup = path + ".bak";
    fs::copy_file(NativePath(path), WrittenCopy(backup), fs::copy_options::overwrite_existing, error);
    if (error) {
        DropWritten(backup);
        return Failure(backup, error.message());
    }
    return MoveOver(backup);
}
