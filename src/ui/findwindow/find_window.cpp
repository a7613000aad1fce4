#include "findwindow/find_window.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "data/cp1252.h"
#include "data/fields.h"
#include "forms/game_text.h"
#include "forms/listed_name.h"
#include "search/player_find.h"

namespace {

enum Column { NumberColumn, NameColumn, ClubColumn, NationalityColumn, AgeColumn };

QString Nationality(const PlayerRecord& player)
{
    if (const auto word = Countries.WordFor(player.homeCountry))
        return QString::fromLatin1(word->data(), qsizetype(word->size()));
    return QString::number(player.homeCountry);
}

bool FitsGame(const QString& text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return FitsCp1252(c.unicode()); });
}

bool IsEnter(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

}  // namespace

FindWindow::FindWindow(const Game& game, QDate today, QWidget* parent)
    : QDialog(parent), game_(game), today_(today), clubs_(PresentClubs(game))
{
    setWindowTitle(QStringLiteral("Find Player"));

    findBox = new QLineEdit(this);
    findBox->setPlaceholderText(QStringLiteral("surname, initials or player number"));
    auto* caption = new QLabel(QStringLiteral("&Find:"), this);
    caption->setBuddy(findBox);

    matchList = new QTreeWidget(this);
    matchList->setHeaderLabels({QStringLiteral("No."), QStringLiteral("Name"), QStringLiteral("Club"),
                                QStringLiteral("Nationality"), QStringLiteral("Age")});
    matchList->setRootIsDecorated(false);
    matchList->setUniformRowHeights(true);
    matchList->setAllColumnsShowFocus(true);
    matchList->header()->setStretchLastSection(false);
    matchList->header()->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    matchList->header()->setSectionResizeMode(ClubColumn, QHeaderView::Stretch);
    matchList->setColumnWidth(NumberColumn, 50);
    matchList->setColumnWidth(NationalityColumn, 110);
    matchList->setColumnWidth(AgeColumn, 40);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(caption);
    layout->addWidget(findBox);
    layout->addWidget(matchList, 1);
    resize(560, 380);

    findBox->installEventFilter(this);
    matchList->installEventFilter(this);
    connect(findBox, &QLineEdit::textChanged, this, &FindWindow::ListMatches);
    connect(matchList, &QTreeWidget::itemDoubleClicked, this, &FindWindow::ChooseRow);
}

void FindWindow::ListMatches()
{
    matchList->clear();
    const QString typed = findBox->text();
    // A character the game's files cannot hold is in nobody's name.
    if (!FitsGame(typed))
        return;
    QList<QTreeWidgetItem*> rows;
    for (const std::int16_t number : FindPlayers(game_, ToGame(typed))) {
        const PlayerRecord& player = game_.Players[std::size_t(number)];
        const std::optional<int> age = AgeOn(player, today_.year(), today_.month(), today_.day());
        auto* row = new QTreeWidgetItem({QString::number(number),
                                         ListedName(player),
                                         ClubName(number), Nationality(player),
                                         age ? QString::number(*age) : QString()});
        row->setData(NumberColumn, Qt::UserRole, int(number));
        row->setTextAlignment(NumberColumn, Qt::AlignRight | Qt::AlignVCenter);
        row->setTextAlignment(AgeColumn, Qt::AlignRight | Qt::AlignVCenter);
        rows.append(row);
    }
    matchList->addTopLevelItems(rows);
    if (!rows.isEmpty())
        matchList->setCurrentItem(rows.first());
}

QString FindWindow::ClubName(std::int16_t player) const
{
    const std::int16_t club = clubs_[std::size_t(player)];
    return club > 0 ? FromGame(game_.Teams[std::size_t(club)].teamName) : QStringLiteral("no club");
}

void FindWindow::ChooseRow(QTreeWidgetItem* row)
{
    if (!row)
        return;
    const int number = row->data(NumberColumn, Qt::UserRole).toInt();
    accept();
    emit playerChosen(number);
}

bool FindWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    auto* key = static_cast<QKeyEvent*>(event);
    if (IsEnter(key->key())) {
        ChooseRow(matchList->currentItem());
        return true;
    }
    // The box keeps the typing; the keys that walk a list walk the matches.
    const bool walksList = key->key() == Qt::Key_Up || key->key() == Qt::Key_Down ||
                           key->key() == Qt::Key_PageUp || key->key() == Qt::Key_PageDown;
    if (watched == findBox && walksList) {
        matchList->setFocus();
        QCoreApplication::sendEvent(matchList, event);
        return true;
    }
    return QDialog::eventFilter(watched, event);
}
