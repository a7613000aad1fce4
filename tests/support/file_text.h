#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "data/file_io.h"
#include "data/game.h"

// What a file holds, or "<missing>" when it cannot be read.
inline std::string Bytes(const std::filesystem::path& path)
{
    return ReadWholeFile(PathText(path)).value_or("<missing>");
}

// The lines of a game file as a test writes them down.
using Lines = std::vector<std::string>;

// The bytes of a file made of the given runs of lines, each line ended by
// CR LF as the game writes them.
template <class... Runs>
std::string Join(const Runs&... runs)
{
    std::string bytes;
    ([&] { for (const std::string& line : runs) bytes += line + "\r\n"; }(), ...);
    return bytes;
}

template <class... More>
Lines Cat(Lines first, const More&... more)
{
    (first.insert(first.end(), more.begin(), more.end()), ...);
    return first;
}

// `lines` with some of them replaced, each given by its line number counted from 1.
inline Lines Edit(Lines lines, std::initializer_list<std::pair<int, std::string>> changes)
{
    for (const auto& [line, text] : changes)
        lines.at(static_cast<std::size_t>(line - 1)) = text;
    return lines;
}

// One file a reader is given: what it shows, the lines, the count the reader
// should end with, the records the writer should then write and what the
// load report says a save would not write back.
struct Load {
    std::string what;
    Lines file;
    int count;
    Lines written;  // before the closing lines
    std::string dropped = {};
};

// Game is too large for the stack.
inline std::unique_ptr<Game> NewGame()
{
    return std::make_unique<Game>();
}
