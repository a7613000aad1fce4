#pragma once

#include <string>
#include <vector>

// What a load of players.dat or teams.dat could not keep. A save writes only
// what was kept, so everything listed here would be gone from the file after
// it; the editor and the tool say so before they save.
struct LoadReport {
    std::string file;     // "players.dat" or "teams.dat"
    std::string failure;  // why the file could not be read; empty when it was

    // Places in the file, counting records from 1, of records passed over
    // because their number is no number or has no slot in the table.
    std::vector<int> skippedRecords;
    int numberedPastLimit = 0;        // how many of those are numbered past 2000
    std::vector<int> pastLastNumber;  // players loaded whose number is above the last one read
    int teamsPastLimit = 0;           // teams after the 500th
    int valuesAfterEnd = 0;           // non-empty lines after the record that ends the file

    static LoadReport For(std::string file)
    {
        LoadReport report;
        report.file = std::move(file);
        return report;
    }
    static LoadReport Unread(std::string file, std::string failure)
    {
        LoadReport report = For(std::move(file));
        report.failure = std::move(failure);
        return report;
    }

    bool Read() const { return failure.empty(); }
    bool DroppedAny() const;
    // One sentence for a message, starting with the file's name; empty when nothing was dropped.
    std::string DroppedText() const;
};
