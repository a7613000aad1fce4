#include "cli/arguments.h"

#include <algorithm>

namespace {

bool Contains(const std::vector<std::string>& list, const std::string& item)
{
    return std::find(list.begin(), list.end(), item) != list.end();
}

}  // namespace

CommandLine ParseCommandLine(std::span<const std::string> args, const OptionRules& rules)
{
    CommandLine line;
    bool optionsEnded = false;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& arg = args[i];
        if (optionsEnded || arg.size() < 2 || !arg.starts_with("-")) {
            line.positional.push_back(arg);
            continue;
        }
        if (arg == "--") {
            optionsEnded = true;
            continue;
        }
        const auto equals = arg.find('=');
        const std::string name = arg.substr(0, equals);
        if (name == "--help" || Contains(rules.flags, name)) {
            if (equals != std::string::npos) {
                line.error = name + " takes no value";
                return line;
            }
            line.flags.insert(name);
        } else if (Contains(rules.valueOptions, name)) {
            if (equals != std::string::npos) {
                line.values[name] = arg.substr(equals + 1);
            } else if (i + 1 < args.size()) {
                line.values[name] = args[++i];
            } else {
                line.error = name + " needs a value";
                return line;
            }
        } else {
            line.error = "unknown option " + name;
            return line;
        }
    }
    return line;
}
