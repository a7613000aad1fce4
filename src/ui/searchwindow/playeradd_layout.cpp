#include <QLabel>
#include <QPushButton>
#include <algorithm>
#include <string_view>
#include <vector>

#include "data/code_lists.h"
#include "forms/combo_box.h"
#include "forms/game_text.h"
#include "forms/list_box.h"
#include "forms/shape.h"
#include "forms/text_box.h"
#include "forms/fitted_layout.h"
#include "searchwindow/playeradd_form.h"

namespace {

// Client area, in twips.
constexpr int AreaWidth = 9540;
constexpr int AreaHeight = 5955;

// The panel's two columns: captions, then values.
constexpr int LeftCaptions = 2700;
constexpr int LeftValues = 4140;
constexpr int RightCaptions = 6060;
constexpr int RightValues = 7500;
constexpr int CaptionWidth = 1335;
constexpr int ValueWidth = 1695;

const QColor BarColour(128, 128, 255);

template <std::size_t N>
ComboBox* MakeList(FittedLayout& at, QWidget* area, QRect twips, std::string_view first,
                   const std::array<std::string_view, N>& words)
{
    auto* box = at.Put(new ComboBox(area), twips, true);
    if (!first.empty())
        box->AddItem(FromGame(first));
    for (std::string_view word : words)
        box->AddItem(FromGame(word));
    return box;
}

}  // namespace

PlayerAddForm::PlayerAddForm(Game& game, MainForm& main, QWidget* parent)
    : QDialog(parent), game_(game), main_(main)
{
    setObjectName(QStringLiteral("playeradd"));
    setWindowTitle(QStringLiteral("Add Player.."));

    FittedLayout placement(this, {AreaWidth, AreaHeight});
    BuildFilters(placement);
    BuildPanel(placement);
    BuildButtons(placement);
    placement.Apply();
    barFullWidth_ = Shape2->width();

    ConnectHandlers();
}

void PlayerAddForm::BuildFilters(FittedLayout& at)
{
    Combo3[1] = MakeList(at, this, {180, 300, 2055, 315}, "All Nationalities", CountryList);
    Combo4[BattingFilterCombo] = MakeList(at, this, {2460, 300, 2055, 315}, "All Batting Types", BatPositionList);
    Combo4[BowlingFilterCombo] = MakeList(at, this, {4740, 300, 2055, 315}, "All Bowling Types", BowlTypeList);
    Combo4[FieldingFilterCombo] =
        MakeList(at, this, {7020, 300, 2055, 315}, "All Fielding Types", FieldPositionList);
    Combo2 = at.Put(new ComboBox(this), {180, 780, 2055, 315});

    Label2[14] = at.Put(new QLabel(QStringLiteral(" Sort by :-"), this), {240, 1380, 1155, 195}, true);
    constexpr std::array<std::string_view, 7> sortKeys{
        "Player Names (A-Z)", "Bat Skill", "Bat Aggression", "Bowl Skill", "Bowl Economy", "Field Skill", "Potential",
    };
    Combo4[SortKeyCombo] = MakeList(at, this, {1560, 1320, 3015, 315}, {}, sortKeys);
    Command3 = at.Put(new QPushButton(QStringLiteral("Search "), this), {4800, 1320, 1635, 315}, true);
    Shape2 = at.Put(new Shape(BarColour, this), {6660, 1380, 2505, 195});
    Shape2->hide();

    List1 = at.Put(new ListBox(this), {120, 1860, 2295, 3765});
}

void PlayerAddForm::BuildPanel(FittedLayout& at)
{
    const auto caption = [&](int index, const char* words, QRect twips) {
        Label2[index] = at.Put(new QLabel(QString::fromLatin1(words), this), twips, true);
    };
    const auto textBox = [&](int index, QRect twips) {
        Text1[index] = at.Put(new TextBox(this), twips);
        Text1[index]->SetLocked(true);
    };
    const auto codeList = [&](auto words, QRect twips) { return MakeList(at, this, twips, {}, words); };

    caption(1, "Player Name", {LeftCaptions, 2100, CaptionWidth, 315});
    textBox(InitialsBox, {LeftValues, 2100, 435, 315});
    textBox(SurnameBox, {4620, 2100, 1215, 315});
    caption(13, "Date of birth", {LeftCaptions, 2520, CaptionWidth, 255});
    textBox(DayBox, {LeftValues, 2520, 375, 255});
    Label1 = at.Put(new QLabel(QStringLiteral("/"), this), {4560, 2580, 135, 195});
    textBox(MonthBox, {4740, 2520, 375, 255});
    Label4 = at.Put(new QLabel(QStringLiteral("/"), this), {5160, 2580, 135, 195});
    textBox(YearBox, {5280, 2520, 555, 255});
    caption(22, "Home Country", {LeftCaptions, 2880, CaptionWidth, 315});
    Combo3[0] = codeList(CountryList, {LeftValues, 2880, ValueWidth, 315});
    caption(15, "Present Club", {LeftCaptions, 3300, CaptionWidth, 255});
    textBox(TeamNameBox, {LeftValues, 3300, ValueWidth, 255});
    caption(2, "Bat position", {LeftCaptions, 3660, CaptionWidth, 315});
    Combo4[BatPositionCombo] = codeList(BatPositionList, {LeftValues, 3660, ValueWidth, 315});
    caption(3, "Bats", {LeftCaptions, 4080, CaptionWidth, 315});
    Combo4[BatsCombo] = codeList(HandList, {LeftValues, 4080, ValueWidth, 315});
    caption(4, "Bat skill", {LeftCaptions, 4500, CaptionWidth, 255});
    textBox(BatSkillBox, {LeftValues, 4500, ValueWidth, 255});
    caption(5, "Bat aggr.", {LeftCaptions, 4860, CaptionWidth, 255});
    textBox(BatAggressionBox, {LeftValues, 4860, ValueWidth, 255});

    caption(6, "Bowl Type", {RightCaptions, 2100, CaptionWidth, 315});
    Combo4[BowlTypeCombo] = codeList(BowlTypeList, {RightValues, 2100, ValueWidth, 315});
    caption(7, "Bowls", {RightCaptions, 2520, CaptionWidth, 315});
    Combo4[BowlsCombo] = codeList(HandList, {RightValues, 2520, ValueWidth, 315});
    caption(8, "Bowl Skill", {RightCaptions, 2940, CaptionWidth, 255});
    textBox(BowlSkillBox, {RightValues, 2940, ValueWidth, 255});
    caption(9, "Bowl Economy", {RightCaptions, 3300, CaptionWidth, 255});
    textBox(BowlEconomyBox, {RightValues, 3300, ValueWidth, 255});
    caption(10, "Field ability", {RightCaptions, 3660, CaptionWidth, 255});
    textBox(FieldAbilityBox, {RightValues, 3660, ValueWidth, 255});
    caption(11, "Fields at", {RightCaptions, 4020, CaptionWidth, 315});
    Combo4[FieldsAtCombo] = codeList(FieldPositionList, {RightValues, 4020, ValueWidth, 315});
    caption(12, "Potential", {RightCaptions, 4440, CaptionWidth, 255});
    textBox(PotentialBox, {RightValues, 4440, ValueWidth, 255});

    // The panel only shows: nothing in it takes input. Its values still read
    // as plainly as those of the main window.
    QPalette readable = palette();
    for (QPalette::ColorRole role : {QPalette::Text, QPalette::ButtonText})
        readable.setColor(QPalette::Disabled, role, readable.color(QPalette::Active, role));
    std::vector<QWidget*> values{Combo3[0]};
    values.insert(values.end(), Combo4.begin(), Combo4.begin() + FieldsAtCombo + 1);
    std::copy_if(Text1.begin(), Text1.end(), std::back_inserter(values), [](TextBox* box) { return box; });
    for (QWidget* value : values) {
        value->setEnabled(false);
        value->setPalette(readable);
    }

    // The candidate's number is kept out of sight, as is its caption.
    Label2[0] = new QLabel(QStringLiteral("Player number"), this);
    Label2[0]->hide();
    Label3 = new QLabel(this);
    Label3->hide();
}

void PlayerAddForm::BuildButtons(FittedLayout& at)
{
    // The two transfer buttons share one spot; the mode shows one of them.
    Command1 = at.Put(new QPushButton(QStringLiteral("Add This Player"), this), {3000, 5400, 1995, 375}, true);
    Command4 =
        at.Put(new QPushButton(QStringLiteral("Replace with this player"), this), {3000, 5400, 1995, 375}, true);
    Command4->hide();
    Command2 = at.Put(new QPushButton(QStringLiteral("Finished"), this), {6180, 5400, 1995, 375}, true);
}

void PlayerAddForm::ConnectHandlers()
{
    connect(Command3, &QPushButton::clicked, this, &PlayerAddForm::Command3_Click);
    connect(List1, &ListBox::Click, this, &PlayerAddForm::List1_Click);
    connect(Command1, &QPushButton::clicked, this, &PlayerAddForm::Command1_Click);
    connect(Command4, &QPushButton::clicked, this, &PlayerAddForm::Command4_Click);
    connect(Command2, &QPushButton::clicked, this, &PlayerAddForm::Command2_Click);
}

void PlayerAddForm::FillSelectors()
{
    Combo2->AddItem(QStringLiteral("All Clubs"));
    const int teams = LoadedTeamCount(game_);
    for (int team = 1; team <= teams; ++team) {
        Combo2->AddItem(FromGame(game_.Teams[std::size_t(team)].teamName));
        Combo2->SetItemData(Combo2->ListCount() - 1, team);
    }
    Combo3[1]->SetText(QStringLiteral("All Nationalities"));
    Combo2->SetText(QStringLiteral("All Clubs"));
    Combo4[BattingFilterCombo]->SetText(QStringLiteral("All Batting Types"));
    Combo4[BowlingFilterCombo]->SetText(QStringLiteral("All Bowling Types"));
    Combo4[FieldingFilterCombo]->SetText(QStringLiteral("All Fielding Types"));
    Combo4[SortKeyCombo]->SetText(QStringLiteral("Player Names (A-Z)"));
}

void PlayerAddForm::ShowReplaceMode()
{
    setWindowTitle(QStringLiteral("Replace player.."));
    Command4->show();
    Command1->hide();
    Command2->setText(QStringLiteral("Cancel"));
}

void PlayerAddForm::Command2_Click()
{
    reject();
}
