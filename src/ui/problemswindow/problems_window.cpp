#include "problemswindow/problems_window.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "data/fields.h"

namespace {

enum Column { FileColumn, RecordColumn, FieldColumn, SeverityColumn, MessageColumn };

QTableWidgetItem* Cell(const QString& text)
{
    auto* cell = new QTableWidgetItem(text);
    cell->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    return cell;
}

// "1 error, 3 warnings"
QString ProblemCount(int errors, int warnings)
{
    return QStringLiteral("%1 %2, %3 %4")
        .arg(errors)
        .arg(errors == 1 ? QStringLiteral("error") : QStringLiteral("errors"))
        .arg(warnings)
        .arg(warnings == 1 ? QStringLiteral("warning") : QStringLiteral("warnings"));
}

}  // namespace

ProblemsWindow::ProblemsWindow(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("Problems"));
    summary = new QLabel(this);

    problemTable = new QTableWidget(0, 5, this);
    problemTable->setHorizontalHeaderLabels({QStringLiteral("File"), QStringLiteral("Record"),
                                             QStringLiteral("Field"), QStringLiteral("Severity"),
                                             QStringLiteral("What is wrong")});
    problemTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    problemTable->setSelectionMode(QAbstractItemView::SingleSelection);
    problemTable->setEditTriggers(QAbstractItemView::NoEditTriggers);
    problemTable->setWordWrap(false);
    problemTable->verticalHeader()->hide();
    problemTable->verticalHeader()->setDefaultSectionSize(problemTable->fontMetrics().height() + 8);
    problemTable->horizontalHeader()->setStretchLastSection(true);
    problemTable->installEventFilter(this);
    connect(problemTable, &QTableWidget::cellDoubleClicked, this, [this](int row, int) { GoToRow(row); });

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    buttons->button(QDialogButtonBox::Close)->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(summary);
    layout->addWidget(problemTable, 1);
    layout->addWidget(buttons);
    resize(800, 360);
}

void ProblemsWindow::ShowProblems(const std::vector<Problem>& problems)
{
    problems_ = problems;
    const int errors = int(std::count_if(problems.begin(), problems.end(),
                                         [](const Problem& p) { return p.severity == Severity::Error; }));
    summary->setText(problems.empty() ? QStringLiteral("No problems found.")
                                      : ProblemCount(errors, int(problems.size()) - errors));

    const QIcon errorIcon = style()->standardIcon(QStyle::SP_MessageBoxCritical);
    const QIcon warningIcon = style()->standardIcon(QStyle::SP_MessageBoxWarning);
    problemTable->clearContents();
    problemTable->setRowCount(int(problems.size()));
    for (int row = 0; row < int(problems.size()); ++row) {
        const Problem& problem = problems[std::size_t(row)];
        const bool error = problem.severity == Severity::Error;
        problemTable->setItem(row, FileColumn, Cell(QString::fromStdString(problem.file)));
        auto* record = Cell(QString::number(problem.record));
        record->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        problemTable->setItem(row, RecordColumn, record);
        problemTable->setItem(row, FieldColumn, Cell(QString::fromStdString(problem.field)));
        auto* severity = Cell(error ? QStringLiteral("error") : QStringLiteral("warning"));
        severity->setIcon(error ? errorIcon : warningIcon);
        problemTable->setItem(row, SeverityColumn, severity);
        problemTable->setItem(row, MessageColumn, Cell(QString::fromStdString(problem.message)));
    }
    problemTable->resizeColumnsToContents();
    problemTable->horizontalHeader()->setStretchLastSection(true);
    if (!problems.empty())
        problemTable->selectRow(0);
}

void ProblemsWindow::GoToRow(int row)
{
    if (row < 0 || row >= int(problems_.size()))
        return;
    const Problem& problem = problems_[std::size_t(row)];
    if (problem.file == TeamLayout.file)
        emit teamChosen(problem.record);
    else
        emit playerChosen(problem.record);
}

bool ProblemsWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == problemTable && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            GoToRow(problemTable->currentRow());
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}
