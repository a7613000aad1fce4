// The bulk commands of the tables: Set Value, Paste, Move Selected to Team
// and Export Selection to CSV. The core plans each step and says why one may
// not be taken; the window asks, shows the reason and takes the step whole.
#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QGuiApplication>
#include <QHeaderView>
#include <QStatusBar>
#include <QTableView>
#include <algorithm>
#include <string>

#include "bulkedit/bulk_edit.h"
#include "csv/csv_export.h"
#include "data/file_io.h"
#include "data/squad.h"
#include "document/game_document.h"
#include "forms/game_text.h"
#include "forms/message_box.h"
#include "forms/modal.h"
#include "tables/choice_dialog.h"
#include "tables/record_table_model.h"
#include "tables/table_window.h"

namespace {

const QString NothingSelected = QStringLiteral("Select the rows to change first.");

}  // namespace

std::vector<int> TableWindow::SelectedRecords() const
{
    std::vector<int> rows;
    for (const QItemSelectionRange& range : table->selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row);
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    std::vector<int> numbers;
    numbers.reserve(rows.size());
    for (int row : rows)
        numbers.push_back(model->RecordAt(row));
    return numbers;
}

StepPlace TableWindow::PlaceOf(const std::vector<int>& records) const
{
    // Undo brings back into view the first record changed that the main
    // window can show in a squad.
    if (kind_ == RecordKind::Team)
        return {records.front(), 0};
    for (int number : records) {
        if (const int club = model->ClubOf(number); club != 0)
            return {club, number};
    }
    return {0, records.front()};
}

QString TableWindow::TakeStep(const BulkEdit& plan, const StepPlace& place)
{
    if (!plan.ok()) {
        ShowFault(plan.faultRecord);
        return QString::fromStdString(plan.refusal);
    }
    if (!plan.change.Empty())
        document_.Change(QString::fromStdString(plan.summary), place, [&plan](Game& game) { plan.change.Redo(game); });
    statusBar()->showMessage(QString::fromStdString(plan.note.empty() ? plan.summary : plan.note));
    return {};
}

void TableWindow::ShowFault(int number)
{
    const int row = model->RowOf(number);
    if (row < 0)
        return;
    const QModelIndex at = model->index(row, std::max(table->currentIndex().column(), 0));
    table->selectionModel()->setCurrentIndex(at, QItemSelectionModel::NoUpdate);
    table->scrollTo(at);
}

QString TableWindow::SetValue(const QString& column, const QString& value)
{
    const std::vector<int> records = SelectedRecords();
    if (records.empty())
        return NothingSelected;
    const Game& game = document_.Records();
    const BulkEdit plan = PlanSetValue(game, kind_, column.toStdString(), records, ToGame(value));
    return TakeStep(plan, PlaceOf(records));
}

QString TableWindow::Paste(const QString& block)
{
    const std::vector<int> records = SelectedRecords();
    if (records.empty())
        return NothingSelected;
    // The selected columns, left to right as they stand on the screen.
    QHeaderView* header = table->horizontalHeader();
    std::vector<int> logical;
    for (const QItemSelectionRange& range : table->selectionModel()->selection()) {
        for (int column = range.left(); column <= range.right(); ++column) {
            if (!header->isSectionHidden(column))
                logical.push_back(column);
        }
    }
    std::sort(logical.begin(), logical.end(),
              [header](int a, int b) { return header->visualIndex(a) < header->visualIndex(b); });
    logical.erase(std::unique(logical.begin(), logical.end()), logical.end());
    std::vector<std::string> columns;
    for (int column : logical)
        columns.push_back(model->ColumnAt(column).name);
    const BulkEdit plan = PlanPaste(document_.Records(), kind_, records, columns, ToGame(block));
    return TakeStep(plan, PlaceOf(records));
}

QString TableWindow::MoveToTeam(int team)
{
    const std::vector<int> players = SelectedRecords();
    if (players.empty())
        return NothingSelected;
    return TakeStep(PlanMoveToTeam(document_.Records(), players, team), {team, players.front()});
}

QString TableWindow::ExportSelection(const QString& path)
{
    const std::vector<int> records = SelectedRecords();
    const Game& game = document_.Records();
    const std::string csv = kind_ == RecordKind::Player ? PlayersCsvOf(game, records) : TeamsCsvOf(game, records);
    const FileResult written = ReplaceFile(path.toStdString(), csv);
    if (!written.ok())
        return QStringLiteral("Could not write %1:\n%2")
            .arg(QDir::toNativeSeparators(path), QString::fromStdString(written.reason));
    statusBar()->showMessage(
        QStringLiteral("Wrote %1 rows to %2").arg(records.size()).arg(QDir::toNativeSeparators(path)));
    return {};
}

void TableWindow::OnSetValue()
{
    if (SelectedRecords().empty()) {
        ShowMessage(QMessageBox::Information, QStringLiteral("Set Value"), NothingSelected);
        return;
    }
    QStringList fields;
    int chosen = 0;
    for (int column = 0; column < model->columnCount(); ++column) {
        const TableColumn& field = model->ColumnAt(column);
        if (!field.Editable())
            continue;
        if (column == table->currentIndex().column())
            chosen = int(fields.size());
        fields.append(QString::fromStdString(field.name));
    }
    ChoiceDialog dialog(QStringLiteral("Set Value"), QStringLiteral("&Field:"), fields, chosen,
                        QStringLiteral("&Value (7, England, +2, -3):"),
                        [this, &fields](int row, const QString& value) { return SetValue(fields[row], value); }, this);
    dialog.setObjectName(QStringLiteral("setValueDialog"));
    ShowModal(dialog, this);
}

void TableWindow::OnPaste()
{
    if (const QString why = Paste(QGuiApplication::clipboard()->text()); !why.isEmpty())
        ShowMessage(QMessageBox::Warning, QStringLiteral("Paste"), why);
}

void TableWindow::OnMoveToTeam()
{
    if (SelectedRecords().empty()) {
        ShowMessage(QMessageBox::Information, QStringLiteral("Move Selected to Team"), NothingSelected);
        return;
    }
    // The teams by name, so that typing a name finds its team.
    const Game& game = document_.Records();
    std::vector<int> teams(std::size_t(LoadedTeamCount(game)));
    for (std::size_t i = 0; i < teams.size(); ++i)
        teams[i] = int(i) + 1;
    std::stable_sort(teams.begin(), teams.end(),
                     [&game](int a, int b) { return NameKey(game.Teams[a].teamName) < NameKey(game.Teams[b].teamName); });
    QStringList entries;
    for (int team : teams) {
        const TeamRecord& record = game.Teams[std::size_t(team)];
        const auto country = TeamCountries.WordFor(record.homeCountry);
        entries.append(QStringLiteral("%1   (%2, %3 players)")
                           .arg(FromGame(record.teamName), FromGame(country.value_or(std::string_view())))
                           .arg(SquadCount(record)));
    }
    ChoiceDialog dialog(QStringLiteral("Move Selected to Team"), QStringLiteral("&Team:"), entries, 0, QString(),
                        [this, &teams](int row, const QString&) { return MoveToTeam(teams[std::size_t(row)]); }, this);
    dialog.setObjectName(QStringLiteral("moveToTeamDialog"));
    ShowModal(dialog, this);
}

void TableWindow::OnExport()
{
    const QString title = QStringLiteral("Export Selection to CSV");
    const QString name = kind_ == RecordKind::Player ? QStringLiteral("players.csv") : QStringLiteral("teams.csv");
    QFileDialog chooser(this, title, QDir(QString::fromStdString(document_.Folder())).filePath(name),
                        QStringLiteral("CSV files (*.csv)"));
    chooser.setObjectName(QStringLiteral("exportSelectionChooser"));
    chooser.setAcceptMode(QFileDialog::AcceptSave);
    chooser.setDefaultSuffix(QStringLiteral("csv"));
    if (ShowModal(chooser, this) != QDialog::Accepted || chooser.selectedFiles().isEmpty())
        return;
    if (const QString why = ExportSelection(chooser.selectedFiles().constFirst()); !why.isEmpty())
        ShowMessage(QMessageBox::Critical, title, why);
}
