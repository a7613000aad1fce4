#pragma once

#include <string_view>
#include <utility>

// Two texts from one input: up to the first NUL byte, and after it (empty
// when there is none). The game's files and CSVs never hold a NUL.
inline std::pair<std::string_view, std::string_view> SplitAtNul(std::string_view bytes)
{
    const std::size_t nul = bytes.find('\0');
    if (nul == std::string_view::npos)
        return {bytes, {}};
    return {bytes.substr(0, nul), bytes.substr(nul + 1)};
}
