// The game directory chooser on a first start and from the menu of a
// running editor; About, and the two pictures' pages.

#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <memory>
#include <vector>

#include <gtest/gtest.h>

#include "data/setting_file.h"
#include "forms/combo_box.h"
#include "forms/list_box.h"
#include "forms/message_box.h"
#include "forms/modal.h"
#include "forms/picture_box.h"
#include "mainwindow/main_form.h"
#include "options/about_form.h"
#include "options/folder_lists.h"
#include "options/options_form.h"
#include "options/web_pages.h"

namespace {

// A game folder among the fixtures.
QString Fixture(const char* name)
{
    return QDir(QStringLiteral(KOLTA_FIXTURES "/") + name).canonicalPath();
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

    QString Setting() const { return FromSystemPath(ReadSettingFile(ToSystemPath(places.besideExecutable))); }

    QTemporaryDir root;
    SettingPlaces places;
    // Sydney Sixes (Smith, Jones), Perth Pies, Hobart Hurricanes and Leeds
    // Lions, the last of another country.
    const QString full = Fixture("game_four_teams");
    const QString teamsOnly = Fixture("teams_file_only");
    std::unique_ptr<Game> game = std::make_unique<Game>();
};

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
    for (const QString& dir : {teamsOnly, Fixture("players_file_capitalised"), full}) {
        SCOPED_TRACE(dir.toStdString());
        const bool good = dir == full;
        ClearShownMessages();
        auto fresh = std::make_unique<Game>();
        MainForm main(*fresh, places);
        WhileOpen([&](OptionsForm& opt1) {
            EXPECT_FALSE(opt1.Command1->isHidden());
            EXPECT_TRUE(opt1.Command2->isHidden());
            opt1.Dir1->SetPath(dir);
            EXPECT_EQ(opt1.BothDataFilesListed(), good);
            EXPECT_EQ(opt1.Label2[0]->text(), good ? "Files teams.dat and players.dat found in this directory."
                                                   : "Files teams.dat and players.dat NOT found in current directory.");
            QTest::mouseClick(opt1.Command1, Qt::LeftButton);
        });
        ASSERT_EQ(main.Form_Load(), good);
        if (good) {
            EXPECT_EQ(Setting(), full);
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

// From the menu: closing changes nothing; OK reloads, dropping unsaved edits,
// and the old game's extra teams and players are gone everywhere, not hidden.
TEST_F(OptionsTest, AReloadFromTheMenuReplacesTheWholeGame)
{
    ASSERT_TRUE(WriteSettingFile(ToSystemPath(places.besideExecutable), ToSystemPath(full)).ok());
    MainForm window(*game, places);
    ASSERT_TRUE(window.Form_Load());
    ClearShownMessages();
    game->Teams[1].teamName = "Renamed but not saved";
    game->Players[1].batSkill = 99;

    WhileOpen([&](OptionsForm& opt1) { opt1.Dir1->SetPath(teamsOnly); });
    window.opt_Click();
    EXPECT_EQ(game->Teams[1].teamName, "Renamed but not saved");
    EXPECT_EQ(window.windowTitle(), "KOLTA editor (" + full + ")");

    const QString fewer = Fixture("game_one_team");  // Brisbane Bats (Green)
    WhileOpen([&](OptionsForm& opt1) {
        EXPECT_EQ(opt1.Dir1->Path(), full);
        EXPECT_TRUE(opt1.Command1->isHidden());
        opt1.Dir1->SetPath(fewer);
        QTest::mouseClick(opt1.Command2, Qt::LeftButton);
        EXPECT_FALSE(opt1.isVisible());
    });
    window.opt_Click();

    EXPECT_TRUE(ShownMessages().empty());
    EXPECT_EQ(Setting(), fewer);
    EXPECT_EQ(window.windowTitle(), "KOLTA Editor (" + fewer + ")");
    EXPECT_EQ(game->Teams[1].teamName, "Brisbane Bats");
    EXPECT_EQ(game->Players[1].batSkill, 0);
    EXPECT_EQ(Teams(*window.Combo2), std::vector<QString>{"Brisbane Bats"});
    EXPECT_EQ(window.List1->List(window.List1->ListIndex()), "A Green");
    EXPECT_TRUE(window.Timer1->isActive());
    // Slot 2 is where the reader's pass over the closing empty lines went:
    // blank but for its number.
    TeamRecord endOfFile;
    endOfFile.teamNumber = 2;
    EXPECT_EQ(game->Teams[2], endOfFile);
    EXPECT_EQ(game->Teams[4], TeamRecord{});
    EXPECT_EQ(game->Players[4], PlayerRecord{});
    EXPECT_EQ(game->PlayerCount, 1);
}

TEST(InfoWindows, AboutClosesOnEscapeAndEachPictureOpensItsPage)
{
    Game game;
    MainForm main{game, SettingPlaces{}};
    bool closed = false;
    SetModalDriver([&](QDialog& shown) {
        auto& about = dynamic_cast<AboutForm&>(shown);
        EXPECT_EQ(about.parentWidget(), &main);
        EXPECT_FALSE(about.Image1->pixmap().isNull());
        ASSERT_TRUE(QTest::qWaitForWindowActive(&about));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        closed = !about.isVisible();
    });
    main.abt->trigger();
    SetModalDriver({});
    EXPECT_TRUE(closed);

    // Each click on a picture opens its page beside the program again.
    std::vector<QUrl> opened;
    SetPageOpener([&](const QUrl& page) {
        opened.push_back(page);
        return true;
    });
    QTest::mouseClick(main.Image1, Qt::LeftButton);
    QTest::mouseClick(main.Image2, Qt::LeftButton);
    QTest::mouseClick(main.Image1, Qt::LeftButton);
    SetPageOpener({});
    const QDir beside(QCoreApplication::applicationDirPath());
    const QUrl guide = QUrl::fromLocalFile(beside.absoluteFilePath("guide.html"));
    const QUrl formats = QUrl::fromLocalFile(beside.absoluteFilePath("file-formats.html"));
    EXPECT_EQ(opened, (std::vector<QUrl>{guide, formats, guide}));
    EXPECT_TRUE(QFile::exists(guide.toLocalFile()));
    EXPECT_TRUE(QFile::exists(formats.toLocalFile()));
}

}  // namespace
