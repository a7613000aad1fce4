#pragma once

#include <QString>
#include <optional>
#include <string>

#include "data/file_io.h"
#include "data/game.h"

// Both files as they stood before a save, so that a save that fails can say
// whether it changed either of them.
class FilesBeforeSave {
public:
    explicit FilesBeforeSave(const Game& game);

    // The message for a save that failed with `result`.
    QString FailureText(const FileResult& result) const;

private:
    std::string playersPath_;
    std::string teamsPath_;
    std::optional<std::string> players_;
    std::optional<std::string> teams_;
};
