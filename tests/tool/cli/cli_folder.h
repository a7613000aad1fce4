#pragma once

#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "cli/commands.h"
#include "data/file_io.h"
#include "support/file_text.h"
#include "support/scratch_folder.h"

namespace fs = std::filesystem;

// Lines of a player record, counted from 1 as in the file.
enum PlayerLine {
    InitialsLine = 3, SurnameLine, BirthDayLine, BirthMonthLine, BirthYearLine, NationLine, TeamLine,
    BatPositionLine, BatsLine, BatSkillLine, BatAggressionLine, BowlTypeLine, BowlsLine, BowlSkillLine,
    BowlEconomyLine, FieldAbilityLine, FieldsAtLine, PotentialLine, CarriedValueLine,
};
// Lines of a team record.
enum TeamLine { TeamNameLine = 2, AbbreviationLine, ReputationLine = 5 };

// A player every check accepts: valid codes, values inside their ranges.
inline Lines PlayerRecordLines(int number, const std::string& surname = "Mardle", int team = 0)
{
    return {std::to_string(number), "#", "R J#", surname + "#", "12", "5", "1980", "2", std::to_string(team),
            "3", "0", "30", "10", "7", "1", "12", "6", "25", "3", "11", "0"};
}

// Players 1, 2, ... named Arlow, Brenick, ..., each in the team given for him (0: none).
inline Lines Players(const std::vector<int>& teams)
{
    static const char* const surnames[] = {"Arlow", "Brenick", "Corvane", "Dunmore", "Elkin", "Farrow", "Garnet"};
    Lines lines;
    for (std::size_t i = 0; i < teams.size(); ++i)
        lines = Cat(std::move(lines), PlayerRecordLines(static_cast<int>(i) + 1, surnames[i], teams[i]));
    return lines;
}

inline Lines TeamRecordLines(const std::string& name, int number, const std::vector<int>& squad = {},
                             int country = 2)
{
    Lines lines{"0", name + "#", name.substr(0, 3) + "#", std::to_string(country), "50", "40", "30",
                std::to_string(number), "0", "0"};
    for (int place = 0; place < 20; ++place)
        lines.push_back(place < static_cast<int>(squad.size()) ? std::to_string(squad[place]) : "0");
    return lines;
}

// Line `line` of player `number` among players 1, 2, ... written in a row.
constexpr int OfPlayer(int number, int line)
{
    return (number - 1) * 21 + line;
}

// The files of a player file and a team file, each with its closing empty lines.
inline std::string PlayersBytes(const Lines& records)
{
    return Join(Cat(records, Lines(21, "")));
}

inline std::string TeamsBytes(const Lines& records)
{
    return Join(Cat(records, Lines(20, "")));
}

// The lines of a text, without their line ends (LF or CR LF).
inline Lines SplitLines(const std::string& text)
{
    Lines lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);)
        lines.push_back(line.ends_with('\r') ? line.substr(0, line.size() - 1) : line);
    return lines;
}

struct ToolRun {
    int code = -1;
    std::string out;
    std::string err;
};

// An argument as the tool is handed it: text, or a path as UTF-8 text.
struct ToolArg : std::string {
    ToolArg(const char* text) : std::string(text) {}
    ToolArg(std::string text) : std::string(std::move(text)) {}
    ToolArg(const fs::path& path) : std::string(PathText(path)) {}
};

inline ToolRun RunTool(const std::vector<ToolArg>& args)
{
    std::ostringstream out;
    std::ostringstream err;
    const int code = RunKoltaData(std::vector<std::string>(args.begin(), args.end()), out, err);
    return {code, out.str(), err.str()};
}

inline void WriteBytes(const fs::path& path, const std::string& bytes)
{
    ASSERT_TRUE(ReplaceFile(PathText(path), bytes).ok()) << path;
}

// Temporary folders of one test, removed when it ends.
class CliTest : public testing::Test {
protected:
    fs::path NewFolder(const std::string& name) { return scratch_.Folder(name + std::to_string(++folders_)); }

    // A game folder holding exactly these bytes.
    fs::path GameFolder(const std::string& players, const std::string& teams)
    {
        const fs::path dir = NewFolder("game");
        WriteBytes(dir / "players.dat", players);
        WriteBytes(dir / "teams.dat", teams);
        return dir;
    }

    // A game folder of these records, each file closed as the game closes it.
    fs::path GameOf(const Lines& players, const Lines& teams)
    {
        return GameFolder(PlayersBytes(players), TeamsBytes(teams));
    }

    fs::path SampleCopy() { return scratch_.Sample("sample" + std::to_string(++folders_)); }

    // Exports `game` into a new folder and returns that folder.
    fs::path Export(const fs::path& game)
    {
        const fs::path csv = NewFolder("csv");
        const ToolRun run = RunTool({"export", game, csv});
        EXPECT_EQ(run.code, 0) << run.err;
        return csv;
    }

private:
    ScratchFolder scratch_;
    int folders_ = 0;
};
