// The game directory chooser: on its own, on a first start, and from the
// menu of a running editor.

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "data/players_file.h"
#include "data/setting_file.h"
#include "data/teams_file.h"
#include "forms/combo_box.h"
#include "forms/list_box.h"
#include "forms/message_box.h"
#include "forms/modal.h"
#include "mainwindow/main_form.h"
#include "options/folder_lists.h"
#include "options/options_form.h"
#include "search/game_builder.h"

void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

namespace {

struct TeamPlan {
    std::string name;
    std::int16_t country;
    std::vector<std::string> surnames;
};

// Writes players.dat and teams.dat of a small game into a new folder `name`
// under `root`. Players are numbered from 1 in the order of their teams.
QString WriteGame(const QTemporaryDir& root, const QString& name, const std::vector<TeamPlan>& teams)
{
    const QString dir = root.filePath(name);
    QDir().mkpath(dir);
    GameBuilder b;
    SetGameDirectory(*b.game, ToSystemPath(dir));
    int number = 0;
    for (std::size_t team = 1; team <= teams.size(); ++team) {
        std::vector<int> squad;
        for (const std::string& surname : teams[team - 1].surnames) {
            b.Player(++number, surname);
            squad.push_back(number);
        }
        b.Team(int(team), teams[team - 1].name, squad).homeCountry = teams[team - 1].country;
    }
    EXPECT_TRUE(WritePlayersFile(*b.game).ok());
    EXPECT_TRUE(WriteTeamsFile(*b.game).ok());
    return dir;
}

QString SettingIn(const SettingPlaces& places)
{
    return FromSystemPath(ReadSettingFile(ToSystemPath(places.besideExecutable)));
}

std::vector<QString> Teams(const ComboBox& box)
{
    std::vector<QString> items;
    for (int i = 0; i < box.ListCount(); ++i)
        items.push_back(box.List(i));
    return items;
}

class OptionsTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(root.isValid());
        QDir().mkpath(root.filePath("exe"));
        places = {root.filePath("exe/editor.dat"), root.filePath("config/editor.dat")};
        full = WriteGame(root, "full", {{"Sydney Sixes", 1, {"Smith", "Jones"}}, {"Perth Pies", 1, {"Brown"}},
                                        {"Hobart Hurricanes", 1, {}}, {"Leeds Lions", 2, {"White"}}});
        teamsOnly = WriteGame(root, "teams-only", {{"Cairns Crabs", 1, {"Grey"}}});
        QFile::remove(teamsOnly + "/players.dat");
        capitalised = WriteGame(root, "capitalised", {{"Darwin Dingoes", 1, {"Black"}}});
        QFile::rename(capitalised + "/players.dat", capitalised + "/Players.dat");
        ClearShownMessages();
        SetMessageAnswerer([](const ShownMessage&) { return IdOk; });
    }
    void TearDown() override
    {
        SetModalDriver({});
        SetMessageAnswerer({});
    }

    // The chooser while it is open, driven by `drive`.
    void WhileOpen(std::function<void(OptionsForm&)> drive)
    {
        SetModalDriver([drive](QDialog& form) { drive(static_cast<OptionsForm&>(form)); });
    }

    QTemporaryDir root;
    SettingPlaces places;
    QString full, teamsOnly, capitalised;
    std::unique_ptr<Game> game = std::make_unique<Game>();
};

QTreeWidgetItem* DirItem(DirList& list, const QString& path)
{
    for (QTreeWidgetItemIterator it(&list); *it; ++it) {
        if ((*it)->data(0, Qt::UserRole).toString() == path)
            return *it;
    }
    return nullptr;
}

TEST_F(OptionsTest, OpensAtTheCurrentDirectoryWithTheFirstRunButton)
{
    OptionsForm opt1(*game, places);
    EXPECT_EQ(opt1.Dir1->Path(), QDir::current().canonicalPath());
    EXPECT_EQ(opt1.File1->Path(), opt1.Dir1->Path());
    EXPECT_FALSE(opt1.Command1->isHidden());
    EXPECT_TRUE(opt1.Command2->isHidden());
}

TEST_F(OptionsTest, ADirectoryOpensOnDoubleClickOrEnterNotOnAClick)
{
    const QString inner = root.filePath("full/saves");
    QDir().mkpath(inner);
    OptionsForm opt1(*game, places);
    opt1.show();
    ASSERT_TRUE(opt1.Dir1->SetPath(full));
    QTreeWidgetItem* saves = DirItem(*opt1.Dir1, inner);
    ASSERT_NE(saves, nullptr);

    const QPoint at = opt1.Dir1->visualItemRect(saves).center();
    QTest::mouseClick(opt1.Dir1->viewport(), Qt::LeftButton, {}, at);
    EXPECT_EQ(opt1.Dir1->Path(), full);
    QTest::mouseDClick(opt1.Dir1->viewport(), Qt::LeftButton, {}, at);
    EXPECT_EQ(opt1.Dir1->Path(), inner);
    EXPECT_EQ(opt1.File1->ListCount(), 0);

    // Enter on the directory above goes back up, and presses no OK button.
    opt1.Dir1->setCurrentItem(DirItem(*opt1.Dir1, full));
    QTest::keyClick(opt1.Dir1, Qt::Key_Return);
    EXPECT_EQ(opt1.Dir1->Path(), full);
    EXPECT_TRUE(opt1.isVisible());
    EXPECT_TRUE(game->GameDirectory.empty());
}

TEST_F(OptionsTest, ADriveThatCannotBeReadIsReportedAndChangesNothing)
{
    OptionsForm opt1(*game, places);
    ASSERT_TRUE(opt1.Dir1->SetPath(full));
    const QString noDisk = root.filePath("drive-without-a-disk");
    opt1.Drive1->AddDrive(noDisk);
    opt1.Drive1->setCurrentIndex(opt1.Drive1->count() - 1);
    ASSERT_EQ(ShownMessages().size(), 1u);
    EXPECT_EQ(ShownMessages()[0].text, "Error reading Drive");
    EXPECT_EQ(ShownMessages()[0].title, "Error");
    EXPECT_EQ(ShownMessages()[0].flags, MbCritical);
    EXPECT_EQ(opt1.Dir1->Path(), full);
    EXPECT_EQ(opt1.File1->Path(), full);
    EXPECT_EQ(opt1.Drive1->Drive(), noDisk);

    // Back on a real drive, the list returns to where it was on that drive.
    opt1.Drive1->SetDrive(full);
    EXPECT_EQ(opt1.Dir1->Path(), full);
    EXPECT_EQ(ShownMessages().size(), 1u);
}

// Only both names in exactly their case count: "teams.dat" alone or a
// "Players.dat" ends the run. The good folder comes last, as the editor.dat
// it leaves would skip the window.
TEST_F(OptionsTest, FirstRunLoadsADirectoryWithBothFilesOnly)
{
    for (const QString& dir : {teamsOnly, capitalised, full}) {
        SCOPED_TRACE(dir.toStdString());
        const bool good = dir == full;
        ClearShownMessages();
        auto fresh = std::make_unique<Game>();
        MainForm main(*fresh, places);
        WhileOpen([&](OptionsForm& opt1) {
            opt1.Dir1->SetPath(dir);
            EXPECT_EQ(opt1.BothDataFilesListed(), good);
            EXPECT_EQ(opt1.Label2[0]->text(), good ? "Files teams.dat and players.dat found in this directory."
                                                   : "Files teams.dat and players.dat NOT found in current directory.");
            QTest::mouseClick(opt1.Command1, Qt::LeftButton);
        });
        ASSERT_EQ(main.Form_Load(), good);
        if (good) {
            EXPECT_EQ(SettingIn(places), full);
            EXPECT_EQ(main.windowTitle(), "KOLTA editor (" + full + ")");
            EXPECT_EQ(Teams(*main.Combo2), (std::vector<QString>{"Sydney Sixes", "Perth Pies", "Hobart Hurricanes"}));
            EXPECT_EQ(main.List1->List(main.List1->ListIndex()), "A Smith");
            EXPECT_TRUE(ShownMessages().empty());
            continue;
        }
        EXPECT_TRUE(fresh->GameDirectory.empty());
        EXPECT_FALSE(QFile::exists(places.besideExecutable));
        ASSERT_EQ(ShownMessages().size(), 1u);
        EXPECT_EQ(ShownMessages()[0].text, "teams.dat and players.dat not found in current directory.KOLTA ed will exit.");
        EXPECT_EQ(ShownMessages()[0].flags, MbCritical);
    }
}

TEST_F(OptionsTest, FirstRunClosedWithoutAChoiceEndsQuietly)
{
    MainForm main(*game, places);
    WhileOpen([](OptionsForm&) {});
    EXPECT_FALSE(main.Form_Load());
    EXPECT_TRUE(ShownMessages().empty());
    EXPECT_FALSE(QFile::exists(places.besideExecutable));
}

TEST_F(OptionsTest, ASettingThatCannotBeWrittenIsToldAndTheRunGoesOn)
{
    // Neither place can take the file: the executable's folder is gone and
    // a plain file stands where the configuration folder would be made.
    QFile blocker(root.filePath("blocker"));
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    blocker.close();
    places = {root.filePath("gone/editor.dat"), root.filePath("blocker/editor.dat")};

    MainForm main(*game, places);
    WhileOpen([this](OptionsForm& opt1) {
        opt1.Dir1->SetPath(full);
        QTest::mouseClick(opt1.Command1, Qt::LeftButton);
    });
    ASSERT_TRUE(main.Form_Load());
    EXPECT_EQ(FromSystemPath(game->GameDirectory), full);
    ASSERT_EQ(ShownMessages().size(), 1u);
    EXPECT_EQ(ShownMessages()[0].flags, MbExclamation);
    EXPECT_TRUE(ShownMessages()[0].text.contains(QDir::toNativeSeparators(places.userConfig)));
    EXPECT_TRUE(ShownMessages()[0].text.contains("does not exist")) << ShownMessages()[0].text.toStdString();
}

class ReloadTest : public OptionsTest {
protected:
    void SetUp() override
    {
        OptionsTest::SetUp();
        ASSERT_TRUE(WriteSettingFile(ToSystemPath(places.besideExecutable), ToSystemPath(full)).ok());
        window = std::make_unique<MainForm>(*game, places);
        ASSERT_TRUE(window->Form_Load());
        ClearShownMessages();
        game->Teams[1].teamName = "Renamed but not saved";
        game->Players[1].batSkill = 99;
    }

    std::unique_ptr<MainForm> window;
};

TEST_F(ReloadTest, ClosingChangesNothingAndOkAtOnceReloadsDroppingUnsavedEdits)
{
    WhileOpen([&](OptionsForm& opt1) { opt1.Dir1->SetPath(teamsOnly); });
    window->opt_Click();
    EXPECT_EQ(game->Teams[1].teamName, "Renamed but not saved");
    EXPECT_EQ(window->windowTitle(), "KOLTA editor (" + full + ")");

    std::optional<QString> openedAt;
    WhileOpen([&](OptionsForm& opt1) {
        openedAt = opt1.Dir1->Path();
        EXPECT_TRUE(opt1.Command1->isHidden());
        EXPECT_FALSE(opt1.Command2->isHidden());
        QTest::mouseClick(opt1.Command2, Qt::LeftButton);
    });
    window->opt_Click();
    EXPECT_EQ(openedAt, full);
    EXPECT_EQ(window->windowTitle(), "KOLTA Editor (" + full + ")");
    EXPECT_EQ(game->Teams[1].teamName, "Sydney Sixes");
    EXPECT_EQ(game->Players[1].batSkill, 0);
    EXPECT_EQ(window->Combo2->List(window->Combo2->ListIndex()), "Sydney Sixes");
    EXPECT_EQ(window->List1->List(window->List1->ListIndex()), "A Smith");
    EXPECT_TRUE(window->Timer1->isActive());
}

TEST_F(ReloadTest, AMissingFileKeepsTheWindowOpenAndFewerTeamsLeaveNoOldOne)
{
    const QString fewer = WriteGame(root, "fewer", {{"Brisbane Bats", 1, {"Green"}}});
    WhileOpen([&](OptionsForm& opt1) {
        opt1.Dir1->SetPath(teamsOnly);
        QTest::mouseClick(opt1.Command2, Qt::LeftButton);
        EXPECT_TRUE(opt1.isVisible());
        EXPECT_EQ(window->Combo2->ListCount(), 3) << "nothing is loaded yet";
        opt1.Dir1->SetPath(fewer);
        QTest::mouseClick(opt1.Command2, Qt::LeftButton);
        EXPECT_FALSE(opt1.isVisible());
    });
    window->opt_Click();

    ASSERT_EQ(ShownMessages().size(), 1u);
    EXPECT_EQ(ShownMessages()[0].text, "teams.dat and players.dat not found in current directory.");
    EXPECT_EQ(SettingIn(places), fewer);
    // The old game's extra teams and players are gone everywhere, not hidden.
    EXPECT_EQ(Teams(*window->Combo2), std::vector<QString>{"Brisbane Bats"});
    // Slot 2 is where the reader's pass over the closing empty lines went:
    // blank but for its number.
    TeamRecord endOfFile;
    endOfFile.teamNumber = 2;
    EXPECT_EQ(game->Teams[2], endOfFile);
    EXPECT_EQ(game->Teams[4], TeamRecord{});
    EXPECT_EQ(game->Players[4], PlayerRecord{});
    EXPECT_EQ(game->PlayerCount, 1);
}

TEST_F(ReloadTest, TheOldBoxesNeverReachTheNewGame)
{
    // The new game's first country has no team, so no team or player is
    // shown after the reload; the tick must not write the old ones anywhere.
    const QString abroad = WriteGame(root, "abroad", {{"Lahore Lancers", 5, {"Khan", "Ali"}}});
    WhileOpen([&](OptionsForm& opt1) {
        opt1.Dir1->SetPath(abroad);
        QTest::mouseClick(opt1.Command2, Qt::LeftButton);
    });
    window->opt_Click();

    EXPECT_EQ(window->Combo2->ListCount(), 0);
    window->Timer1_Timer();
    EXPECT_EQ(game->Players[1].surname, "Khan");
    EXPECT_EQ(game->Teams[1].teamName, "Lahore Lancers");
    EXPECT_EQ(game->Teams[1].homeCountry, 5);
}

}  // namespace
