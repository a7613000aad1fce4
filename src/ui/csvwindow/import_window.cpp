#include "csvwindow/import_window.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

ImportWindow::ImportWindow(const CsvImport& import, const QString& folder, QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("Import from CSV"));
    summary = new QLabel(this);
    summary->setWordWrap(true);
    lineList = new QListWidget(this);
    lineList->setUniformItemSizes(true);

    const QString where = QDir::toNativeSeparators(folder);
    const bool refused = !import.faults.empty();
    const bool nothingToApply = refused || import.changes.empty();
    if (import.changes.empty() && !refused) {
        summary->setText(QStringLiteral("Nothing to change: the files in %1 hold the game as it is.").arg(where));
    } else if (refused) {
        summary->setText(QStringLiteral("The game was not changed: %1 in %2 cannot be taken.")
                             .arg(import.faults.size() == 1 ? QStringLiteral("1 row")
                                                            : QStringLiteral("%1 rows").arg(import.faults.size()),
                                  where));
        for (const RowFault& fault : import.faults)
            lineList->addItem(QString::fromStdString(RowFaultLine(fault)));
    } else {
        summary->setText(import.changes.size() == 1
                             ? QStringLiteral("1 change from %1. OK applies it to the open game; "
                                              "nothing is saved until you save.")
                                   .arg(where)
                             : QStringLiteral("%1 changes from %2. OK applies them to the open game; "
                                              "nothing is saved until you save.")
                                   .arg(import.changes.size())
                                   .arg(where));
        for (const Difference& change : import.changes)
            lineList->addItem(QString::fromStdString(change.text));
    }
    if (lineList->count() > 0)
        lineList->setCurrentRow(0);
    lineList->setVisible(lineList->count() > 0);

    buttons = new QDialogButtonBox(nothingToApply ? QDialogButtonBox::Close : QDialogButtonBox::Ok | QDialogButtonBox::Cancel,
                                   this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(summary);
    layout->addWidget(lineList, 1);
    layout->addWidget(buttons);
    if (lineList->count() > 0)
        resize(640, 400);
}
