#pragma once

#include <filesystem>
#include <memory>
#include <regex>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "data/file_io.h"
#include "data/game.h"
#include "data/load_game.h"
#include "data/players_file.h"
#include "data/teams_file.h"

// What a file holds, or "<missing>" when it cannot be read.
inline std::string Bytes(const std::filesystem::path& path)
{
    return ReadWholeFile(PathText(path)).value_or("<missing>");
}

// What players.dat and teams.dat in `dir` hold, or the copies of them kept
// beside under `suffix` (".bak"); "<missing>" for a file that is not there.
using FilePair = std::pair<std::string, std::string>;
inline FilePair PairIn(const std::filesystem::path& dir, const std::string& suffix = "")
{
    return {Bytes(dir / ("players.dat" + suffix)), Bytes(dir / ("teams.dat" + suffix))};
}

// The pair the game's writers make of `game`.
inline FilePair WrittenPair(const Game& game)
{
    return {WritePlayers(game), WriteTeams(game)};
}

// What a save left in `dir` besides the pairs it keeps (the files and their
// .bak, .orig and .prev): its temporaries and commit record; empty when none.
inline std::vector<std::string> SaveLeftovers(const std::filesystem::path& dir)
{
    const std::regex kept(R"((players|teams)\.dat(\.bak|\.orig|\.prev)?)");
    const std::regex saves(R"((players\.dat|teams\.dat|kolta-save).*)");
    std::vector<std::string> left;
    for (const auto& entry : std::filesystem::directory_iterator(dir)) {
        const std::string name = PathText(entry.path().filename());
        if (std::regex_match(name, saves) && !std::regex_match(name, kept))
            left.push_back(name);
    }
    return left;
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

// The game in `folder`, named as a user would name it, loaded into `game`
// as the editor loads it.
inline void LoadFolder(Game& game, const std::string& folder)
{
    SetGameDirectory(game, folder);
    const GameLoad load = LoadGame(game);
    EXPECT_TRUE(load.players.Read() && load.teams.Read()) << load.players.failure << load.teams.failure;
}
