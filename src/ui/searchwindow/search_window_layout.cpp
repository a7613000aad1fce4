#include <QLabel>
#include <QPushButton>
#include <string_view>

#include "data/code_lists.h"
#include "forms/choice_list.h"
#include "forms/drop_down.h"
#include "forms/fitted_layout.h"
#include "forms/game_text.h"
#include "forms/player_column.h"
#include "forms/text_box.h"
#include "forms/value_boxes.h"
#include "document/game_document.h"
#include "searchwindow/search_window.h"

namespace {

// Client area, as designed.
constexpr int AreaWidth = 9540;
constexpr int AreaHeight = 5955;

const QColor BarColour(128, 128, 255);

// A selector: its catch-all entry, if it has one, then the words.
template <std::size_t N>
QComboBox* MakeList(FittedLayout& at, QWidget* area, QRect designed, std::string_view first,
                    const std::array<std::string_view, N>& words, const char* name)
{
    auto* box = at.Put(NewWordList(area, words), designed, true);
    box->setObjectName(QString::fromLatin1(name));
    if (!first.empty())
        box->insertItem(0, FromGame(first));
    return box;
}

// A filled rectangle whose width the sort sets.
QWidget* MakeBar(QWidget* area)
{
    auto* bar = new QWidget(area);
    bar->setAutoFillBackground(true);
    QPalette colours = bar->palette();
    colours.setColor(QPalette::Window, BarColour);
    bar->setPalette(colours);
    return bar;
}

template <typename Control>
Control* Named(Control* control, const char* name)
{
    control->setObjectName(QString::fromLatin1(name));
    return control;
}

}  // namespace

SearchWindow::SearchWindow(GameDocument& document, int team, Mode mode, int squadRow, QWidget* parent)
    : QDialog(parent), document_(document), team_(team), squadRow_(squadRow)
{
    setObjectName(QStringLiteral("searchWindow"));
    setWindowTitle(QStringLiteral("Add Player.."));

    FittedLayout placement(this, {AreaWidth, AreaHeight});
    BuildFilters(placement);
    BuildPanel(placement);
    BuildButtons(placement);
    placement.Apply();
    barFullWidth_ = sortBar_->width();

    ConnectHandlers();
    if (mode == Mode::Replace)
        ShowReplaceMode();
    FillSelectors();
}

void SearchWindow::BuildFilters(FittedLayout& at)
{
    nationalityFilter_ =
        MakeList(at, this, {180, 300, 2055, 315}, "All Nationalities", CountryList, "nationalityFilter");
    battingFilter_ = MakeList(at, this, {2460, 300, 2055, 315}, "All Batting Types", BatPositionList, "battingFilter");
    bowlingFilter_ = MakeList(at, this, {4740, 300, 2055, 315}, "All Bowling Types", BowlTypeList, "bowlingFilter");
    fieldingFilter_ =
        MakeList(at, this, {7020, 300, 2055, 315}, "All Fielding Types", FieldPositionList, "fieldingFilter");
    clubFilter_ = Named(at.Put(NewDropDown(this), {180, 780, 2055, 315}), "clubFilter");

    at.Put(new QLabel(QStringLiteral(" Sort by :-"), this), {240, 1380, 1155, 195}, true);
    constexpr std::array<std::string_view, 7> sortKeys{
        "Player Names (A-Z)", "Bat Skill", "Bat Aggression", "Bowl Skill", "Bowl Economy", "Field Skill", "Potential",
    };
    sortKeyList_ = MakeList(at, this, {1560, 1320, 3015, 315}, {}, sortKeys, "sortKeyList");
    searchButton_ =
        Named(at.Put(new QPushButton(QStringLiteral("Search "), this), {4800, 1320, 1635, 315}, true), "searchButton");
    sortBar_ = Named(at.Put(MakeBar(this), {6660, 1380, 2505, 195}), "sortBar");
    sortBar_->hide();

    resultList_ = Named(at.Put(new ChoiceList(this), {120, 1860, 2295, 3765}), "resultList");
}

void SearchWindow::BuildPanel(FittedLayout& at)
{
    // Two columns, the batting on the left with the present club under the
    // home country, the bowling and fielding on the right.
    PlayerColumnDesign design;
    design.columns = {{2700, 4140, 2100, 0}, {6060, 7500, 2100, PlayerRowOf(&PlayerRecord::bowlType)}};
    design.lowSlashes = true;
    design.slashesMustFit = false;
    design.windowRowAfter = PlayerRowOf(&PlayerRecord::homeCountry);
    candidatePanel_ = Named(new PlayerColumn(at, design, this), "candidatePanel");
    // The panel only shows: nothing in it takes input.
    candidatePanel_->SetReadOnly(true);

    const PlayerColumnPlaces places = PlacePlayerColumn(design);
    at.Put(new QLabel(QStringLiteral("Present Club"), this), places.windowCaption, true);
    presentClubBox_ = Named(at.Put(new TextBox(this), places.windowValue), "presentClub");
    MakeReadOnly(*presentClubBox_);
}

void SearchWindow::BuildButtons(FittedLayout& at)
{
    // The two transfer buttons share one spot; the mode shows one of them.
    const auto button = [&](const char* caption, QRect designed, const char* name) {
        return Named(at.Put(new QPushButton(QString::fromLatin1(caption), this), designed, true), name);
    };
    addButton_ = button("Add This Player", {3000, 5400, 1995, 375}, "addButton");
    replaceButton_ = button("Replace with this player", {3000, 5400, 1995, 375}, "replaceButton");
    replaceButton_->hide();
    finishedButton_ = button("Finished", {6180, 5400, 1995, 375}, "finishedButton");
}

void SearchWindow::ConnectHandlers()
{
    connect(searchButton_, &QPushButton::clicked, this, &SearchWindow::OnSearch);
    connect(resultList_, &ChoiceList::rowChosen, this, &SearchWindow::OnCandidateChosen);
    connect(addButton_, &QPushButton::clicked, this, &SearchWindow::OnAddThisPlayer);
    connect(replaceButton_, &QPushButton::clicked, this, &SearchWindow::OnReplaceWithThisPlayer);
    connect(finishedButton_, &QPushButton::clicked, this, &QDialog::reject);
}

void SearchWindow::FillSelectors()
{
    clubFilter_->addItem(QStringLiteral("All Clubs"));
    const Game& game = document_.Records();
    for (int team = 1; team <= LoadedTeamCount(game); ++team)
        clubFilter_->addItem(FromGame(game.Teams[std::size_t(team)].teamName), team);
    for (QComboBox* selector :
         {nationalityFilter_, clubFilter_, battingFilter_, bowlingFilter_, fieldingFilter_, sortKeyList_})
        selector->setCurrentIndex(0);
}

void SearchWindow::ShowReplaceMode()
{
    setWindowTitle(QStringLiteral("Replace player.."));
    replaceButton_->show();
    addButton_->hide();
    finishedButton_->setText(QStringLiteral("Cancel"));
}
