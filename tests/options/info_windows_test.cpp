// The small information windows: the table of skill ranges, About, the
// help message, and the two pictures' pages.

#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>
#include <vector>

#include <gtest/gtest.h>

#include "forms/message_box.h"
#include "forms/modal.h"
#include "forms/picture_box.h"
#include "mainwindow/main_form.h"
#include "newplayer/new_player_check.h"
#include "options/about_form.h"
#include "options/help_form.h"
#include "options/web_pages.h"

namespace {

class InfoWindows : public ::testing::Test {
protected:
    InfoWindows()
    {
        ClearShownMessages();
        SetMessageAnswerer([](const ShownMessage&) { return IdOk; });
        SetPageOpener([this](const QUrl& page) {
            opened.push_back(page);
            return browserStarts;
        });
    }
    ~InfoWindows() override
    {
        SetMessageAnswerer({});
        SetModalDriver({});
        SetPageOpener({});
    }

    std::vector<QUrl> opened;
    bool browserStarts = true;
    Game game;
    MainForm main{game, SettingPlaces{}};
};

QUrl BesideProgram(const QString& name)
{
    return QUrl::fromLocalFile(QDir(QCoreApplication::applicationDirPath()).absoluteFilePath(name));
}

// The table is fixed text, so it is held against the checks the new-player
// window really makes.
TEST(HelpWindow, ListsTheRangesTheNewPlayerChecksUse)
{
    HelpForm help;
    const char* skills[] = {"Bat Skill", "Bat Aggression", "Bowl Skill", "Bowl Econ.", "Field Skill", "Potential"};
    for (std::size_t row = 0; row < StatRanges.size(); ++row) {
        SCOPED_TRACE(skills[row]);
        EXPECT_EQ(help.Label2[row]->text(), skills[row]);
        EXPECT_EQ(help.Label3[row]->text(),
                  QStringLiteral("%1 - %2").arg(StatRanges[row].lowest).arg(StatRanges[row].highest));
        EXPECT_LT(help.Label2[row]->geometry().right(), help.Label3[row]->geometry().left())
            << "the skill and its range do not touch";
    }
    help.show();
    help.Command1->click();
    EXPECT_FALSE(help.isVisible());
}

TEST_F(InfoWindows, AboutOpensFromTheMenuAndClosesOnEnterOrEscape)
{
    std::vector<QString> closedBy;
    for (Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        SetModalDriver([&](QDialog& shown) {
            auto& about = dynamic_cast<AboutForm&>(shown);
            EXPECT_EQ(about.parentWidget(), &main);
            EXPECT_FALSE(about.Image1->pixmap().isNull());
            ASSERT_TRUE(QTest::qWaitForWindowActive(&about));
            QTest::keyClick(QApplication::focusWidget(), key);
            if (!about.isVisible())
                closedBy.push_back(QKeySequence(key).toString());
        });
        main.abt->trigger();
    }
    EXPECT_EQ(closedBy, (std::vector<QString>{"Return", "Esc"}));
}

// F1 and the menu item only name the help file; each click on a picture
// opens its page again.
TEST_F(InfoWindows, HelpAndThePicturesPages)
{
    main.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&main));
    QTest::keyClick(&main, Qt::Key_F1);
    main.hoe->trigger();
    ASSERT_EQ(ShownMessages().size(), 2u);
    for (const ShownMessage& message : ShownMessages()) {
        EXPECT_EQ(message.text, "Please read help.txt file for help on KOLTA editor.");
        EXPECT_EQ(message.title, "Help");
        EXPECT_EQ(message.flags, MbInformation);
    }

    QTest::mouseClick(main.Image1, Qt::LeftButton);
    QTest::mouseClick(main.Image2, Qt::LeftButton);
    QTest::mouseClick(main.Image1, Qt::LeftButton);
    const QUrl guide = BesideProgram("guide.html");
    const QUrl formats = BesideProgram("file-formats.html");
    EXPECT_EQ(opened, (std::vector<QUrl>{guide, formats, guide}));
    EXPECT_TRUE(QFile::exists(guide.toLocalFile()));
    EXPECT_TRUE(QFile::exists(formats.toLocalFile()));
    EXPECT_EQ(ShownMessages().size(), 2u);
}

// A page that is missing or a browser that will not start is told, and the
// editor goes on.
TEST_F(InfoWindows, APageThatCannotBeShownIsTold)
{
    QTemporaryDir elsewhere;
    const QString missing = elsewhere.filePath("guide.html");
    OpenWebPage(QUrl::fromLocalFile(missing));
    EXPECT_TRUE(opened.empty());
    browserStarts = false;
    main.Image2_Click();
    ASSERT_EQ(ShownMessages().size(), 2u);
    EXPECT_TRUE(ShownMessages()[0].text.contains(QDir::toNativeSeparators(missing)));
    EXPECT_TRUE(ShownMessages()[1].text.contains(QDir::toNativeSeparators(BesideProgram("file-formats.html").toLocalFile())));
    EXPECT_EQ(ShownMessages()[1].flags, MbInformation);
}

}  // namespace
