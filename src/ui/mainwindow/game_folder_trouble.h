#pragma once

#include <QString>
#include <optional>

// Why the game in `folder` cannot be opened, said for a person: the folder is
// missing, or one of the two files is missing or cannot be read. Nothing when
// both files can be read.
std::optional<QString> GameFolderTrouble(const QString& folder);
