#include "csv/csv_folder.h"

#include <filesystem>

#include "csv/csv_export.h"

FileResult ExportCsvFolder(const Game& game, const std::string& folder)
{
    const std::filesystem::path where(folder);
    std::error_code error;
    std::filesystem::create_directories(where, error);
    if (error)
        return {folder, error.message()};
    if (FileResult written = ReplaceFile((where / "players.csv").string(), PlayersCsv(game)); !written.ok())
        return written;
    return ReplaceFile((where / "teams.csv").string(), TeamsCsv(game));
}

CsvImport ImportCsvFolder(const Game& game, const std::string& folder)
{
    CsvImport result;
    const std::filesystem::path where(folder);
    const auto playersText = ReadWholeFile((where / "players.csv").string());
    const auto teamsText = ReadWholeFile((where / "teams.csv").string());
    result.read = playersText || teamsText;
    if (!result.read)
        return result;
    auto copy = std::make_unique<Game>(game);
    result.faults = ImportCsv(*copy, playersText, teamsText);
    if (!result.faults.empty())
        return result;
    result.changes = CompareGames(game, *copy);
    result.game = std::move(copy);
    return result;
}

std::string RowFaultLine(const RowFault& fault)
{
    return fault.file + (fault.line > 0 ? ":" + std::to_string(fault.line) : std::string{}) + ": " + fault.message;
}
