// Any bytes as teams.dat: nothing outside the table is touched, and what the
// editor would save reads back as the same teams and saves the same bytes.
#include "data/game.h"
#include "data/names.h"
#include "data/teams_file.h"
#include "fuzz_check.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    static Game& loaded = *new Game;
    static Game& reloaded = *new Game;
    ClearTables(loaded);
    ClearTables(reloaded);

    ReadTeams(loaded, AsBytes(data, size));
    Require(loaded.TeamCount >= 2 && loaded.TeamCount <= MaxTeams + 2, "TeamCount within the table");
    Require(loaded.Teams[0] == TeamRecord{}, "slot 0 of the teams is never written");
    Require(loaded.Players == reloaded.Players, "reading teams leaves the players alone");
    if (FirstUnstorableName(loaded))
        return 0;  // the save refuses these and tells the user which name

    const std::string saved = WriteTeams(loaded);
    ReadTeams(reloaded, saved);
    Require(reloaded.TeamCount == loaded.TeamCount, "the count survives a save");
    for (int i = 1; i <= LoadedTeamCount(loaded); ++i)
        Require(reloaded.Teams[i] == loaded.Teams[i], "every saved team reads back the same");
    // The pass over the closing empty lines is the last slot a load may touch.
    for (int i = reloaded.TeamCount; i <= MaxTeams; ++i)
        Require(reloaded.Teams[i] == TeamRecord{}, "a saved file fills no slot past its count");
    Require(WriteTeams(reloaded) == saved, "the saved file is a fixed point");
    return 0;
}
