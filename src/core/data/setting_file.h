#pragma once

#include <string>
#include <string_view>

#include "data/file_io.h"

// editor.dat holds the game's directory on one line. Only the first field
// counts, so a comma ends the path there.
std::string ReadSetting(std::string_view bytes);
std::string WriteSetting(const std::string& directory);

// The directory named by the file at `path`; empty when there is none.
std::string ReadSettingFile(const std::string& path);
FileResult WriteSettingFile(const std::string& path, const std::string& directory);
