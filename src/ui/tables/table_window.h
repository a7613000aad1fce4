#pragma once

#include <QMainWindow>
#include <QString>
#include <vector>

#include "document/game_document.h"
#include "table/row_values.h"

class QLabel;
class QLineEdit;
class QTableView;
class RecordTableModel;
struct BulkEdit;

// Tools › Players Table and Teams Table: every player or every team of the
// game in one grid that sorts by any column, narrows to what the filter box
// says and edits in place, cell by cell or many records at once. Each change
// is a step of the document's history, so the main window and the tables
// always show the same records. Enter or a double click on a row shows its
// record in the main window, through playerChosen or teamChosen. The window
// remembers its size and its columns' order, widths and visibility.
class TableWindow : public QMainWindow {
    Q_OBJECT
public:
    TableWindow(GameDocument& document, RecordKind kind, CalendarDay today, QWidget* parent = nullptr);
    ~TableWindow() override;

    // The records of the selected cells, top to bottom.
    std::vector<int> SelectedRecords() const;

    // The bulk edits, on the selection: each is one step, or nothing at all
    // with the reason given back (empty when the step was taken).
    QString SetValue(const QString& column, const QString& value);
    QString Paste(const QString& block);
    QString MoveToTeam(int team);
    // The selected rows as `kolta-data export` writes them, into `path`.
    QString ExportSelection(const QString& path);

    QLineEdit* filterBox = nullptr;
    QTableView* table = nullptr;
    QLabel* countLabel = nullptr;
    RecordTableModel* model = nullptr;

signals:
    void playerChosen(int number);
    void teamChosen(int number);

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Building and the settings, in table_window.cpp.
    void BuildMenu();
    void OnFilterEdited(const QString& text);
    void SayCount();
    void OnHeaderMenu(const QPoint& at);
    void OnRowActivated(int row);
    int NaturalWidth(int logical) const;
    void Restore();
    void Remember();

    // The bulk commands, in table_commands.cpp.
    void OnSetValue();
    void OnPaste();
    void OnMoveToTeam();
    void OnExport();
    StepPlace PlaceOf(const std::vector<int>& records) const;
    QString TakeStep(const BulkEdit& plan, const StepPlace& place);
    // The record a refused step is at fault on, made current.
    void ShowFault(int number);
    QString KindWord() const;

    GameDocument& document_;
    RecordKind kind_;
};
