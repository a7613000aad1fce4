#pragma once

#include <string>
#include <string_view>

// `text` (UTF-8) as a JSON string, quotes included.
std::string JsonString(std::string_view text);
