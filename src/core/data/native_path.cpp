#include "data/native_path.h"

#include <system_error>

#include "data/cp1252.h"

namespace fs = std::filesystem;

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
