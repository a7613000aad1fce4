#pragma once

#include <QString>
#include <filesystem>

// A path of a test's scratch folder as the windows take it.
inline QString QtPath(const std::filesystem::path& path)
{
    return QString::fromStdU16String(path.generic_u16string());
}
