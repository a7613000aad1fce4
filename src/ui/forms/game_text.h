#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

// Texts of the game's records are Windows-1252 bytes; the windows show Unicode.
QString FromGame(std::string_view bytes);
// Characters the code page cannot hold never reach a record: the name boxes
// refuse them (see IsStorableName), so this is lossless for any text they take.
std::string ToGame(const QString& text);

// Whether a name box may hold `text`: every character fits the game's code
// page and the file format can carry the name (no comma, no leading quote).
bool IsStorableName(const QString& text);
// Why a name box refuses `text`, as the status bar says it; nothing when it may hold it.
std::optional<QString> NameRefusalOf(const QString& text);
// The text rule of a name box: `tell` hears why a text is refused.
std::function<bool(const QString&)> NameRule(std::function<void(const QString& why)> tell);
