#pragma once

#include <iosfwd>
#include <span>
#include <string>
#include <string_view>

#include "cli/arguments.h"

// Exit codes shared by every subcommand.
inline constexpr int ExitOk = 0;
inline constexpr int ExitFound = 1;    // check found errors, diff found differences, or data was refused
inline constexpr int ExitFailed = 2;   // wrong arguments, or a folder or file that can't be read or written

struct Subcommand {
    std::string_view name;
    std::string_view summary;  // one line for the overview of all subcommands
    std::string_view usage;    // the whole --help text
    OptionRules options;
    std::size_t minPositional = 0;
    std::size_t maxPositional = 0;
    int (*run)(const CommandLine& line, std::ostream& out, std::ostream& err) = nullptr;
};

// One per file of the same name.
const Subcommand& InfoCommand();
const Subcommand& NormalizeCommand();
const Subcommand& CheckCommand();
const Subcommand& ExportCommand();
const Subcommand& ImportCommand();
const Subcommand& DiffCommand();

// The whole tool: `args` are the arguments after the program's name.
int RunKoltaData(std::span<const std::string> args, std::ostream& out, std::ostream& err);
