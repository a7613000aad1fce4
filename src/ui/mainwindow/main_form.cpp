#include "mainwindow/main_form.h"

#include <QAction>
#include <QFrame>
#include <QLabel>
#include <QLayout>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QTimer>

#include "data/code_lists.h"
#include "forms/combo_box.h"
#include "forms/game_text.h"
#include "forms/list_box.h"
#include "forms/picture_box.h"
#include "forms/text_box.h"
#include "forms/fitted_layout.h"
#include "options/artwork.h"

namespace {

// Client area of the window, in twips.
constexpr int AreaWidth = 8640;
constexpr int AreaHeight = 6030;

QFont BoldFont(const QWidget* widget)
{
    QFont font = widget->font();
    font.setBold(true);
    return font;
}

QLabel* MakeLabel(FittedLayout& at, QWidget* area, const QString& caption, QRect rect, bool bold)
{
    auto* label = at.Put(new QLabel(caption, area), rect, true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    if (bold)
        label->setFont(BoldFont(label));
    return label;
}

template <std::size_t N>
ComboBox* MakeCodeList(FittedLayout& at, QWidget* area, const std::array<std::string_view, N>& words,
                       QRect rect)
{
    auto* box = at.Put(new ComboBox(area), rect, true);
    for (std::string_view word : words)
        box->AddItem(QString::fromLatin1(word.data(), qsizetype(word.size())));
    return box;
}

QFrame* MakeVerticalLine(FittedLayout& at, QWidget* area, int x, int top, int bottom)
{
    auto* line = at.Put(new QFrame(area), QRect(x - 15, top, 30, bottom - top));
    line->setFrameShape(QFrame::VLine);
    line->setFrameShadow(QFrame::Sunken);
    return line;
}

}  // namespace

MainForm::MainForm(Game& game, SettingPlaces places, QWidget* parent)
    : QMainWindow(parent), game(game), places(std::move(places))
{
    setWindowTitle(QStringLiteral("KOLTA editor"));
    setWindowIcon(QIcon(QString::fromLatin1(kolta::artwork::Icon)));
    // A fixed layout: the window can be minimised and closed, not resized.
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                   Qt::WindowCloseButtonHint);

    auto* area = new QWidget(this);
    setCentralWidget(area);
    FittedLayout placement(area, {AreaWidth, AreaHeight});
    BuildTeamColumn(placement, area);
    BuildSquadColumn(placement, area);
    BuildPlayerColumn(placement, area);
    Line1 = MakeVerticalLine(placement, area, 3120, 60, 5940);
    Line2 = MakeVerticalLine(placement, area, 5220, 60, 5880);
    placement.Apply();

    Timer1 = new QTimer(this);
    Timer1->setInterval(100);

    BuildMenu();
    SetTabOrder();
    ConnectHandlers();
    layout()->setSizeConstraint(QLayout::SetFixedSize);
}

void MainForm::BuildTeamColumn(FittedLayout& at, QWidget* area)
{
    Combo1 = MakeCodeList(at, area, Combo1CountryList, QRect(120, 120, 2895, 315));
    Combo1->setFont(BoldFont(Combo1));
    Combo2 = at.Put(new ComboBox(area), QRect(120, 540, 2895, 315));
    Combo2->setFont(BoldFont(Combo2));

    Label2[15] = MakeLabel(at, area, QStringLiteral("Team number"), QRect(120, 960, 1215, 255), true);
    lblteamno = MakeLabel(at, area, QStringLiteral("123"), QRect(1440, 960, 1515, 255), true);
    lblteamno->setAlignment(Qt::AlignCenter);

    Label2[14] = MakeLabel(at, area, QStringLiteral("Team Name"), QRect(120, 1320, 1215, 255), true);
    Text1[TeamNameBox] = at.Put(new TextBox(area), QRect(1440, 1320, 1515, 285));
    Label2[17] = MakeLabel(at, area, QStringLiteral("Abbr."), QRect(120, 1680, 1215, 255), true);
    Text1[AbbreviationBox] = at.Put(new TextBox(area), QRect(1440, 1680, 1515, 285));
    Label2[16] = MakeLabel(at, area, QStringLiteral("Home Country"), QRect(120, 2040, 1215, 315), true);
    Combo4[TeamCountryCombo] = MakeCodeList(at, area, TeamCountryList, QRect(1440, 2040, 1515, 315));
    Label2[18] = MakeLabel(at, area, QStringLiteral("Reputation"), QRect(120, 2460, 1215, 255), true);
    Text1[ReputationBox] = at.Put(new TextBox(area), QRect(1440, 2460, 1515, 285));
    Label2[19] = MakeLabel(at, area, QStringLiteral("Wealth"), QRect(120, 2820, 1215, 255), true);
    Text1[WealthBox] = at.Put(new TextBox(area), QRect(1440, 2820, 1515, 285));
    Label2[20] = MakeLabel(at, area, QStringLiteral("Support"), QRect(120, 3180, 1215, 255), true);
    Text1[SupportBox] = at.Put(new TextBox(area), QRect(1440, 3180, 1515, 285));

    Image1 = at.Put(new PictureBox(QPixmap(kolta::artwork::Banner), area), QRect(240, 3600, 2535, 615));
    Image2 = at.Put(new PictureBox(QPixmap(kolta::artwork::Scorecard), area), QRect(240, 4320, 2535, 1575));
}

void MainForm::BuildSquadColumn(FittedLayout& at, QWidget* area)
{
    List1 = at.Put(new ListBox(area), QRect(3240, 120, 1875, 3765));
    List1->setFont(BoldFont(List1));
    Command3 = at.Put(new QPushButton(QStringLiteral("Add New Player"), area), QRect(3240, 4020, 1815, 375), true);
    Command1 = at.Put(new QPushButton(QStringLiteral("Add Existing Player (s)"), area), QRect(3240, 4500, 1815, 375), true);
    Command4 = at.Put(new QPushButton(QStringLiteral("Replace Player"), area), QRect(3240, 4980, 1815, 375), true);
    Command2 = at.Put(new QPushButton(QStringLiteral("Delete player"), area), QRect(3240, 5460, 1815, 375), true);
}

void MainForm::BuildPlayerColumn(FittedLayout& at, QWidget* area)
{
    // Each row: the caption at the left of the column, the value beside it.
    const auto caption = [&](int index, const char* words, int top, int height) {
        Label2[index] = MakeLabel(at, area, QString::fromLatin1(words), QRect(5400, top, 1335, height), true);
    };
    const auto textBox = [&](int index, QRect rect) {
        Text1[index] = at.Put(new TextBox(area), rect);
    };

    caption(1, "Player Name", 120, 315);
    textBox(InitialsBox, QRect(6780, 120, 435, 315));
    textBox(SurnameBox, QRect(7260, 120, 1275, 315));
    Text1[InitialsBox]->setFont(BoldFont(Text1[InitialsBox]));
    Text1[SurnameBox]->setFont(BoldFont(Text1[SurnameBox]));

    caption(13, "Date of birth", 540, 255);
    textBox(DayBox, QRect(6780, 540, 375, 255));
    Label1 = MakeLabel(at, area, QStringLiteral("/"), QRect(7200, 540, 135, 255), false);
    textBox(MonthBox, QRect(7380, 540, 375, 255));
    Label4 = MakeLabel(at, area, QStringLiteral("/"), QRect(7800, 540, 135, 255), false);
    textBox(YearBox, QRect(7980, 540, 555, 255));
    Label1->setAlignment(Qt::AlignCenter);
    Label4->setAlignment(Qt::AlignCenter);

    caption(22, "Home Country", 900, 315);
    Combo3 = MakeCodeList(at, area, CountryList, QRect(6780, 900, 1755, 315));
    caption(2, "Bat position", 1320, 315);
    Combo4[BatPositionCombo] = MakeCodeList(at, area, BatPositionList, QRect(6780, 1320, 1755, 315));
    caption(3, "Bats", 1740, 315);
    Combo4[BatsCombo] = MakeCodeList(at, area, HandList, QRect(6780, 1740, 1755, 315));
    caption(4, "Bat skill", 2160, 255);
    textBox(BatSkillBox, QRect(6780, 2160, 1695, 255));
    caption(5, "Bat aggr.", 2520, 255);
    textBox(BatAggressionBox, QRect(6780, 2520, 1695, 255));
    caption(6, "Bowl Type", 2880, 315);
    Combo4[BowlTypeCombo] = MakeCodeList(at, area, BowlTypeList, QRect(6780, 2880, 1695, 315));
    caption(7, "Bowls", 3300, 315);
    Combo4[BowlsCombo] = MakeCodeList(at, area, HandList, QRect(6780, 3300, 1695, 315));
    caption(8, "Bowl Skill", 3720, 255);
    textBox(BowlSkillBox, QRect(6780, 3720, 1695, 255));
    caption(9, "Bowl Economy", 4080, 255);
    textBox(BowlEconomyBox, QRect(6780, 4080, 1695, 255));
    caption(10, "Field ability", 4440, 255);
    textBox(FieldAbilityBox, QRect(6780, 4440, 1695, 255));
    caption(11, "Fields at", 4800, 315);
    Combo4[FieldsAtCombo] = MakeCodeList(at, area, FieldPositionList, QRect(6780, 4800, 1695, 315));
    caption(12, "Potential", 5220, 255);
    textBox(PotentialBox, QRect(6780, 5220, 1695, 255));

    Label3 = MakeLabel(at, area, QString(), QRect(5760, 5580, 1635, 255), true);
    Label3->setAlignment(Qt::AlignCenter);
    Label3->hide();

    // The files cannot carry a comma in a name or a name that opens with a
    // double quote, so the name boxes refuse both as they are typed or pasted.
    for (int index : {InitialsBox, SurnameBox, TeamNameBox, AbbreviationBox})
        Text1[index]->SetTextRule(IsStorableName);
}

void MainForm::BuildMenu()
{
    file = menuBar()->addMenu(QStringLiteral("&File"));
    opt = file->addAction(QStringLiteral("&Options"));
    updf = file->addAction(QStringLiteral("&Update Player && Team data file"));
    updf->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_S));
    exit = file->addAction(QStringLiteral("E&xit"));

    help = menuBar()->addMenu(QStringLiteral("&Help"));
    hoe = help->addAction(QStringLiteral("Help On Editor"));
    hoe->setShortcut(QKeySequence(Qt::Key_F1));
    abt = help->addAction(QStringLiteral("&About"));
}

void MainForm::SetTabOrder()
{
    // The order the game's players know: up the player column from the
    // bottom, across the team, the buttons, the pickers, then the rest.
    const std::array<QWidget*, 30> order{
        List1,
        Combo4[FieldsAtCombo], Text1[PotentialBox], Combo4[BowlsCombo], Combo4[BowlTypeCombo],
        Combo4[BatsCombo], Combo4[BatPositionCombo], Text1[FieldAbilityBox], Text1[BowlEconomyBox],
        Text1[BowlSkillBox], Text1[BatAggressionBox], Text1[BatSkillBox], Text1[DayBox],
        Text1[SurnameBox], Text1[TeamNameBox], Text1[AbbreviationBox], Combo4[TeamCountryCombo],
        Text1[ReputationBox], Text1[WealthBox], Text1[SupportBox],
        Command1, Command2, Command3, Command4, Combo2, Combo1,
        Text1[MonthBox], Text1[YearBox], Text1[InitialsBox], Combo3,
    };
    for (std::size_t i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
    List1->setFocus();
}

void MainForm::ConnectHandlers()
{
    connect(Combo1, &ComboBox::Click, this, &MainForm::Combo1_Click);
    connect(Combo2, &ComboBox::Click, this, &MainForm::Combo2_Click);
    connect(List1, &ListBox::Click, this, &MainForm::List1_Click);
    connect(Timer1, &QTimer::timeout, this, &MainForm::Timer1_Timer);

    connect(Command1, &QPushButton::clicked, this, &MainForm::Command1_Click);
    connect(Command2, &QPushButton::clicked, this, &MainForm::Command2_Click);
    connect(Command3, &QPushButton::clicked, this, &MainForm::Command3_Click);
    connect(Command4, &QPushButton::clicked, this, &MainForm::Command4_Click);
    connect(Image1, &PictureBox::Click, this, &MainForm::Image1_Click);
    connect(Image2, &PictureBox::Click, this, &MainForm::Image2_Click);

    connect(opt, &QAction::triggered, this, &MainForm::opt_Click);
    connect(updf, &QAction::triggered, this, &MainForm::updf_Click);
    connect(exit, &QAction::triggered, this, &MainForm::exit_Click);
    connect(hoe, &QAction::triggered, this, &MainForm::hoe_Click);
    connect(abt, &QAction::triggered, this, &MainForm::abt_Click);
}

void MainForm::showEvent(QShowEvent* event)
{
    if (!centred_) {
        centred_ = true;
        if (const QScreen* where = screen())
            move(where->availableGeometry().center() - frameGeometry().center() + pos());
    }
    QMainWindow::showEvent(event);
}
