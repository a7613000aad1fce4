#pragma once

#include <optional>
#include <string>
#include <string_view>

// The game's files hold Windows-1252; spreadsheets, terminals and JSON speak UTF-8.
std::string Utf8FromCp1252(std::string_view bytes);

// A value the user typed or a file holds, in double quotes for a message.
std::string QuotedUtf8(std::string_view cp1252);

bool IsUtf8(std::string_view text);

// `text` with its line ends written as \r and \n, for a listing of one item
// a line: a quoted value in a game file can run over several lines.
std::string OnOneLine(std::string_view text);

// Nothing when `text` is no valid UTF-8 or holds a character Windows-1252 lacks.
std::optional<std::string> Cp1252FromUtf8(std::string_view text);
