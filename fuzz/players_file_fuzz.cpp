// Any bytes as players.dat: nothing outside the table is touched, and what
// the editor would save reads back as the same players and saves the same
// bytes again.
#include "data/game.h"
#include "data/names.h"
#include "data/players_file.h"
#include "fuzz_check.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    static Game& loaded = *new Game;
    static Game& reloaded = *new Game;
    ClearTables(loaded);
    ClearTables(reloaded);

    ReadPlayers(loaded, AsBytes(data, size));
    Require(loaded.PlayerCount >= 0 && loaded.PlayerCount <= MaxPlayers, "PlayerCount within the table");
    Require(loaded.Teams == reloaded.Teams, "reading players leaves the teams alone");
    if (FirstUnstorableName(loaded))
        return 0;  // the save refuses these and tells the user which name

    const std::string saved = WritePlayers(loaded);
    ReadPlayers(reloaded, saved);
    Require(reloaded.PlayerCount == loaded.PlayerCount, "the count survives a save");
    for (int i = 1; i <= loaded.PlayerCount; ++i) {
        PlayerRecord expected = loaded.Players[i];
        expected.playerNumber = static_cast<std::int16_t>(i);  // empty slots get their number on save
        Require(reloaded.Players[i] == expected, "every saved player reads back the same");
    }
    for (int i = loaded.PlayerCount + 1; i <= MaxPlayers; ++i)
        Require(reloaded.Players[i] == PlayerRecord{}, "a saved file fills no slot past its count");
    Require(WritePlayers(reloaded) == saved, "the saved file is a fixed point");
    return 0;
}
