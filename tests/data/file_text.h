#pragma once

#include <memory>
#include <string>
#include <vector>

#include "data/game.h"

// The lines of a game file as a test writes them down.
using Lines = std::vector<std::string>;

// The bytes of a file made of `lines`, each ended by CR LF as the game writes them.
inline std::string Join(const Lines& lines)
{
    std::string bytes;
    for (const std::string& line : lines)
        bytes += line + "\r\n";
    return bytes;
}

template <class... More>
Lines Cat(Lines first, const More&... more)
{
    (first.insert(first.end(), more.begin(), more.end()), ...);
    return first;
}

inline Lines EmptyLines(int count)
{
    return Lines(static_cast<std::size_t>(count), std::string{});
}

// Game is too large for the stack.
inline std::unique_ptr<Game> NewGame()
{
    return std::make_unique<Game>();
}
