#pragma once

#include <QString>
#include <optional>

// Why the game in `folder` cannot be opened, said for a person: the folder or
// one of the two files is missing. A file that is there but cannot be read is
// told by the load, with the reason. Nothing when both files are there.
std::optional<QString> GameFolderTrouble(const QString& folder);
