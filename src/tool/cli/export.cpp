#include <algorithm>
#include <cctype>
#include <filesystem>
#include <ostream>

#include "cli/commands.h"
#include "cli/game_folder.h"
#include "csv/csv_export.h"
#include "csv/csv_layout.h"
#include "data/fields.h"
#include "data/file_io.h"

namespace {

constexpr std::string_view Usage =
    "Usage: kolta-data export [--team N] [--country C] DIR OUT\n"
    "Writes OUT/players.csv and OUT/teams.csv from the game in DIR: UTF-8, comma\n"
    "separated, a header row of the field names. Every coded field comes as its\n"
    "number and, beside it, its word (homeCountry, homeCountryName); a team's\n"
    "squad is the columns squad1 to squad20. The word columns are for reading:\n"
    "import takes the numbers. OUT is made if it doesn't exist.\n"
    "  --team N      only team N and the players of its squad\n"
    "  --country C   only players of nationality C and teams of country C, by\n"
    "                code or by name (\"England\", \"3\")\n"
    "Exit 0 on success, 2 when a file can't be read or written.\n";

// A country by its code or its name, as a person would type it.
std::optional<int> CountryCode(const std::string& text)
{
    if (const auto code = WholeNumber(text))
        return *code;
    const auto sameWord = [&text](std::string_view word) {
        return word.size() == text.size() &&
               std::equal(word.begin(), word.end(), text.begin(),
                          [](char a, char b) { return std::tolower(static_cast<unsigned char>(a)) ==
                                                      std::tolower(static_cast<unsigned char>(b)); });
    };
    for (std::size_t i = 0; i < CountryList.size(); ++i) {
        if (sameWord(CountryList[i]))
            return static_cast<int>(i) + Countries.firstCode;
    }
    return std::nullopt;
}

int RunExport(const CommandLine& line, std::ostream& out, std::ostream& err)
{
    CsvSelection filter;
    if (line.values.contains("--team")) {
        filter.team = WholeNumber(line.values.at("--team"));
        if (!filter.team) {
            err << "kolta-data export: --team needs a team number, not \"" << line.values.at("--team") << "\"\n";
            return ExitFailed;
        }
    }
    if (line.values.contains("--country")) {
        filter.country = CountryCode(line.values.at("--country"));
        if (!filter.country) {
            err << "kolta-data export: no country is called \"" << line.values.at("--country") << "\"\n";
            return ExitFailed;
        }
    }

    const LoadedGame loaded = LoadGameFolder(line.positional[0]);
    TellRecovery(loaded, "export", err);
    if (!loaded.BothRead()) {
        err << "kolta-data export: cannot read " << UnreadFiles(loaded) << '\n';
        return ExitFailed;
    }
    if (filter.team && (*filter.team < 1 || *filter.team > LoadedTeamCount(*loaded.game))) {
        err << "kolta-data export: there is no team " << *filter.team << "; teams.dat holds teams 1 to "
            << LoadedTeamCount(*loaded.game) << '\n';
        return ExitFailed;
    }
    const std::filesystem::path folder(line.positional[1]);
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error) {
        err << "kolta-data export: cannot make " << folder.string() << ": " << error.message() << '\n';
        return ExitFailed;
    }
    for (const bool players : {true, false}) {
        const std::string path = (folder / (players ? "players.csv" : "teams.csv")).string();
        const std::string text = players ? PlayersCsv(*loaded.game, filter) : TeamsCsv(*loaded.game, filter);
        if (const FileResult written = ReplaceFile(path, text); !written.ok()) {
            err << "kolta-data export: " << written.path << ": " << written.reason << '\n';
            return ExitFailed;
        }
        out << "Wrote " << path << '\n';
    }
    return ExitOk;
}

}  // namespace

const Subcommand& ExportCommand()
{
    static const Subcommand command{"export", "write players.csv and teams.csv for a spreadsheet", Usage,
                                    {{}, {"--team", "--country"}}, 2, 2, RunExport};
    return command;
}
