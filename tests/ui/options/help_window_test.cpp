// The Help window's table of ranges, read from the field table whose ranges
// the new player's checks hold to (field_table_test). The guides list the
// menus' commands.

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <set>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "editor/editor.h"
#include "options/help_window.h"

using ::testing::ElementsAre;
using ::testing::Pair;

namespace {

TEST(HelpWindow, ShowsTheRangesOfTheFieldTable)
{
    const HelpWindow help;
    std::vector<std::pair<QString, QString>> rows;
    for (int row = 0; const auto* skill = help.findChild<QLabel*>(QStringLiteral("skill%1").arg(row)); ++row)
        rows.emplace_back(skill->text(), help.findChild<QLabel*>(QStringLiteral("range%1").arg(row))->text());
    EXPECT_THAT(rows, ElementsAre(Pair("Bat Skill", "0 - 60"), Pair("Bat Aggression", "0 - 20"),
                                  Pair("Bowl Skill", "0 - 60"), Pair("Bowl Econ.", "0 - 20"),
                                  Pair("Field Skill", "10 - 40"), Pair("Potential", "0 - 20")));
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

// A command added to a menu without a word in the guides fails here, and so
// does a guide that names a command the menus no longer have.
TEST(Guides, ListEveryMenuCommandAndNoOther)
{
    Editor editor{SettingPlaces{}};
    const std::set<QString> commands = MenuCommands(editor.Window());
    ASSERT_GE(commands.size(), 10u);

    // help.txt: each line of its last section, Menus, opens with a command.
    const QString help = Shipped("help.txt");
    const QString menus = help.mid(help.indexOf("\nMenus\n-----\n"));
    EXPECT_EQ(Captured(menus, QRegularExpression("^(\\S+ > .+?)(?:  |\r?$)", QRegularExpression::MultilineOption)),
              commands);
    // guide.html: the first cell of each row of its table of menus.
    QString guide = Shipped("guide.html");
    guide = guide.mid(guide.indexOf("<table id=\"menus\">"));
    guide = guide.left(guide.indexOf("</table>")).replace("&gt;", ">").replace("&amp;", "&");
    EXPECT_EQ(Captured(guide, QRegularExpression("<tr><td>([^<]+)</td>")), commands);
}

}  // namespace
