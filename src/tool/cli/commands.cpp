#include "cli/commands.h"

#include <array>
#include <functional>
#include <ostream>

namespace {

using CommandList = std::array<std::reference_wrapper<const Subcommand>, 6>;

CommandList AllCommands()
{
    return {InfoCommand(), NormalizeCommand(), CheckCommand(),
            ExportCommand(), ImportCommand(), DiffCommand()};
}

void PrintOverview(std::ostream& out)
{
    out << "Usage: kolta-data COMMAND [OPTIONS] ARGUMENTS\n"
           "Reads and writes the players.dat and teams.dat of a KOLTA game folder,\n"
           "exactly as the editor does.\n\nCommands:\n";
    for (const Subcommand& command : AllCommands())
        out << "  " << command.name << std::string(12 - command.name.size(), ' ') << command.summary << '\n';
    out << "\nRun 'kolta-data COMMAND --help' for the details of one command.\n"
           "Options: --help, --version\n";
}

int RunSubcommand(const Subcommand& command, std::span<const std::string> args, std::ostream& out,
                  std::ostream& err)
{
    const CommandLine line = ParseCommandLine(args, command.options);
    if (line.error.empty() && line.Has("--help")) {
        out << command.usage;
        return ExitOk;
    }
    std::string error = line.error;
    if (error.empty() && line.positional.size() < command.minPositional)
        error = "missing arguments";
    if (error.empty() && line.positional.size() > command.maxPositional)
        error = "too many arguments";
    if (!error.empty()) {
        err << "kolta-data " << command.name << ": " << error << "\n"
            << "Run 'kolta-data " << command.name << " --help' for its usage.\n";
        return ExitFailed;
    }
    return command.run(line, out, err);
}

}  // namespace

int RunKoltaData(std::span<const std::string> args, std::ostream& out, std::ostream& err)
{
    if (args.empty()) {
        PrintOverview(err);
        return ExitFailed;
    }
    const std::string& first = args.front();
    if (first == "--help" || first == "-h" || first == "help") {
        PrintOverview(out);
        return ExitOk;
    }
    if (first == "--version") {
        out << "kolta-data " << KOLTA_VERSION << '\n';
        return ExitOk;
    }
    for (const Subcommand& command : AllCommands()) {
        if (command.name == first)
            return RunSubcommand(command, args.subspan(1), out, err);
    }
    err << "kolta-data: unknown command '" << first << "'\n"
        << "Run 'kolta-data --help' for the list of commands.\n";
    return ExitFailed;
}
