#pragma once

#include <filesystem>
#include <string>

// Paths travel through the program as UTF-8 text on every system; these turn
// them into the system's own form (wide characters on Windows) and back. On
// Windows a path that is not UTF-8 is read as Windows-1252.
std::filesystem::path NativePath(const std::string& path);
std::string PathText(const std::filesystem::path& path);
// `name` inside `folder`, with the system's separator.
std::string JoinPath(const std::string& folder, const std::string& name);
