#pragma once

#include <string>
#include <string_view>
#include <vector>

// Comma-separated values as RFC 4180 has them: a field holding a comma, a
// double quote or a line end is quoted, with its quotes doubled; rows end in CR LF.
using CsvRow = std::vector<std::string>;

std::string CsvLine(const CsvRow& row);

struct CsvTable {
    std::vector<CsvRow> rows;      // the header row first
    std::vector<int> lineNumbers;  // the line each row starts on, from 1
    std::string error;             // empty when the whole text could be read
    int errorLine = 0;
};

// Accepts CR LF, LF or CR line ends and a leading byte order mark; a
// trailing line end does not make an empty row.
CsvTable ParseCsv(std::string_view text);
