#include "newplayerwindow/new_player_window.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QToolTip>
#include <algorithm>

#include "document/squad_steps.h"
#include "forms/fitted_layout.h"
#include "forms/message_box.h"
#include "forms/modal.h"
#include "forms/player_column.h"
#include "newplayer/new_player_check.h"
#include "options/help_window.h"

namespace {

// Client area, as designed.
constexpr int AreaWidth = 6900;
constexpr int AreaHeight = 3675;

QPushButton* MakeButton(FittedLayout& at, QWidget* form, const QString& caption, QRect rect, const char* name)
{
    auto* button = at.Put(new QPushButton(caption, form), rect, true);
    button->setObjectName(QString::fromLatin1(name));
    return button;
}

void ShowOutcome(NewPlayerOutcome outcome)
{
    switch (outcome) {
    case NewPlayerOutcome::Added:
        return;
    case NewPlayerOutcome::BadEntries:
        ShowMessage(QMessageBox::Information, QStringLiteral("Error"),
                    QStringLiteral("Data not in correct range.Please see help for correct range of data values."));
        return;
    case NewPlayerOutcome::TableFull:
        ShowMessage(QMessageBox::Information, QStringLiteral("Maximum Players"),
                    QStringLiteral("The game already holds its maximum of %1 players.").arg(MaxPlayers));
        return;
    case NewPlayerOutcome::NoTeam:
        ShowMessage(QMessageBox::Information, QStringLiteral("Add New Player"),
                    QStringLiteral("Choose a team for the new player first."));
        return;
    case NewPlayerOutcome::SquadFull:
        ShowMessage(QMessageBox::Information, QStringLiteral("Maximum Players"),
                    QStringLiteral("You already have the maximum of 20 players in the squad."));
        return;
    }
}

// Two columns of captions and boxes, the batting on the left, the bowling and
// fielding on the right; the rows above Bat skill stand wide.
PlayerColumnDesign EntryDesign()
{
    PlayerColumnDesign design;
    design.columns = {{300, 1680, 240, 0}, {3540, 4920, 300, PlayerRowOf(&PlayerRecord::bowlType)}};
    design.wideRows = PlayerRowOf(&PlayerRecord::batSkill);
    return design;
}

}  // namespace

NewPlayerWindow::NewPlayerWindow(GameDocument& document, int team, QWidget* parent)
    : QDialog(parent), document_(document), team_(team)
{
    setObjectName(QStringLiteral("newPlayerWindow"));
    setWindowTitle(QStringLiteral("New Player"));
    FittedLayout at(this, {AreaWidth, AreaHeight});

    // Built in tab order, so that the focus starts on OK.
    okButton_ = MakeButton(at, this, QStringLiteral("OK"), QRect(1200, 3180, 1395, 375), "okButton");
    okButton_->setDefault(true);

    entries_ = new PlayerColumn(at, EntryDesign(), this);
    entries_->setObjectName(QStringLiteral("entries"));
    using P = PlayerRecord;
    for (auto box : {&P::birthDay, &P::birthMonth, &P::batSkill, &P::batAggression, &P::bowlSkill, &P::bowlEconomy,
                     &P::fieldAbility, &P::potential})
        entries_->LimitLength(box, 2);
    entries_->LimitLength(&P::birthYear, 4);
    entries_->SetNumberKeyFilter(&NewPlayerWindow::PassesNumberKey);

    cancelButton_ = MakeButton(at, this, QStringLiteral("Cancel"), QRect(3000, 3180, 1395, 375), "cancelButton");
    helpButton_ = MakeButton(at, this, QStringLiteral("Help"), QRect(4800, 3180, 1395, 375), "helpButton");

    at.Apply();

    connect(okButton_, &QPushButton::clicked, this, &NewPlayerWindow::OnOk);
    connect(cancelButton_, &QPushButton::clicked, this, &QDialog::reject);
    connect(helpButton_, &QPushButton::clicked, this, &NewPlayerWindow::OnHelp);
    // The window has no status bar: a refused key says why under the names.
    connect(entries_, &PlayerColumn::nameRefused, this, [this](const QString& why) {
        const QWidget* names = entries_->Box(&PlayerRecord::initials);
        QToolTip::showText(names->mapToGlobal(QPoint(0, names->height())), why, entries_);
    });
    okButton_->setFocus();

    entries_->ChooseFirstEntries();
}

bool NewPlayerWindow::PassesNumberKey(const QKeyEvent& key)
{
    if (key.key() == Qt::Key_Backspace)
        return true;
    const QString typed = key.text();
    return !typed.isEmpty() && std::all_of(typed.begin(), typed.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

void NewPlayerWindow::OnOk()
{
    const NewPlayerEntries entries = entries_->Entries();
    const NewPlayerOutcome outcome = CommitNewPlayer(document_, team_, entries);
    if (outcome == NewPlayerOutcome::BadEntries) {
        // The message names the box, so the user need not hunt for it.
        ShowMessage(QMessageBox::Information, QStringLiteral("Error"),
                    QStringLiteral("Data not in correct range.Please see help for correct range of data values.\n\n") +
                        QString::fromStdString(FirstBadEntry(entries).value_or(std::string())));
        return;
    }
    if (outcome != NewPlayerOutcome::Added) {
        ShowOutcome(outcome);
        return;
    }
    accept();
}

void NewPlayerWindow::OnHelp()
{
    HelpWindow help;
    ShowModal(help, this);
}

bool RefuseFullGame(const Game& game)
{
    if (CanAddNewPlayer(game))
        return false;
    ShowOutcome(NewPlayerOutcome::TableFull);
    return true;
}
