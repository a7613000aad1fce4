#pragma once

#include <QString>
#include <optional>
#include <string>
#include <string_view>

// Texts of the game's records are Windows-1252 bytes; the windows show Unicode.
QString FromGame(std::string_view bytes);
// Characters the code page cannot hold never reach a record: the name boxes
// refuse them (see NameRefusalOf), so this is lossless for any text they take.
std::string ToGame(const QString& text);

// Why a name box refuses `text`, as the status bar says it: a character the
// game's code page lacks, or a name the file format cannot carry (a comma, a
// leading quote or blank). Nothing when it may hold it.
std::optional<QString> NameRefusalOf(const QString& text);
