#include "mainwindow/main_window.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QLayout>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QStatusBar>

#include "commands/game_files.h"
#include "commands/game_tools.h"
#include "data/code_lists.h"
#include "document/game_document.h"
#include "forms/choice_list.h"
#include "forms/clickable_picture.h"
#include "forms/drop_down.h"
#include "forms/fitted_layout.h"
#include "forms/game_text.h"
#include "forms/player_column.h"
#include "mainwindow/changed_files_bar.h"
#include "mainwindow/edit_menu.h"
#include "mainwindow/team_column.h"
#include "options/artwork.h"
#include "problemswindow/problems_bar.h"

namespace {

// Client area of the window, as designed.
constexpr int AreaWidth = 8640;
constexpr int AreaHeight = 6030;

void MakeBold(QWidget& widget)
{
    QFont font = widget.font();
    font.setBold(true);
    widget.setFont(font);
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

MainWindow::MainWindow(GameDocument& document, GameFiles& files, GameTools& tools, QWidget* parent)
    : QMainWindow(parent), document_(document), files_(files), tools_(tools)
{
    setWindowTitle(caption_);
    setWindowIcon(QIcon(kolta::artwork::Picture(kolta::artwork::Icon)));
    // A fixed layout: the window can be minimised and closed, not resized.
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint);

    auto* area = new QWidget(this);
    setCentralWidget(area);
    FittedLayout placement(area, {AreaWidth, AreaHeight});
    BuildLeftColumn(placement, area);
    BuildSquadColumn(placement, area);
    BuildPlayerColumn(placement, area);
    MakeVerticalLine(placement, area, 3120, 60, 5940);
    MakeVerticalLine(placement, area, 5220, 60, 5880);
    placement.Apply();

    BuildMenu();
    problemsBar_ = new ProblemsBar(this);
    addToolBar(Qt::TopToolBarArea, problemsBar_);
    problemsBar_->hide();
    addToolBarBreak(Qt::TopToolBarArea);
    changedFilesBar_ = new ChangedFilesBar(this);
    addToolBar(Qt::TopToolBarArea, changedFilesBar_);
    statusBar()->setSizeGripEnabled(false);
    SetTabOrder();
    ConnectHandlers();
    FollowDocument();
    layout()->setSizeConstraint(QLayout::SetFixedSize);
}

MainWindow::~MainWindow()
{
    // The focus moves as the window goes; no box is left then.
    disconnect(qApp, nullptr, this, nullptr);
}

void MainWindow::BuildLeftColumn(FittedLayout& at, QWidget* area)
{
    countryList_ = Named(at.Put(NewWordList(area, Combo1CountryList), QRect(120, 120, 2895, 315), true), "countryList");
    MakeBold(*countryList_);
    teamList_ = Named(at.Put(NewDropDown(area), QRect(120, 540, 2895, 315)), "teamList");
    MakeBold(*teamList_);
    teamColumn_ = new TeamColumn(at, area);

    namespace artwork = kolta::artwork;
    userGuidePicture_ =
        Named(at.Put(new ClickablePicture(artwork::Picture(artwork::Banner), area), QRect(240, 3600, 2535, 615)),
              "userGuidePicture");
    fileFormatsPicture_ =
        Named(at.Put(new ClickablePicture(artwork::Picture(artwork::Scorecard), area), QRect(240, 4320, 2535, 1575)),
              "fileFormatsPicture");
}

void MainWindow::BuildSquadColumn(FittedLayout& at, QWidget* area)
{
    squadList_ = Named(at.Put(new ChoiceList(area), QRect(3240, 120, 1875, 3765)), "squadList");
    MakeBold(*squadList_);
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
    // One column of captions and values down the right of the window; the
    // rows above Bat skill stand wide.
    PlayerColumnDesign design;
    design.columns = {{5400, 6780, 120, 0}};
    design.wideRows = PlayerRowOf(&PlayerRecord::batSkill);
    design.boldCaptions = true;
    design.slashAlignment = Qt::AlignCenter;
    playerColumn_ = Named(new PlayerColumn(at, design, area), "playerColumn");
    for (auto name : {&PlayerRecord::initials, &PlayerRecord::surname})
        MakeBold(*playerColumn_->Box(name));
    // The search lists players by surname, and one without a surname ends
    // its listing: the last letter stays until a new one is typed.
    static_cast<TextBox*>(playerColumn_->Box(&PlayerRecord::surname))
        ->SetTextRule([](const QString& text) -> std::optional<QString> {
            if (text.isEmpty())
                return QStringLiteral("A player needs a surname: type the new one before deleting the last letter");
            return NameRefusalOf(text);
        });
}

void MainWindow::BuildMenu()
{
    const auto command = [this](QMenu* menu, const char* text, const char* name, auto handler) {
        QAction* action = Named(menu->addAction(QString::fromLatin1(text)), name);
        connect(action, &QAction::triggered, this, handler);
        return action;
    };
    QMenu* file = menuBar()->addMenu(QStringLiteral("&File"));
    command(file, "&Options", "optionsAction", [this] { files_.ChooseFolder(this); });
    command(file, "&Update Player && Team data file", "saveAction", [this] { files_.Save(); })
        ->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_S));
    command(file, "&Export to CSV...", "exportCsvAction", [this] { tools_.ExportCsv(this); });
    command(file, "&Import from CSV...", "importCsvAction", [this] { tools_.ImportCsv(this); });
    file->addSeparator();
    command(file, "E&xit", "exitAction", [this] { OnExit(); });

    const EditMenu edit = BuildEditMenu(*this, document_);
    Named(edit.undo, "undoAction");
    Named(edit.redo, "redoAction");
    command(edit.menu, "&Find Player...", "findPlayerAction", [this] { tools_.FindPlayer(this); })
        ->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_F));

    QMenu* tools = Named(menuBar()->addMenu(QStringLiteral("&Tools")), "toolsMenu");
    command(tools, "&Check Game...", "checkGameAction", [this] { tools_.CheckGame(this); });
    tools->addSeparator();
    command(tools, "Changes Since Last &Save...", "changesSinceSaveAction", [this] { tools_.ChangesSinceSave(this); });
    QAction* sinceOriginal = command(tools, "Changes Since &Original...", "changesSinceOriginalAction",
                                     [this] { tools_.ChangesSinceOriginal(this); });
    connect(tools, &QMenu::aboutToShow, this, [this, sinceOriginal] { sinceOriginal->setEnabled(tools_.HasOriginals()); });
    tools->addSeparator();
    command(tools, "&Players Table...", "playersTableAction", [this] { tools_.PlayersTable(this); })
        ->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_T));
    command(tools, "&Teams Table...", "teamsTableAction", [this] { tools_.TeamsTable(this); })
        ->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_T));

    QMenu* help = menuBar()->addMenu(QStringLiteral("&Help"));
    command(help, "Help On Editor", "helpAction", [this] { OnHelp(); })->setShortcut(QKeySequence(Qt::Key_F1));
    command(help, "&About", "aboutAction", [this] { OnAbout(); });
}

void MainWindow::SetTabOrder()
{
    // The order the game's players know: up the player column from the
    // bottom, across the team, the buttons, the pickers, then the rest.
    const auto box = [this](auto field) { return playerColumn_->Box(field); };
    const auto team = [this](std::size_t field) { return teamColumn_->Box(field); };
    using P = PlayerRecord;
    const std::array<QWidget*, 30> order{
        squadList_,
        box(&P::fieldsAt), box(&P::potential), box(&P::bowls), box(&P::bowlType), box(&P::bats), box(&P::batPosition),
        box(&P::fieldAbility), box(&P::bowlEconomy), box(&P::bowlSkill), box(&P::batAggression), box(&P::batSkill),
        box(&P::birthDay), box(&P::surname), team(0), team(1), team(2), team(3), team(4), team(5),
        addExistingPlayerButton_, deletePlayerButton_, addNewPlayerButton_, replacePlayerButton_, teamList_, countryList_,
        box(&P::birthMonth), box(&P::birthYear), box(&P::initials), box(&P::homeCountry),
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

    connect(addExistingPlayerButton_, &QPushButton::clicked, this, &MainWindow::OnAddExistingPlayer);
    connect(deletePlayerButton_, &QPushButton::clicked, this, &MainWindow::OnDeletePlayer);
    connect(addNewPlayerButton_, &QPushButton::clicked, this, &MainWindow::OnAddNewPlayer);
    connect(replacePlayerButton_, &QPushButton::clicked, this, &MainWindow::OnReplacePlayer);
    connect(userGuidePicture_, &ClickablePicture::clicked, this, &MainWindow::OnUserGuidePicture);
    connect(fileFormatsPicture_, &ClickablePicture::clicked, this, &MainWindow::OnFileFormatsPicture);

    // What the user types goes into the shown record at once; the place is
    // where undo takes him back to. The box says what its field made of the
    // text even when the record stays as it was ("12." after "12").
    connect(playerColumn_, &PlayerColumn::edited, this, [this](const PlayerField& field, const TypedValue& value) {
        if (currentPlayer_)
            document_.Type(*currentPlayer_, field, value, {shownTeam_.value_or(0), *currentPlayer_});
        MarkNumberBoxes();
    });
    connect(teamColumn_, &TeamColumn::edited, this, [this](const TeamField& field, const TypedValue& value) {
        if (shownTeam_)
            document_.Type(*shownTeam_, field, value, {*shownTeam_, currentPlayer_.value_or(0)});
        MarkNumberBoxes();
    });
    connect(playerColumn_, &PlayerColumn::nameRefused, this, &MainWindow::Explain);
    connect(teamColumn_, &TeamColumn::nameRefused, this, &MainWindow::Explain);
    // A box's typed value is one step until the focus leaves the box, or a
    // command ends it; a number box left with a text its field cannot hold
    // then shows the record's value again.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* old) {
        if (old && isAncestorOf(old)) {
            document_.EndTyping();
            MarkNumberBoxes();
        }
    });
    connect(&document_, &GameDocument::typingEnded, this, &MainWindow::TakeBackInexactBoxes);
    // Enter ends the typing of a box as leaving it does.
    for (QLineEdit* box : findChildren<QLineEdit*>()) {
        connect(box, &QLineEdit::returnPressed, this, [this] {
            document_.EndTyping();
            MarkNumberBoxes();
        });
    }

    connect(problemsBar_, &ProblemsBar::showProblemsRequested, this, [this] { tools_.CheckGame(this); });
    connect(&tools_, &GameTools::errorsCounted, problemsBar_, &ProblemsBar::SetErrorCount);
    connect(&files_, &GameFiles::changedElsewhere, changedFilesBar_, &ChangedFilesBar::setVisible);
    connect(changedFilesBar_, &ChangedFilesBar::reloadRequested, &files_, &GameFiles::ReloadTheirs);
    connect(changedFilesBar_, &ChangedFilesBar::keepMineRequested, &files_, &GameFiles::KeepMine);
    connect(&tools_, &GameTools::playerChosen, this, &MainWindow::GoToPlayer);
    connect(&tools_, &GameTools::teamChosen, this, &MainWindow::GoToTeam);
    connect(&tools_, &GameTools::gameImported, this, &MainWindow::ShowRecordsAgain);
}

void MainWindow::FollowDocument()
{
    connect(&document_, &GameDocument::playerChanged, this, &MainWindow::OnPlayerChanged);
    connect(&document_, &GameDocument::teamChanged, this, &MainWindow::OnTeamChanged);
    connect(&document_, &GameDocument::squadChanged, this, [this](int team) {
        if (team == CurrentTeam())
            RefreshSquad();
    });
    connect(&document_, &GameDocument::stepRevisited, this, &MainWindow::BringIntoView);
    connect(&document_, &GameDocument::modifiedChanged, this, &MainWindow::setWindowModified);
    connect(&document_, &GameDocument::gameReplaced, this, [this] {
        // No box may edit the record of the new game that has the old numbers.
        currentPlayer_.reset();
        ShowNoTeam();
        SetTitle();
        caption_ = QStringLiteral("KOLTA Editor");
        ShowFirstEntries();
    });
}

void MainWindow::SetTitle()
{
    // The mark stands for unsaved changes and shows only while there are some.
    setWindowTitle(QStringLiteral("%1 (%2)[*]").arg(caption_, QString::fromStdString(document_.Folder())));
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

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!leaveAnswered_ && !files_.MayLeaveGame()) {
        event->ignore();
        return;
    }
    QMainWindow::closeEvent(event);
}
