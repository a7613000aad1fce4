#include "mainwindow/main_window.h"

#include <QAction>
#include <QApplication>
#include <QFrame>
#include <QLabel>
#include <QLayout>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QStatusBar>
#include <QTimer>

#include "data/code_lists.h"
#include "forms/choice_list.h"
#include "forms/clickable_picture.h"
#include "forms/drop_down.h"
#include "forms/game_text.h"
#include "forms/fitted_layout.h"
#include "forms/player_column.h"
#include "forms/text_box.h"
#include "mainwindow/game_tools.h"
#include "history/game_history.h"
#include "mainwindow/edit_menu.h"
#include "options/artwork.h"

namespace {

// Client area of the window, as designed.
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

QComboBox* MakeCodeList(FittedLayout& at, QWidget* area, std::span<const std::string_view> words, QRect rect)
{
    return at.Put(NewWordList(area, words), rect, true);
}

void MakeVerticalLine(FittedLayout& at, QWidget* area, int x, int top, int bottom)
{
    auto* line = at.Put(new QFrame(area), QRect(x - 15, top, 30, bottom - top));
    line->setFrameShape(QFrame::VLine);
    line->setFrameShadow(QFrame::Sunken);
}

// Names every control a test may look for by the job it does.
template <typename Control>
Control* Named(Control* control, const char* name)
{
    control->setObjectName(QString::fromLatin1(name));
    return control;
}

}  // namespace

MainWindow::MainWindow(Game& game, SettingPlaces places, QWidget* parent)
    : QMainWindow(parent), game_(game), places_(std::move(places))
{
    setWindowTitle(QStringLiteral("KOLTA editor"));
    setWindowIcon(QIcon(QString::fromLatin1(kolta::artwork::Icon)));
    // A fixed layout: the window can be minimised and closed, not resized.
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                   Qt::WindowCloseButtonHint);

    history_ = new GameHistory(game_, this);

    auto* area = new QWidget(this);
    setCentralWidget(area);
    FittedLayout placement(area, {AreaWidth, AreaHeight});
    BuildTeamColumn(placement, area);
    BuildSquadColumn(placement, area);
    BuildPlayerColumn(placement, area);
    MakeVerticalLine(placement, area, 3120, 60, 5940);
    MakeVerticalLine(placement, area, 5220, 60, 5880);
    placement.Apply();

    editTimer_ = Named(new QTimer(this), "editTimer");
    editTimer_->setInterval(100);

    BuildMenu();
    statusBar()->setSizeGripEnabled(false);
    SetTabOrder();
    ConnectHandlers();
    layout()->setSizeConstraint(QLayout::SetFixedSize);
}

MainWindow::~MainWindow()
{
    // The focus moves as the window goes; there is nothing left to carry then.
    disconnect(qApp, nullptr, this, nullptr);
}

void MainWindow::BuildTeamColumn(FittedLayout& at, QWidget* area)
{
    countryList_ = Named(MakeCodeList(at, area, Combo1CountryList, QRect(120, 120, 2895, 315)), "countryList");
    countryList_->setFont(BoldFont(countryList_));
    teamList_ = Named(at.Put(NewDropDown(area), QRect(120, 540, 2895, 315)), "teamList");
    teamList_->setFont(BoldFont(teamList_));

    MakeLabel(at, area, FromGame(TeamLayout.keyLabel), QRect(120, 960, 1215, 255), true);
    teamNumberLabel_ = Named(MakeLabel(at, area, QStringLiteral("123"), QRect(1440, 960, 1515, 255), true), "teamNumber");
    teamNumberLabel_->setAlignment(Qt::AlignCenter);

    // One row to each field of the team, in the table's order.
    constexpr std::array<int, TeamFields.size()> tops{1320, 1680, 2040, 2460, 2820, 3180};
    for (std::size_t i = 0; i < TeamFields.size(); ++i) {
        const TeamField& field = TeamFields[i];
        const bool code = field.kind == FieldKind::Code;
        MakeLabel(at, area, FromGame(field.label), QRect(120, tops[i], 1215, code ? 315 : 255), true);
        const QRect value(1440, tops[i], 1515, code ? 315 : 285);
        if (code) {
            teamBoxes_[i] = MakeCodeList(at, area, field.codes->words, value);
        } else {
            auto* box = at.Put(new TextBox(area), value);
            // The files cannot carry a comma in a name or a name that opens
            // with a double quote, so the name boxes refuse both as they are
            // typed or pasted.
            if (field.kind == FieldKind::Name) {
                box->SetTextRule(NameRefusalOf);
                connect(box, &TextBox::refused, this, &MainWindow::SayInStatusBar);
            }
            teamBoxes_[i] = box;
        }
        teamBoxes_[i]->setObjectName(QStringLiteral("team.") + FromGame(field.name));
    }

    userGuidePicture_ =
        Named(at.Put(new ClickablePicture(QPixmap(kolta::artwork::Banner), area), QRect(240, 3600, 2535, 615)),
              "userGuidePicture");
    fileFormatsPicture_ =
        Named(at.Put(new ClickablePicture(QPixmap(kolta::artwork::Scorecard), area), QRect(240, 4320, 2535, 1575)),
              "fileFormatsPicture");
}

void MainWindow::BuildSquadColumn(FittedLayout& at, QWidget* area)
{
    squadList_ = Named(at.Put(new ChoiceList(area), QRect(3240, 120, 1875, 3765)), "squadList");
    squadList_->setFont(BoldFont(squadList_));
    const auto button = [&](const char* caption, int top, const char* name) {
        return Named(at.Put(new QPushButton(QString::fromLatin1(caption), area), QRect(3240, top, 1815, 375), true),
                     name);
    };
    addNewPlayerButton_ = button("Add New Player", 4020, "addNewPlayerButton");
    addExistingPlayerButton_ = button("Add Existing Player (s)", 4500, "addExistingPlayerButton");
    replacePlayerButton_ = button("Replace Player", 4980, "replacePlayerButton");
    deletePlayerButton_ = button("Delete player", 5460, "deletePlayerButton");
}

void MainWindow::BuildPlayerColumn(FittedLayout& at, QWidget* area)
{
    // Captions at the left of the column, the values beside them.
    const auto caption = [](int top, int height) { return QRect(5400, top, 1335, height); };
    PlayerColumnPlaces places;
    places.boldCaptions = true;
    places.slashAlignment = Qt::AlignCenter;
    places.captions = {caption(120, 315), caption(540, 255),  caption(900, 315),  caption(1320, 315),
                       caption(1740, 315), caption(2160, 255), caption(2520, 255), caption(2880, 315),
                       caption(3300, 315), caption(3720, 255), caption(4080, 255), caption(4440, 255),
                       caption(4800, 315), caption(5220, 255)};
    places.boxes = {
        QRect(6780, 120, 435, 315),   QRect(7260, 120, 1275, 315),  QRect(6780, 540, 375, 255),
        QRect(7380, 540, 375, 255),   QRect(7980, 540, 555, 255),   QRect(6780, 900, 1755, 315),
        QRect(6780, 1320, 1755, 315), QRect(6780, 1740, 1755, 315), QRect(6780, 2160, 1695, 255),
        QRect(6780, 2520, 1695, 255), QRect(6780, 2880, 1695, 315), QRect(6780, 3300, 1695, 315),
        QRect(6780, 3720, 1695, 255), QRect(6780, 4080, 1695, 255), QRect(6780, 4440, 1695, 255),
        QRect(6780, 4800, 1695, 315), QRect(6780, 5220, 1695, 255),
    };
    places.dateSlashes = {QRect(7200, 540, 135, 255), QRect(7800, 540, 135, 255)};
    playerColumn_ = Named(new PlayerColumn(at, places, area), "playerColumn");
    for (PlayerBox name : {PlayerBox::Initials, PlayerBox::Surname}) {
        QWidget* box = playerColumn_->Box(name);
        box->setFont(BoldFont(box));
    }
}

void MainWindow::BuildMenu()
{
    QMenu* file = menuBar()->addMenu(QStringLiteral("&File"));
    optionsAction_ = Named(file->addAction(QStringLiteral("&Options")), "optionsAction");
    saveAction_ = Named(file->addAction(QStringLiteral("&Update Player && Team data file")), "saveAction");
    saveAction_->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_S));
    exitAction_ = Named(file->addAction(QStringLiteral("E&xit")), "exitAction");
    const EditMenu edit = BuildEditMenu(*this, *history_, [this] { CarryPendingEdits(); });
    Named(edit.undo, "undoAction");
    Named(edit.redo, "redoAction");
    tools_ = new GameTools(*this, game_);
    tools_->AddCommands(*file, exitAction_, *edit.menu, *menuBar());

    QMenu* help = menuBar()->addMenu(QStringLiteral("&Help"));
    helpAction_ = Named(help->addAction(QStringLiteral("Help On Editor")), "helpAction");
    helpAction_->setShortcut(QKeySequence(Qt::Key_F1));
    aboutAction_ = Named(help->addAction(QStringLiteral("&About")), "aboutAction");
}

void MainWindow::SetTabOrder()
{
    // The order the game's players know: up the player column from the
    // bottom, across the team, the buttons, the pickers, then the rest.
    const auto box = [this](PlayerBox which) { return playerColumn_->Box(which); };
    const std::array<QWidget*, 30> order{
        squadList_,
        box(PlayerBox::FieldsAt), box(PlayerBox::Potential), box(PlayerBox::Bowls), box(PlayerBox::BowlType),
        box(PlayerBox::Bats), box(PlayerBox::BatPosition), box(PlayerBox::FieldAbility), box(PlayerBox::BowlEconomy),
        box(PlayerBox::BowlSkill), box(PlayerBox::BatAggression), box(PlayerBox::BatSkill), box(PlayerBox::BirthDay),
        box(PlayerBox::Surname), teamBoxes_[0], teamBoxes_[1], teamBoxes_[2], teamBoxes_[3], teamBoxes_[4], teamBoxes_[5],
        addExistingPlayerButton_, deletePlayerButton_, addNewPlayerButton_, replacePlayerButton_, teamList_, countryList_,
        box(PlayerBox::BirthMonth), box(PlayerBox::BirthYear), box(PlayerBox::Initials), box(PlayerBox::HomeCountry),
    };
    for (std::size_t i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
    squadList_->setFocus();
}

void MainWindow::ConnectHandlers()
{
    connect(countryList_, &QComboBox::activated, this, &MainWindow::OnCountryChosen);
    connect(teamList_, &QComboBox::activated, this, &MainWindow::OnTeamChosen);
    connect(squadList_, &ChoiceList::rowChosen, this, &MainWindow::OnPlayerChosen);
    connect(editTimer_, &QTimer::timeout, this, &MainWindow::CarryEditsIntoRecords);

    connect(addExistingPlayerButton_, &QPushButton::clicked, this, &MainWindow::OnAddExistingPlayer);
    connect(deletePlayerButton_, &QPushButton::clicked, this, &MainWindow::OnDeletePlayer);
    connect(addNewPlayerButton_, &QPushButton::clicked, this, &MainWindow::OnAddNewPlayer);
    connect(replacePlayerButton_, &QPushButton::clicked, this, &MainWindow::OnReplacePlayer);
    connect(userGuidePicture_, &ClickablePicture::clicked, this, &MainWindow::OnUserGuidePicture);
    connect(fileFormatsPicture_, &ClickablePicture::clicked, this, &MainWindow::OnFileFormatsPicture);

    connect(optionsAction_, &QAction::triggered, this, &MainWindow::OnOptions);
    connect(saveAction_, &QAction::triggered, this, &MainWindow::OnSave);
    connect(exitAction_, &QAction::triggered, this, &MainWindow::OnExit);
    connect(helpAction_, &QAction::triggered, this, &MainWindow::OnHelp);
    connect(aboutAction_, &QAction::triggered, this, &MainWindow::OnAbout);

    connect(playerColumn_, &PlayerColumn::nameRefused, this, &MainWindow::SayInStatusBar);
    connect(history_, &GameHistory::StepShown, this, &MainWindow::BringIntoView);
    connect(history_, &GameHistory::UnsavedChangesChanged, this, &MainWindow::setWindowModified);
    connect(tools_, &GameTools::importApplied, this,
            [this](const QString& stepText) { history_->RecordStep(stepText, StepPlace{}); });
    // A box's typed value is one step until the focus leaves the box.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* old) {
        if (old && isAncestorOf(old))
            CarryPendingEdits();
    });
}

void MainWindow::showEvent(QShowEvent* event)
{
    if (!centred_) {
        centred_ = true;
        if (const QScreen* where = screen())
            move(where->availableGeometry().center() - frameGeometry().center() + pos());
    }
    QMainWindow::showEvent(event);
}
