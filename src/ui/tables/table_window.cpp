#include "tables/table_window.h"

#include <QAction>
#include <QCloseEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QStatusBar>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>
#include <memory>

#include "document/game_document.h"
#include "forms/box_marks.h"
#include "forms/game_text.h"
#include "tables/cell_editor.h"
#include "tables/record_table_model.h"

namespace {

const QKeySequence SetValueKeys(Qt::CTRL | Qt::Key_E);

// The tables' layouts are kept in windows.ini in the user's configuration
// folder for the editor, beside the editor.dat kept there, in the group of
// each table.
std::unique_ptr<QSettings> LayoutSettings(RecordKind kind)
{
    auto settings = std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                                QStringLiteral("kolta-editor"), QStringLiteral("windows"));
    settings->beginGroup(kind == RecordKind::Player ? QStringLiteral("playersTable") : QStringLiteral("teamsTable"));
    return settings;
}

}  // namespace

TableWindow::TableWindow(GameDocument& document, RecordKind kind, CalendarDay today, QWidget* parent)
    : QMainWindow(parent, Qt::Window), document_(document), kind_(kind)
{
    setWindowTitle(kind == RecordKind::Player ? QStringLiteral("Players") : QStringLiteral("Teams"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* area = new QWidget(this);
    auto* layout = new QVBoxLayout(area);
    filterBox = new QLineEdit(area);
    filterBox->setObjectName(QStringLiteral("filterBox"));
    filterBox->setPlaceholderText(kind == RecordKind::Player ? QStringLiteral("Filter: a name, or batSkill>=42 age<25 ...")
                                                             : QStringLiteral("Filter: a name, or homeCountry=England ..."));
    filterBox->setClearButtonEnabled(true);
    filterBox->installEventFilter(this);
    layout->addWidget(filterBox);

    model = new RecordTableModel(document, kind, today, this);
    table = new QTableView(area);
    table->setObjectName(QStringLiteral("recordTable"));
    table->setModel(model);
    table->setItemDelegate(new CellEditor(*model, table));
    table->setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed);
    table->setWordWrap(false);
    table->verticalHeader()->hide();
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 6);
    QHeaderView* header = table->horizontalHeader();
    header->setSectionsMovable(true);
    header->setContextMenuPolicy(Qt::CustomContextMenu);
    header->setSortIndicator(0, Qt::AscendingOrder);
    table->setSortingEnabled(true);
    layout->addWidget(table);
    setCentralWidget(area);

    countLabel = new QLabel(this);
    statusBar()->addPermanentWidget(countLabel);
    BuildMenu();

    connect(filterBox, &QLineEdit::textChanged, this, &TableWindow::OnFilterEdited);
    connect(model, &RecordTableModel::rowsShownChanged, this, &TableWindow::SayCount);
    connect(header, &QHeaderView::customContextMenuRequested, this, &TableWindow::OnHeaderMenu);
    connect(table, &QTableView::activated, this, [this](const QModelIndex& index) { OnRowActivated(index.row()); });
    connect(static_cast<CellEditor*>(table->itemDelegate()), &CellEditor::said, this,
            [this](const QString& text) { statusBar()->showMessage(text); });
    // What was said about a cell stands until another cell is chosen.
    connect(table->selectionModel(), &QItemSelectionModel::currentChanged, statusBar(), &QStatusBar::clearMessage);
    Restore();
    SayCount();
    filterBox->setFocus();
}

TableWindow::~TableWindow() = default;

void TableWindow::BuildMenu()
{
    const auto command = [this](QMenu* menu, const QString& text, const char* name, const QKeySequence& keys,
                                auto handler) {
        QAction* action = menu->addAction(text);
        action->setObjectName(QString::fromLatin1(name));
        action->setShortcut(keys);
        connect(action, &QAction::triggered, this, handler);
        return action;
    };
    QMenu* edit = menuBar()->addMenu(QStringLiteral("&Edit"));
    command(edit, QStringLiteral("&Undo"), "undoAction", QKeySequence::Undo, [this] { document_.Undo(); });
    command(edit, QStringLiteral("&Redo"), "redoAction", QKeySequence(Qt::CTRL | Qt::Key_Y), [this] { document_.Redo(); });
    edit->addSeparator();
    command(edit, QStringLiteral("Select &All Rows"), "selectAllAction", QKeySequence::SelectAll, [this] {
        table->selectAll();
        table->setFocus();
    });
    // Paste is the table's own, so that the filter box and a cell being
    // edited keep theirs.
    QAction* paste = command(edit, QStringLiteral("&Paste"), "pasteAction", QKeySequence::Paste, &TableWindow::OnPaste);
    paste->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    table->addAction(paste);
    command(edit, QStringLiteral("&Set Value..."), "setValueAction", SetValueKeys, &TableWindow::OnSetValue);
    if (kind_ == RecordKind::Player)
        command(edit, QStringLiteral("&Move Selected to Team..."), "moveToTeamAction", {}, &TableWindow::OnMoveToTeam);
    edit->addSeparator();
    command(edit, QStringLiteral("&Export Selection to CSV..."), "exportSelectionAction", {}, &TableWindow::OnExport);
}

bool TableWindow::eventFilter(QObject* watched, QEvent* event)
{
    // The filter box would take Ctrl+A and Ctrl+E for its text; in this
    // window they select the rows and set a value. Down goes to the rows.
    if (watched == filterBox && (event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress)) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool ours = key->matches(QKeySequence::SelectAll) || QKeySequence(key->keyCombination()) == SetValueKeys;
        if (event->type() == QEvent::ShortcutOverride)
            return ours;
        if (key->key() == Qt::Key_Down && model->rowCount() > 0) {
            table->setFocus();
            if (!table->currentIndex().isValid())
                table->setCurrentIndex(model->index(0, 0));
            return true;
        }
    }
    return QMainWindow::eventFilter(watched, event);
}

void TableWindow::OnFilterEdited(const QString& text)
{
    if (const auto error = model->SetFilter(text)) {
        const QString why = QString::fromStdString(error->reason);
        MarkBox(*filterBox, BoxMark::Refused, why);
        statusBar()->showMessage(why);
        return;
    }
    MarkBox(*filterBox, BoxMark::Plain, QString());
    statusBar()->clearMessage();
}

QString TableWindow::KindWord() const
{
    return kind_ == RecordKind::Player ? QStringLiteral("players") : QStringLiteral("teams");
}

void TableWindow::SayCount()
{
    countLabel->setText(QStringLiteral("%1 of %2 %3").arg(model->rowCount()).arg(model->RecordCount()).arg(KindWord()));
}

void TableWindow::OnHeaderMenu(const QPoint& at)
{
    // A column can be hidden and shown again; the last one shown stays.
    QHeaderView* header = table->horizontalHeader();
    QMenu menu(this);
    const int shown = header->count() - header->hiddenSectionCount();
    for (int logical = 0; logical < model->columnCount(); ++logical) {
        QAction* column = menu.addAction(model->headerData(logical, Qt::Horizontal, Qt::DisplayRole).toString());
        column->setCheckable(true);
        column->setChecked(!header->isSectionHidden(logical));
        column->setEnabled(header->isSectionHidden(logical) || shown > 1);
        connect(column, &QAction::toggled, header, [header, logical](bool on) { header->setSectionHidden(logical, !on); });
    }
    menu.exec(header->mapToGlobal(at));
}

void TableWindow::OnRowActivated(int row)
{
    const int number = model->RecordAt(row);
    if (kind_ == RecordKind::Player)
        emit playerChosen(number);
    else
        emit teamChosen(number);
}

void TableWindow::Restore()
{
    const auto settings = LayoutSettings(kind_);
    if (!restoreGeometry(settings->value(QStringLiteral("geometry")).toByteArray()))
        resize(1100, 640);
    if (!table->horizontalHeader()->restoreState(settings->value(QStringLiteral("columns")).toByteArray())) {
        for (int column = 0; column < model->columnCount(); ++column)
            table->setColumnWidth(column, NaturalWidth(column));
    }
}

int TableWindow::NaturalWidth(int logical) const
{
    // Measured from what a column can hold rather than from its 2000 rows,
    // which would take most of the time the window needs to open.
    const TableColumn& column = model->ColumnAt(logical);
    QString widest = QStringLiteral("000000");
    if (const CodeList* codes = column.Codes()) {
        for (std::string_view word : codes->words)
            widest = std::max(widest, FromGame(word), [](const QString& a, const QString& b) { return a.size() < b.size(); });
    } else if (column.IsName() || column.source == ColumnSource::Club) {
        widest = QString(18, QLatin1Char('n'));
    }
    const int cell = table->fontMetrics().horizontalAdvance(widest);
    const QHeaderView& header = *table->horizontalHeader();
    const int caption = header.fontMetrics().horizontalAdvance(model->headerData(logical, Qt::Horizontal, Qt::DisplayRole).toString());
    return std::max(cell, caption + header.fontMetrics().height()) + 12;
}

void TableWindow::Remember()
{
    const auto settings = LayoutSettings(kind_);
    settings->setValue(QStringLiteral("geometry"), saveGeometry());
    settings->setValue(QStringLiteral("columns"), table->horizontalHeader()->saveState());
}

void TableWindow::closeEvent(QCloseEvent* event)
{
    Remember();
    QMainWindow::closeEvent(event);
}
