// The pair commit: a save killed at any step and a second writer leave
// players.dat and teams.dat as a matching pair. (A move that fails half way
// is among save_test's refusals.)
#include "data/pair_commit.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#if !defined(_WIN32)
#include <sys/wait.h>
#include <unistd.h>
#endif

#include "data/folder_lock.h"
#include "data/save.h"
#include "support/file_text.h"
#include "support/scratch_folder.h"

namespace fs = std::filesystem;

namespace {

const FilePair OldPair(SampleBytes("players.dat"), SampleBytes("teams.dat"));

std::vector<std::string> stepsSeen;
std::string stopAt;
void (*atStop)() = nullptr;
int holdingFolder = -1;  // where a child process says it holds the folder

void StopAtStep(std::string_view step)
{
    if (step == stopAt)
        atStop();
}

class PairCommit : public testing::Test {
protected:
    void TearDown() override { SetCommitStepHook(nullptr); }

    // A copy of the sample game, loaded and changed in both files.
    fs::path ChangedCopy(Game& game)
    {
        const fs::path dir = scratch_.Sample("game" + std::to_string(++copies_));
        LoadFolder(game, dir.string());
        game.Players[1].surname = "Changed";
        game.Teams[1].wealth = 77;
        return dir;
    }

    ScratchFolder scratch_;
    int copies_ = 0;
};

// A save stopped dead after `step`. A child process is killed there; Windows,
// which does not fork, throws out of the save instead, which leaves the files
// as a dead process would.
struct CutOff {};
void SaveStoppedAfter(Game& game, const std::string& step)
{
    stopAt = step;
#if defined(_WIN32)
    atStop = [] { throw CutOff{}; };
    SetCommitStepHook(StopAtStep);
    EXPECT_THROW(SaveGame(game), CutOff);
    SetCommitStepHook(nullptr);
#else
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        atStop = [] { std::raise(SIGKILL); };
        SetCommitStepHook(StopAtStep);
        SaveGame(game);
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
#endif
}

TEST_F(PairCommit, AKilledSaveLeavesTheOldPairOrTheNewOne)
{
    auto game = NewGame();
    ChangedCopy(*game);
    const FilePair newPair = WrittenPair(*game);
    stepsSeen.clear();
    SetCommitStepHook([](std::string_view step) { stepsSeen.emplace_back(step); });
    ASSERT_TRUE(SaveGame(*game).ok());
    SetCommitStepHook(nullptr);
    ASSERT_GE(stepsSeen.size(), 8u);  // the two writes, the copies, .prev, the record, the moves, the end

    for (const std::string& step : stepsSeen) {
        SCOPED_TRACE("killed after: " + step);
        auto saving = NewGame();
        const fs::path dir = ChangedCopy(*saving);
        SaveStoppedAfter(*saving, step);

        auto loaded = NewGame();
        SetGameDirectory(*loaded, dir.string());
        const GameLoad load = LoadGame(*loaded);
        const bool saved = PairIn(dir) == newPair;
        EXPECT_TRUE(saved || PairIn(dir) == OldPair);
        // From the record on, the load finishes the save and says so.
        const bool recorded = step == "wrote the commit record" || step.starts_with("moved ");
        EXPECT_EQ(!load.recovered.empty(), recorded) << load.recovered;
        EXPECT_EQ(saved, recorded || step.starts_with("removed"));
#if !defined(_WIN32)
        // What a dead process half wrote is tidied by the next load; a save
        // that threw lives on in its process, which its own files are left to.
        EXPECT_EQ(SaveLeftovers(dir), std::vector<std::string>{});
#endif
        // The copies kept beside are a pair, of the files as they were, or absent.
        for (const char* suffix : {".bak", ".orig"}) {
            const FilePair kept = PairIn(dir, suffix);
            EXPECT_TRUE(kept == OldPair || kept == FilePair("<missing>", "<missing>")) << suffix;
        }
    }
}

TEST_F(PairCommit, ASecondWriterWaitsThenChangesNothing)
{
    auto first = NewGame();
    const fs::path dir = ChangedCopy(*first);
    auto second = NewGame();
    LoadFolder(*second, dir.string());
    second->Teams[2].wealth = 5;

    {
        // A writer that holds the folder longer than the second will wait.
        const FolderLock busy(dir.string(), std::chrono::milliseconds(0));
        ASSERT_TRUE(busy.Held());
        const FileResult refused = SaveGame(*second);
        EXPECT_NE(refused.reason.find("another save or import is writing"), std::string::npos) << refused.reason;
        EXPECT_TRUE(PairIn(dir) == OldPair);
    }

#if !defined(_WIN32)
    // Two processes at once: the one that comes second finds the files
    // changed since it loaded them and leaves the first one's pair alone.
    // The second starts only once the first holds the folder, however slowly
    // the first got there.
    int holding[2];
    ASSERT_EQ(::pipe(holding), 0);
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        ::close(holding[0]);
        holdingFolder = holding[1];
        stopAt = "wrote the commit record";
        atStop = [] {
            const char held = 1;
            (void)!::write(holdingFolder, &held, 1);
            std::this_thread::sleep_for(std::chrono::milliseconds(500));
        };
        SetCommitStepHook(StopAtStep);
        ::_exit(SaveGame(*first).ok() ? 0 : 1);
    }
    ::close(holding[1]);
    char held = 0;
    ASSERT_EQ(::read(holding[0], &held, 1), 1);
    ::close(holding[0]);
    const FileResult late = SaveGame(*second);
    int status = 0;
    ::waitpid(child, &status, 0);
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0);
    EXPECT_NE(late.reason.find("changed by another program"), std::string::npos) << late.reason;
    EXPECT_TRUE(PairIn(dir) == WrittenPair(*first));
#endif

    // Asked to, the second writes over another program's save; the pair it
    // replaced stays beside it as the .prev pair.
    auto other = NewGame();
    LoadFolder(*other, dir.string());
    other->Players[2].surname = "Theirs";
    ASSERT_TRUE(SaveGame(*other).ok());
    const FilePair theirs = PairIn(dir);
    EXPECT_TRUE(FilesChangedSinceLoaded(*second));
    EXPECT_FALSE(SaveGame(*second).ok());
    EXPECT_TRUE(PairIn(dir) == theirs);
    ASSERT_TRUE(SaveGame(*second, false, OtherChanges::Overwrite).ok());
    EXPECT_TRUE(PairIn(dir) == WrittenPair(*second));
    EXPECT_TRUE(PairIn(dir, ".prev") == theirs);
    EXPECT_FALSE(FilesChangedSinceLoaded(*second));
}

TEST_F(PairCommit, ASecondEditorOnTheFolderIsToldAndTheLastOneTidiesUp)
{
    auto game = NewGame();
    const fs::path dir = ChangedCopy(*game);
    {
        EXPECT_FALSE(EditorHasFolderOpen(dir.string()));
        const FolderPresence first(dir.string());
        EXPECT_FALSE(first.OthersHadItOpen());
        const FolderPresence second(dir.string());
        EXPECT_TRUE(second.OthersHadItOpen());
        EXPECT_TRUE(EditorHasFolderOpen(dir.string()));
        EXPECT_TRUE(SaveGame(*game).ok());  // an open editor is no writer
    }
    EXPECT_FALSE(fs::exists(dir / "kolta-editor.open"));
    EXPECT_FALSE(EditorHasFolderOpen(dir.string()));
    const FolderPresence alone(dir.string());
    EXPECT_FALSE(alone.OthersHadItOpen());
}

}  // namespace
