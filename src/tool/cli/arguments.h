#pragma once

#include <map>
#include <set>
#include <span>
#include <string>
#include <vector>

// What one subcommand accepts besides its positional arguments.
struct OptionRules {
    std::vector<std::string> flags;         // "--json"
    std::vector<std::string> valueOptions;  // "--team", followed by a value or given as "--team=4"
};

struct CommandLine {
    std::vector<std::string> positional;
    std::set<std::string> flags;
    std::map<std::string, std::string> values;
    std::string error;  // empty when the arguments made sense

    bool Has(const std::string& flag) const { return flags.contains(flag); }
};

// "--help" is always accepted. A lone "--" ends the options, so that a
// folder whose name begins with a dash can still be named.
CommandLine ParseCommandLine(std::span<const std::string> args, const OptionRules& rules);
