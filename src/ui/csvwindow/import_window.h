#pragma once

#include <QDialog>

#include "csv/csv_folder.h"

class QDialogButtonBox;
class QLabel;
class QListWidget;

// What an import from CSV would do, shown before anything is taken: the
// changes, with OK to apply them and Cancel to drop them; or every row at
// fault by its line, with nothing to apply.
class ImportWindow : public QDialog {
    Q_OBJECT
public:
    // `import` is the folder as read; its rows are not applied here.
    ImportWindow(const CsvImport& import, const QString& folder, QWidget* parent = nullptr);

    QLabel* summary = nullptr;
    QListWidget* lineList = nullptr;
    QDialogButtonBox* buttons = nullptr;
};
