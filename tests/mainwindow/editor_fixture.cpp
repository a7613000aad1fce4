#include "editor_fixture.h"

#include <QApplication>
#include <QDir>
#include <QTest>

#include "data/players_file.h"
#include "data/setting_file.h"
#include "data/teams_file.h"
#include "forms/combo_box.h"
#include "forms/list_box.h"
#include "forms/text_box.h"
#include "options/options_form.h"

EditorTest::EditorTest()
{
    // Closing the window in a test must not end the test program.
    QApplication::setQuitOnLastWindowClosed(false);
    ClearShownMessages();
    SetMessageAnswerer([this](const ShownMessage&) {
        if (answers_.empty())
            return IdOk;
        const int answer = answers_.front();
        answers_.erase(answers_.begin());
        return answer;
    });
}

EditorTest::~EditorTest()
{
    SetMessageAnswerer({});
}

GameBuilder EditorTest::SmallWorld()
{
    GameBuilder b;
    PlayerRecord& quill = b.Player(1, "Quillfeather", "H R");
    quill.homeCountry = 29;  // the second "Namibia"
    quill.batPosition = 1;
    quill.bats = 1;
    quill.bowlType = 7;
    quill.bowls = 0;
    quill.fieldsAt = 2;
    quill.birthDay = 3;
    quill.birthMonth = 11;
    quill.birthYear = 1980;
    quill.batSkill = 52;
    quill.batAggression = 7;
    quill.bowlSkill = -4;
    quill.bowlEconomy = 0;
    quill.fieldAbility = 38;
    quill.potential = 16;
    quill.carriedValue = 99;

    PlayerRecord& ormsby = b.Player(2, "Ormsby", "");
    ormsby.homeCountry = 0;   // no entry: nothing is chosen
    ormsby.batPosition = 7;   // past the end of the list
    ormsby.bats = 0;
    ormsby.bowlType = 1;
    ormsby.bowls = 1;
    ormsby.fieldsAt = 4;
    ormsby.birthYear = 1975;
    ormsby.batSkill = 12;

    PlayerRecord& vanterpool = b.Player(3, "Vanterpool", "T");
    vanterpool.homeCountry = 13;  // the first "Namibia"
    vanterpool.batPosition = 6;
    vanterpool.bowlType = 9;
    vanterpool.fieldsAt = 1;
    vanterpool.batSkill = 30;

    b.Player(4, "Ashgrove", "K").homeCountry = 1;
    b.Player(5, "Brindle", "P J").homeCountry = 2;
    b.Player(6, "Calloway", "W").homeCountry = 8;
    b.Player(7, "Drennan", "M").homeCountry = 3;

    TeamRecord& perth = b.Team(1, "Perth Pelicans", {1, 2, 3});
    perth.abbreviation = "PPL";
    perth.homeCountry = 1;
    perth.reputation = 83;
    perth.wealth = -250;
    perth.support = 81;
    TeamRecord& darwin = b.Team(2, "Darwin Dingoes", {4, 0, 5});  // a gap in the squad
    darwin.abbreviation = "DDG";
    darwin.homeCountry = 1;
    darwin.reputation = 40;
    b.Team(3, "Kingston Kites", {6}).homeCountry = 8;
    b.Team(4, "Mumbai Mynas").homeCountry = 3;
    b.Team(5, "Nairobi Nomads", {7}).homeCountry = 11;
    return b;
}

void EditorTest::Open(GameBuilder built)
{
    ASSERT_TRUE(root_.isValid());
    ASSERT_TRUE(QDir().mkpath(GameFolder()));
    ASSERT_TRUE(QDir().mkpath(ProgramFolder()));
    SetGameDirectory(*built.game, ToSystemPath(GameFolder()));
    ASSERT_TRUE(WritePlayersFile(*built.game).ok());
    ASSERT_TRUE(WriteTeamsFile(*built.game).ok());
    const SettingPlaces places{QDir(ProgramFolder()).filePath(QStringLiteral("editor.dat")),
                               root_.filePath(QStringLiteral("config/editor.dat"))};
    ASSERT_TRUE(WriteSettingFile(ToSystemPath(places.besideExecutable), ToSystemPath(GameFolder())).ok());

    game = std::make_unique<Game>();
    main = std::make_unique<MainForm>(*game, places);
    ASSERT_TRUE(main->Form_Load());
    main->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(main.get()));
}

std::unique_ptr<Game> EditorTest::ReadBack() const
{
    auto read = std::make_unique<Game>();
    SetGameDirectory(*read, ToSystemPath(GameFolder()));
    EXPECT_TRUE(ReadPlayersFile(*read));
    EXPECT_TRUE(ReadTeamsFile(*read));
    return read;
}

std::vector<QString> EditorTest::MessageTexts() const
{
    std::vector<QString> texts;
    for (const ShownMessage& message : ShownMessages())
        texts.push_back(message.text);
    return texts;
}

std::vector<QString> EditorTest::SquadRows() const
{
    std::vector<QString> rows;
    for (int row = 0; row < main->List1->ListCount(); ++row)
        rows.push_back(main->List1->List(row));
    return rows;
}

std::vector<QString> EditorTest::TeamEntries() const
{
    std::vector<QString> entries;
    for (int entry = 0; entry < main->Combo2->ListCount(); ++entry)
        entries.push_back(main->Combo2->List(entry));
    return entries;
}

void EditorTest::Retype(int box, const QString& text)
{
    TextBox* edit = main->Text1[std::size_t(box)];
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, text);
}
