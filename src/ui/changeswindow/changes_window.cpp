#include "changeswindow/changes_window.h"

#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <array>

#include "data/fields.h"

namespace {

// Rows of changes carry their place in the list; group rows carry none.
constexpr int NoChange = -1;

enum Group { PlayersGroup, TeamsGroup, SquadMovesGroup };
constexpr std::array<const char*, 3> GroupNames{"Players", "Teams", "Squad moves"};

bool IsSquadChange(const Difference& change)
{
    return change.change == "moved" || change.change == "rearranged";
}

bool IsTeamChange(const Difference& change)
{
    return change.file == TeamLayout.file;
}

Group GroupOf(const Difference& change)
{
    return IsSquadChange(change) ? SquadMovesGroup : IsTeamChange(change) ? TeamsGroup : PlayersGroup;
}

}  // namespace

ChangesWindow::ChangesWindow(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("Changes"));
    summary = new QLabel(this);

    changeTree = new QTreeWidget(this);
    changeTree->setHeaderHidden(true);
    changeTree->setUniformRowHeights(true);
    changeTree->installEventFilter(this);
    connect(changeTree, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem* item) { GoTo(item); });

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    buttons->button(QDialogButtonBox::Close)->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(summary);
    layout->addWidget(changeTree, 1);
    layout->addWidget(buttons);
    resize(640, 420);
}

void ChangesWindow::ShowChanges(const QString& since, const std::vector<Difference>& changes)
{
    changes_ = changes;
    summary->setText(changes.empty() ? QStringLiteral("Nothing has changed %1.").arg(since)
                     : changes.size() == 1 ? QStringLiteral("1 change %1:").arg(since)
                                           : QStringLiteral("%1 changes %2:").arg(changes.size()).arg(since));
    changeTree->clear();
    std::array<QTreeWidgetItem*, GroupNames.size()> groups{};
    for (int index = 0; index < int(changes.size()); ++index) {
        const Difference& change = changes[std::size_t(index)];
        const Group kind = GroupOf(change);
        QTreeWidgetItem*& group = groups[std::size_t(kind)];
        if (!group) {
            group = new QTreeWidgetItem({QString::fromLatin1(GroupNames[std::size_t(kind)])});
            group->setData(0, Qt::UserRole, NoChange);
            QFont bold = group->font(0);
            bold.setBold(true);
            group->setFont(0, bold);
        }
        auto* row = new QTreeWidgetItem(group, {QString::fromStdString(change.text)});
        row->setData(0, Qt::UserRole, index);
    }
    for (QTreeWidgetItem* group : groups) {
        if (!group)
            continue;
        group->setText(0, QStringLiteral("%1 (%2)").arg(group->text(0)).arg(group->childCount()));
        changeTree->addTopLevelItem(group);
        group->setExpanded(true);
    }
    if (changeTree->topLevelItemCount() > 0)
        changeTree->setCurrentItem(changeTree->topLevelItem(0)->child(0));
}

void ChangesWindow::GoTo(const QTreeWidgetItem* item)
{
    const int index = item ? item->data(0, Qt::UserRole).toInt() : NoChange;
    if (index < 0 || index >= int(changes_.size()))
        return;
    const Difference& change = changes_[std::size_t(index)];
    if (IsTeamChange(change))
        emit teamChosen(change.record);
    else
        emit playerChosen(change.record);
}

bool ChangesWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == changeTree && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            GoTo(changeTree->currentItem());
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}
