#pragma once

#include <filesystem>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "cli/commands.h"
#include "data/file_io.h"
#include "data/file_text.h"

namespace fs = std::filesystem;

// Lines of a player record, counted from 1 as in the file.
enum PlayerLine {
    InitialsLine = 3, SurnameLine, BirthDayLine, BirthMonthLine, BirthYearLine, NationLine, TeamLine,
    BatPositionLine, BatsLine, BatSkillLine, BatAggressionLine, BowlTypeLine, BowlsLine, BowlSkillLine,
    BowlEconomyLine, FieldAbilityLine, FieldsAtLine, PotentialLine, CarriedValueLine,
};
// Lines of a team record.
enum TeamLine { TeamNameLine = 2, AbbreviationLine, TeamCountryLine, ReputationLine, TeamNumberLine = 8 };

// A player every check accepts: valid codes, values inside their ranges.
inline Lines PlayerRecordLines(int number, const std::string& surname = "Mardle", int team = 0)
{
    return {std::to_string(number), "#", "R J#", surname + "#", "12", "5", "1980", "2", std::to_string(team),
            "3", "0", "30", "10", "7", "1", "12", "6", "25", "3", "11", "0"};
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

// `record` with line `line` (from 1) replaced.
inline Lines With(Lines record, int line, const std::string& text)
{
    record.at(line - 1) = text;
    return record;
}

// The files of a player file and a team file, each with its closing empty lines.
inline std::string PlayersBytes(const Lines& records)
{
    return Join(Cat(records, EmptyLines(21)));
}

inline std::string TeamsBytes(const Lines& records)
{
    return Join(Cat(records, EmptyLines(20)));
}

struct ToolRun {
    int code = -1;
    std::string out;
    std::string err;

    // The output as lines, without their line ends.
    std::vector<std::string> OutLines() const
    {
        std::vector<std::string> lines;
        std::istringstream in(out);
        for (std::string line; std::getline(in, line);)
            lines.push_back(line);
        return lines;
    }
};

inline ToolRun RunTool(const std::vector<std::string>& args)
{
    std::ostringstream out;
    std::ostringstream err;
    const int code = RunKoltaData(args, out, err);
    return {code, out.str(), err.str()};
}

inline std::string FileBytes(const fs::path& path)
{
    return ReadWholeFile(path.string()).value_or("<missing>");
}

inline void WriteBytes(const fs::path& path, const std::string& bytes)
{
    fs::create_directories(path.parent_path());
    ASSERT_TRUE(ReplaceFile(path.string(), bytes).ok()) << path;
}

// Temporary folders of one test, removed when it ends.
class CliTest : public testing::Test {
protected:
    void TearDown() override
    {
        std::error_code ignored;
        for (const fs::path& dir : made_)
            fs::remove_all(dir, ignored);
    }

    fs::path NewFolder(const std::string& name)
    {
        const auto* test = testing::UnitTest::GetInstance()->current_test_info();
        const fs::path dir = fs::temp_directory_path() / ("kolta-cli-" + std::string(test->name()) + "-" + name +
                                                          "-" + std::to_string(std::random_device{}()));
        fs::create_directories(dir);
        made_.push_back(dir);
        return dir;
    }

    // A game folder holding exactly these bytes.
    fs::path GameFolder(const std::string& players, const std::string& teams, const std::string& name = "game")
    {
        const fs::path dir = NewFolder(name);
        WriteBytes(dir / "players.dat", players);
        WriteBytes(dir / "teams.dat", teams);
        return dir;
    }

    fs::path SampleCopy(const std::string& name = "sample")
    {
        const fs::path dir = NewFolder(name);
        fs::copy(KOLTA_SAMPLE, dir, fs::copy_options::recursive);
        return dir;
    }

private:
    std::vector<fs::path> made_;
};
