#include "editor_fixture.h"

#include <QDir>
#include <QPushButton>

#include "data/file_io.h"
#include "data/players_file.h"
#include "diff/game_files.h"
#include "data/setting_file.h"
#include "data/teams_file.h"
#include "newplayerwindow/new_player_window.h"
#include "options/options_window.h"
#include "searchwindow/search_window.h"

EditorTest::EditorTest()
{
    // Closing the window in a test must not end the test program.
    QApplication::setQuitOnLastWindowClosed(false);
    ClearShownMessages();
    SetMessageAnswerer([this](const ShownMessage&) {
        if (answers_.empty())
            return QMessageBox::Ok;
        const QMessageBox::StandardButton answer = answers_.front();
        answers_.erase(answers_.begin());
        return answer;
    });
}

GameBuilder EditorTest::SmallWorld()
{
    GameBuilder b;
    // Home country 29 is the second "Namibia", 13 the first; 0 and a batting
    // position of 7 have no entry in their lists.
    b.game->Players[1] = {.playerNumber = 1, .initials = "H R", .surname = "Quillfeather", .birthDay = 3,
                          .birthMonth = 11, .birthYear = 1980, .homeCountry = 29, .batPosition = 1, .bats = 1,
                          .batSkill = 52, .batAggression = 7, .bowlType = 7, .bowls = 0, .bowlSkill = -4,
                          .bowlEconomy = 0, .fieldAbility = 38, .fieldsAt = 2, .potential = 16, .carriedValue = 99};
    b.game->Players[2] = {.playerNumber = 2, .initials = "", .surname = "Ormsby", .birthYear = 1975,
                          .homeCountry = 0, .batPosition = 7, .bats = 0, .batSkill = 12, .bowlType = 1, .bowls = 1,
                          .fieldsAt = 4};
    b.game->Players[3] = {.playerNumber = 3, .initials = "T", .surname = "Vanterpool", .homeCountry = 13,
                          .batPosition = 6, .batSkill = 30, .bowlType = 9, .fieldsAt = 1};
    b.Player(4, "Ashgrove", "K").homeCountry = 1;
    b.Player(5, "Brindle", "P J").homeCountry = 2;
    b.Player(6, "Calloway", "W").homeCountry = 8;

    TeamRecord& perth = b.Team(1, "Perth Pelicans", {1, 2, 3});
    perth.abbreviation = "PPL";
    perth.homeCountry = 1;
    perth.reputation = 83;
    perth.wealth = -250;
    perth.support = 81;
    b.Team(2, "Darwin Dingoes", {4, 0, 5}).homeCountry = 1;
    b.Team(3, "Kingston Kites", {6}).homeCountry = 8;
    return b;
}

void EditorTest::Open(GameBuilder built)
{
    ASSERT_TRUE(QDir().mkpath(GameFolder()));
    SetGameDirectory(*built.game, ToSystemPath(GameFolder()));
    ASSERT_TRUE(WritePlayersFile(*built.game).ok());
    ASSERT_TRUE(WriteTeamsFile(*built.game).ok());
    const SettingPlaces places{QtPath(scratch_ / "editor.dat"), QtPath(scratch_ / "config" / "editor.dat")};
    ASSERT_TRUE(WriteSettingFile(ToSystemPath(places.besideExecutable), ToSystemPath(GameFolder())).ok());

    MakeEditor(places);
    ASSERT_TRUE(editor->Start());
    main->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(main));
    ASSERT_TRUE(QTest::qWaitFor([this] { return editor->Started(); }, 2000));
}

void EditorTest::MakeEditor(const SettingPlaces& places)
{
    editor.reset();
    editor = std::make_unique<Editor>(places);
    main = &editor->Window();
    game = &editor->Document().Records();
}

std::string EditorTest::Files() const
{
    const auto bytes = [this](const char* file) {
        return ReadWholeFile(ToSystemPath(GameFolder() + '/' + file)).value_or("(missing)");
    };
    return bytes("players.dat") + "|" + bytes("teams.dat");
}

std::unique_ptr<Game> EditorTest::OnDisk() const
{
    return ReadGameFiles(ToSystemPath(GameFolder()));
}

std::vector<QString> EditorTest::Place() const
{
    const int row = Squad().ChosenRow();
    return {Combo("countryList").currentText(), Combo("teamList").currentText(),
            row >= 0 ? Squad().item(row)->text() : QString(), BoxText("surname")};
}

void EditorTest::Retype(const char* box, const QString& text)
{
    TextBox* edit = &Find<TextBox>(*main, box);
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
    // Typed over the selection, as a surname box refuses to become empty.
    if (text.isEmpty())
        QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, text);
}

void EditorTest::FillNewPlayer(NewPlayerWindow& form, const char* surname)
{
    const std::pair<const char*, const char*> entries[] = {
        {"initials", "N"},     {"surname", surname},   {"birthDay", "1"},      {"birthMonth", "2"},
        {"birthYear", "1990"}, {"batSkill", "30"},     {"batAggression", "5"}, {"bowlSkill", "20"},
        {"bowlEconomy", "9"},  {"fieldAbility", "20"}, {"potential", "10"},
    };
    for (const auto& [box, text] : entries)
        Find<TextBox>(form, box).setText(text);
}

void EditorTest::SearchAndPick(SearchWindow& form, const QString& name)
{
    QTest::mouseClick(&Find<QPushButton>(form, "searchButton"), Qt::LeftButton);
    ASSERT_TRUE(Pick(Find<ChoiceList>(form, "resultList"), name)) << name.toStdString();
}
