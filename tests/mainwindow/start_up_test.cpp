// The editor comes up on the first country, team and player of the game
// that editor.dat names, and only then starts carrying edits into the records.

#include <QApplication>
#include <QDir>

#include "data/setting_file.h"
#include "editor_fixture.h"
#include "options/options_form.h"

namespace {

using StartUp = EditorTest;

TEST_F(StartUp, OpensOnTheFirstTeamAndPlayerOfTheFirstCountry)
{
    Open();
    EXPECT_EQ(main->windowTitle(), "KOLTA editor (" + GameFolder() + ")");
    EXPECT_EQ(main->Combo1->ListCount(), 10);
    EXPECT_EQ(main->Combo1->currentText(), "Australia");
    EXPECT_EQ(Rows(*main->Combo2), (std::vector<QString>{"Perth Pelicans", "Darwin Dingoes"}));
    EXPECT_EQ(main->Combo2->ListIndex(), 0);
    EXPECT_EQ(main->lblteamno->text(), "1");
    // Empty initials leave a leading blank in the row.
    EXPECT_EQ(Rows(*main->List1), (std::vector<QString>{"H R Quillfeather", " Ormsby", "T Vanterpool"}));
    EXPECT_EQ(main->List1->ListIndex(), 0);
    EXPECT_EQ(main->Label3->text(), "1");
    EXPECT_FALSE(main->Label3->isVisible());
    EXPECT_EQ(QApplication::focusWidget(), main->List1);
    EXPECT_TRUE(ShownMessages().empty());
    // The timer carries an edit without help.
    Retype(PotentialBox, "19");
    EXPECT_TRUE(QTest::qWaitFor([&] { return game->Players[1].potential == 19; }, 2000));
}

TEST_F(StartUp, AFirstCountryWithoutTeamsLeavesNoCurrentTeam)
{
    // 130 English teams, so that a team numbered 123 exists for the form's
    // made-up caption to hit.
    GameBuilder b;
    b.Player(1, "Oakes", "J");
    for (int number = 1; number <= 130; ++number) {
        TeamRecord& team = b.Team(number, "Club " + std::to_string(number));
        team.homeCountry = 2;
        team.reputation = 50;
    }
    b.game->Teams[1].squad[1] = 1;
    Open(std::move(b));
    EXPECT_EQ(main->Combo2->ListCount(), 0);
    EXPECT_EQ(main->List1->ListCount(), 0);
    EXPECT_EQ(main->lblteamno->text(), "123");
    EXPECT_EQ(main->Label3->text(), "");
    Tick();
    EXPECT_EQ(game->Teams[123].teamName, "Club 123");

    // Once a team is shown, it is the one that edits go to.
    main->Combo1->SetText("England");
    EXPECT_EQ(main->Label3->text(), "1");
    Retype(ReputationBox, "61");
    Tick();
    EXPECT_EQ(game->Teams[1].reputation, 61);
    EXPECT_EQ(game->Teams[123].reputation, 50);
}

TEST_F(StartUp, AGameFolderWithoutItsFilesOpensEmptyAndQuietly)
{
    ASSERT_TRUE(QDir().mkpath(ProgramFolder()));
    const QString gone = root_.filePath(QStringLiteral("moved-away"));
    const SettingPlaces places{QDir(ProgramFolder()).filePath(QStringLiteral("editor.dat")), QString()};
    ASSERT_TRUE(WriteSettingFile(ToSystemPath(places.besideExecutable), ToSystemPath(gone)).ok());

    game = std::make_unique<Game>();
    main = std::make_unique<MainForm>(*game, places);
    ASSERT_TRUE(main->Form_Load());
    EXPECT_EQ(main->windowTitle(), "KOLTA editor (" + gone + ")");
    EXPECT_EQ(main->Combo2->ListCount(), 0);
    EXPECT_TRUE(main->Timer1->isActive());
    EXPECT_TRUE(ShownMessages().empty());
}

TEST(SettingPlaces, TheFileBesideTheProgramComesFirst)
{
    QTemporaryDir root;
    const QString beside = root.filePath(QStringLiteral("bin/editor.dat"));
    const QString user = root.filePath(QStringLiteral("config/kolta/editor.dat"));
    const SettingPlaces places{beside, user};
    ASSERT_TRUE(QDir().mkpath(root.filePath(QStringLiteral("bin"))));
    EXPECT_EQ(places.PathToRead(), user);   // nothing written yet
    EXPECT_EQ(places.PathToWrite(), beside);
    ASSERT_TRUE(QFile(beside).open(QIODevice::WriteOnly));
    EXPECT_EQ(places.PathToRead(), beside);

    // A program folder that cannot take the file sends it to the user's
    // folder, which is made on the way.
    const SettingPlaces nowhere{root.filePath(QStringLiteral("missing/editor.dat")), user};
    EXPECT_EQ(nowhere.PathToWrite(), user);
    EXPECT_TRUE(QDir(root.filePath(QStringLiteral("config/kolta"))).exists());
}

}  // namespace
