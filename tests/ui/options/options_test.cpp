// A game folder that cannot be opened, and the game directory chooser on a
// first start and from the menu of a running editor; About, the two
// pictures' pages, the Help window's table of ranges and the guides' list of
// the menus' commands.

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QUrl>
#include <set>

#include <gmock/gmock.h>

#include "commands/game_folder_trouble.h"
#include "data/setting_file.h"
#include "forms/clickable_picture.h"
#include "options/about_window.h"
#include "options/folder_lists.h"
#include "options/help_window.h"
#include "options/options_window.h"
#include "options/web_pages.h"
#include "ui/mainwindow/editor_fixture.h"

using ::testing::ElementsAre;
using ::testing::Pair;

namespace {

class OptionsTest : public EditorTest {
protected:
    void SetUp() override
    {
        places = {QtPath(scratch_.Folder("exe") / "editor.dat"), QtPath(scratch_ / "config" / "editor.dat")};
    }
    void TearDown() override { SetModalDriver({}); }

    // The chooser while it is open, driven by `drive`.
    void WhileOpen(std::function<void(OptionsWindow&)> drive)
    {
        SetModalDriver([drive](QDialog& form) { drive(static_cast<OptionsWindow&>(form)); });
    }

    QString Setting() const { return FromSystemPath(ReadSettingFile(ToSystemPath(places.besideExecutable))); }

    // A copy of a game folder among the fixtures.
    QString Fixture(const char* name) const { return QDir(QtPath(scratch_.Fixture(name))).canonicalPath(); }

    SettingPlaces places;
    // Sydney Sixes (Smith, Jones), Perth Pies, Hobart Hurricanes and Leeds
    // Lions, the last of another country.
    const QString full = Fixture("game_four_teams");
    const QString teamsOnly = Fixture("teams_file_only");
};

// A game folder that cannot be opened says which folder and why; at start
// that, or a game file in it that is no file at all, is told with the reason,
// and File > Options is offered.
TEST_F(OptionsTest, AGameFolderThatCannotBeOpenedAtStartIsToldAndOptionsOffered)
{
    const QString game = QtPath(scratch_ / "game");
    const struct {
        const char* what;
        std::function<void()> make;
        QString said;   // empty: the folder can be opened
    } troubles[] = {
        {"a file where the folder should be", [&] { QFile(game).open(QIODevice::WriteOnly); },
         "The game folder " + QDir::toNativeSeparators(game) + " is not a folder."},
        {"an empty folder", [&] { QFile::remove(game); QDir().mkpath(game); },
         "The game folder " + QDir::toNativeSeparators(game) + " holds no players.dat."},
        {"players.dat only", [&] { QFile(game + "/players.dat").open(QIODevice::WriteOnly); },
         "The game folder " + QDir::toNativeSeparators(game) + " holds no teams.dat."},
        {"both files", [&] { QFile(game + "/teams.dat").open(QIODevice::WriteOnly); }, ""},
    };
    for (const auto& c : troubles) {
        c.make();
        const QString said = GameFolderTrouble(game).value_or(QString());
        EXPECT_TRUE(c.said.isEmpty() ? said.isEmpty() : said.startsWith(c.said)) << c.what << ": " << said.toStdString();
    }

    const QString missing = QtPath(scratch_ / "gone");
    const QString refusing = QtPath(scratch_ / "refusing");
    ASSERT_TRUE(QDir().mkpath(refusing + "/players.dat"));
    ASSERT_TRUE(QFile::copy(QtPath(scratch_.Sample() / "teams.dat"), refusing + "/teams.dat"));
    const struct {
        QString folder;
        QString told;
        QMessageBox::StandardButton answer;
    } starts[] = {
        {missing, "The game folder " + QDir::toNativeSeparators(missing) + " does not exist.", QMessageBox::No},
        {refusing, "players.dat was not read: it is a folder, not a file", QMessageBox::Yes},
    };
    for (const auto& c : starts) {
        ASSERT_TRUE(WriteSettingFile(ToSystemPath(places.besideExecutable), ToSystemPath(c.folder)).ok());
        ClearShownMessages();
        Answer({c.answer});
        bool optionsShown = false;
        SetModalDriver([&](QDialog& shown) { optionsShown = dynamic_cast<OptionsWindow*>(&shown) != nullptr; });
        MakeEditor(places);
        ASSERT_TRUE(editor->Start());
        const QString offer = "\n\nDo you want to choose the game's folder now (File > Options)?";
        EXPECT_EQ(ShownTexts(), std::vector<QString>{c.told + offer});
        EXPECT_EQ(optionsShown, c.answer == QMessageBox::Yes);
    }
}

// The first start's chooser.
TEST_F(OptionsTest, AnUnreadableDriveChangesNothingAndTheFirstRunTakesAFolderWithBothFilesOnly)
{
    OptionsWindow chooser(std::string(), places, OptionsWindow::Mode::FirstStart);
    auto& folders = Find<FolderTree>(chooser, "folderList");
    auto& drives = Find<DriveBox>(chooser, "driveList");
    ASSERT_TRUE(folders.SetPath(full));
    const QString noDisk = QtPath(scratch_ / "drive-without-a-disk");
    drives.AddDrive(noDisk);
    drives.setCurrentIndex(drives.count() - 1);
    ASSERT_EQ(ShownMessages().size(), 1u);
    EXPECT_EQ(ShownMessages()[0].text, "Error reading Drive");
    EXPECT_EQ(Look(ShownMessages()[0]), Look("Error", QMessageBox::Critical));
    EXPECT_EQ(folders.Path(), full);
    EXPECT_EQ(Find<FileNameList>(chooser, "fileList").Path(), full);
    EXPECT_EQ(drives.Drive(), noDisk);

    // Back on a real drive, the list returns to where it was on that drive.
    drives.SetDrive(full);
    EXPECT_EQ(folders.Path(), full);
    EXPECT_EQ(ShownMessages().size(), 1u);

    // Only both names in exactly their case count: "teams.dat" alone or a
    // "Players.dat" ends the run. The good folder comes last, as the
    // editor.dat it leaves would skip the window.
    for (const QString& dir : {teamsOnly, Fixture("players_file_capitalised"), full}) {
        SCOPED_TRACE(dir.toStdString());
        const bool good = dir == full;
        ClearShownMessages();
        MakeEditor(places);
        WhileOpen([&](OptionsWindow& options) {
            EXPECT_FALSE(Find<QPushButton>(options, "firstStartOkButton").isHidden());
            EXPECT_TRUE(Find<QPushButton>(options, "changeDirectoryOkButton").isHidden());
            Find<FolderTree>(options, "folderList").SetPath(dir);
            EXPECT_EQ(options.BothDataFilesListed(), good);
            EXPECT_EQ(Find<QLabel>(options, "filesNote").text(), good ? "Files teams.dat and players.dat found in this directory."
                                                   : "Files teams.dat and players.dat NOT found in current directory.");
            QTest::mouseClick(&Find<QPushButton>(options, "firstStartOkButton"), Qt::LeftButton);
        });
        ASSERT_EQ(editor->Start(), good);
        if (good) {  // what the window then shows is the start-up's test
            EXPECT_EQ(Setting(), full);
            EXPECT_EQ(ShownTitle(*main), "KOLTA editor (" + QDir::toNativeSeparators(full) + ")");
            EXPECT_TRUE(ShownMessages().empty());
            continue;
        }
        EXPECT_TRUE(Document().Folder().empty());
        EXPECT_FALSE(QFile::exists(places.besideExecutable));
        ASSERT_EQ(ShownMessages().size(), 1u);
        EXPECT_EQ(ShownMessages()[0].text, "teams.dat and players.dat not found in current directory.KOLTA ed will exit.");
        EXPECT_EQ(Look(ShownMessages()[0]), Look("Error", QMessageBox::Critical));
    }
}

// From the menu: closing changes nothing; OK asks about unsaved edits, a
// No reloads without them, and the old game's extra teams and players are
// gone everywhere, not hidden.
TEST_F(OptionsTest, AReloadFromTheMenuReplacesTheWholeGame)
{
    ASSERT_TRUE(WriteSettingFile(ToSystemPath(places.besideExecutable), ToSystemPath(full)).ok());
    MakeEditor(places);
    ASSERT_TRUE(editor->Start());
    QAction& optionsAction = Find<QAction>(*main, "optionsAction");
    ClearShownMessages();
    Find<TextBox>(*main, "team.teamName").setText("Renamed but not saved");
    Find<TextBox>(*main, "batSkill").setText("99");

    WhileOpen([&](OptionsWindow& options) { Find<FolderTree>(options, "folderList").SetPath(teamsOnly); });
    optionsAction.trigger();
    EXPECT_EQ(game->Teams[1].teamName, "Renamed but not saved");
    EXPECT_EQ(ShownTitle(*main), "KOLTA editor (" + QDir::toNativeSeparators(full) + ")*");

    const QString fewer = Fixture("game_one_team");  // Brisbane Bats (Green)
    Answer({QMessageBox::Cancel, QMessageBox::No});
    WhileOpen([&](OptionsWindow& options) {
        auto& folders = Find<FolderTree>(options, "folderList");
        EXPECT_EQ(folders.Path(), full);
        EXPECT_TRUE(Find<QPushButton>(options, "firstStartOkButton").isHidden());
        folders.SetPath(fewer);
        // Cancel keeps the game and the window; No lets the edits go.
        QTest::mouseClick(&Find<QPushButton>(options, "changeDirectoryOkButton"), Qt::LeftButton);
        EXPECT_TRUE(options.isVisible());
        EXPECT_EQ(game->Teams[1].teamName, "Renamed but not saved");
        QTest::mouseClick(&Find<QPushButton>(options, "changeDirectoryOkButton"), Qt::LeftButton);
        EXPECT_FALSE(options.isVisible());
    });
    optionsAction.trigger();

    EXPECT_EQ(ShownTexts(), std::vector<QString>(2, "Do you want to update the files teams.dat and players.dat?"));
    EXPECT_EQ(Setting(), fewer);
    EXPECT_EQ(ShownTitle(*main), "KOLTA Editor (" + QDir::toNativeSeparators(fewer) + ")");
    EXPECT_EQ(game->Teams[1].teamName, "Brisbane Bats");
    EXPECT_EQ(game->Players[1].batSkill, 0);
    EXPECT_EQ(Rows(Combo("teamList")), std::vector<QString>{"Brisbane Bats"});
    EXPECT_EQ(Squad().item(Squad().ChosenRow())->text(), "A Green");
    EXPECT_FALSE(Find<QAction>(*main, "undoAction").isEnabled()) << "the old game's steps are gone";
    EXPECT_EQ(game->Teams[4], TeamRecord{});
    EXPECT_EQ(game->Players[4], PlayerRecord{});
    EXPECT_EQ(game->PlayerCount, 1);
}

// Every command of the window's menus, as the guides name it: "File > Exit".
std::set<QString> MenuCommands(const QMainWindow& window)
{
    const auto plain = [](QString text) { return text.replace("&&", "\x01").remove('&').replace('\x01', '&'); };
    std::set<QString> commands;
    for (const QAction* menu : window.menuBar()->actions()) {
        for (const QAction* action : menu->menu()->actions()) {
            if (!action->isSeparator())
                commands.insert(plain(menu->text()) + " > " + plain(action->text()));
        }
    }
    return commands;
}

std::set<QString> Captured(const QString& text, const QRegularExpression& pattern)
{
    std::set<QString> found;
    for (auto match = pattern.globalMatch(text); match.hasNext();)
        found.insert(match.next().captured(1));
    return found;
}

QString Shipped(const char* name)
{
    QFile file(QDir(QCoreApplication::applicationDirPath()).absoluteFilePath(QString::fromLatin1(name)));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return QString::fromUtf8(file.readAll());
}

// About, the pictures' pages, the Help window and the guides.
TEST(InfoWindows, AboutClosesOnEscapeThePicturesOpenTheirPagesAndTheGuidesListTheMenus)
{
    Editor editor{SettingPlaces{}};
    MainWindow& main = editor.Window();
    bool closed = false;
    SetModalDriver([&](QDialog& shown) {
        auto& about = dynamic_cast<AboutWindow&>(shown);
        EXPECT_EQ(about.parentWidget(), &main);
        EXPECT_FALSE(Find<QLabel>(about, "icon").pixmap().isNull());
        ASSERT_TRUE(QTest::qWaitForWindowActive(&about));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        closed = !about.isVisible();
    });
    Find<QAction>(main, "aboutAction").trigger();
    SetModalDriver({});
    EXPECT_TRUE(closed);

    // Each click on a picture opens its page beside the program again.
    std::vector<QUrl> opened;
    SetPageOpener([&](const QUrl& page) {
        opened.push_back(page);
        return true;
    });
    auto& guidePicture = Find<ClickablePicture>(main, "userGuidePicture");
    QTest::mouseClick(&guidePicture, Qt::LeftButton);
    QTest::mouseClick(&Find<ClickablePicture>(main, "fileFormatsPicture"), Qt::LeftButton);
    QTest::mouseClick(&guidePicture, Qt::LeftButton);
    SetPageOpener({});
    const QDir beside(QCoreApplication::applicationDirPath());
    const QUrl guide = QUrl::fromLocalFile(beside.absoluteFilePath("guide.html"));
    const QUrl formats = QUrl::fromLocalFile(beside.absoluteFilePath("file-formats.html"));
    EXPECT_EQ(opened, (std::vector<QUrl>{guide, formats, guide}));

    // The Help window's table of ranges, read from the field table whose
    // ranges the new player's checks hold to (field_table_test).
    const HelpWindow ranges;
    std::vector<std::pair<QString, QString>> rows;
    for (int row = 0; const auto* skill = ranges.findChild<QLabel*>(QStringLiteral("skill%1").arg(row)); ++row)
        rows.emplace_back(skill->text(), ranges.findChild<QLabel*>(QStringLiteral("range%1").arg(row))->text());
    EXPECT_THAT(rows, ElementsAre(Pair("Bat Skill", "0 - 60"), Pair("Bat Aggression", "0 - 20"),
                                  Pair("Bowl Skill", "0 - 60"), Pair("Bowl Econ.", "0 - 20"),
                                  Pair("Field Skill", "10 - 40"), Pair("Potential", "0 - 20")));

    // A command added to a menu without a word in the guides fails here, and
    // so does a guide that names a command the menus no longer have.
    const std::set<QString> commands = MenuCommands(main);
    ASSERT_GE(commands.size(), 10u);

    // help.txt: each line of its last section, Menus, opens with a command.
    const QString help = Shipped("help.txt");
    const QString menus = help.mid(help.indexOf("\nMenus\n-----\n"));
    EXPECT_EQ(Captured(menus, QRegularExpression("^(\\S+ > .+?)(?:  |\r?$)", QRegularExpression::MultilineOption)),
              commands);
    // guide.html: the first cell of each row of its table of menus.
    QString table = Shipped("guide.html");
    table = table.mid(table.indexOf("<table id=\"menus\">"));
    table = table.left(table.indexOf("</table>")).replace("&gt;", ">").replace("&amp;", "&");
    EXPECT_EQ(Captured(table, QRegularExpression("<tr><td>([^<]+)</td>")), commands);
}

}  // namespace
