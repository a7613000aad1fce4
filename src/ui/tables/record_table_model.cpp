#include "tables/record_table_model.h"

#include <QColor>
#include <algorithm>

#include "bulkedit/field_value.h"
#include "data/number_entry.h"
#include "data/record_changes.h"
#include "document/game_document.h"
#include "forms/box_marks.h"
#include "forms/game_text.h"

namespace {

// What a column is sorted by: its number, or for names, words and clubs the
// text as Find Player compares names. Records without a value go last.
struct SortKey {
    bool missing = true;
    double number = 0;
    std::string text;
};

bool SortsAsText(const TableColumn& column)
{
    return column.IsName() || column.Codes() || column.source == ColumnSource::Club;
}

bool Before(const SortKey& a, const SortKey& b, bool text)
{
    return text ? a.text < b.text : a.number < b.number;
}

}  // namespace

RecordTableModel::RecordTableModel(GameDocument& document, RecordKind kind, CalendarDay today, QObject* parent)
    : QAbstractTableModel(parent), document_(document), kind_(kind), today_(today), columns_(TableColumns(kind))
{
    filter_.kind = kind;
    connect(&document_, &GameDocument::recordsChanged, this, &RecordTableModel::FollowRecords);
    connect(&document_, &GameDocument::gameReplaced, this, &RecordTableModel::ReadAgain);
    ReadAgain();
}

RecordTableModel::~RecordTableModel() = default;

int RecordTableModel::RowOf(int number) const
{
    const auto at = std::find(shown_.begin(), shown_.end(), number);
    return at == shown_.end() ? -1 : int(at - shown_.begin());
}

void RecordTableModel::ReadAgain()
{
    beginResetModel();
    const Game& game = document_.Records();
    values_ = std::make_unique<RowValues>(game, today_);
    const int count = kind_ == RecordKind::Player ? LoadedPlayerCount(game) : LoadedTeamCount(game);
    // The records that stay keep their order; new ones join the end.
    std::erase_if(order_, [count](int number) { return number > count; });
    for (int number = int(order_.size()) + 1; number <= count; ++number)
        order_.push_back(number);
    // Team names may have changed, and with them what a club is called.
    const ParsedFilter parsed = ParseFilter(ToGame(filterText_), kind_, game);
    if (parsed.ok())
        filter_ = parsed.filter;
    ApplyFilter();
    endResetModel();
    emit rowsShownChanged();
}

void RecordTableModel::FollowRecords(const RecordChange& change)
{
    values_ = std::make_unique<RowValues>(document_.Records(), today_);
    const bool countChanged = kind_ == RecordKind::Player ? change.playerCountBefore != change.playerCountAfter
                                                          : change.teamCountBefore != change.teamCountAfter;
    if (countChanged)
        return ReadAgain();
    // A player's change moves the averages of the teams table too; only the
    // cells in view are drawn again.
    if (!shown_.empty())
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

std::optional<FilterError> RecordTableModel::SetFilter(const QString& text)
{
    filterText_ = text;
    ParsedFilter parsed = ParseFilter(ToGame(text), kind_, document_.Records());
    if (!parsed.ok())
        return parsed.error;
    beginResetModel();
    filter_ = std::move(parsed.filter);
    ApplyFilter();
    endResetModel();
    emit rowsShownChanged();
    return std::nullopt;
}

void RecordTableModel::ApplyFilter()
{
    FilterMatcher matcher(filter_, *values_);
    shown_.clear();
    std::copy_if(order_.begin(), order_.end(), std::back_inserter(shown_),
                 [&matcher](int number) { return matcher.Matches(number); });
}

void RecordTableModel::sort(int column, Qt::SortOrder order)
{
    if (column < 0 || column >= columnCount())
        return;
    const TableColumn& sorted = ColumnAt(column);
    const bool text = SortsAsText(sorted);
    const Game& game = document_.Records();
    std::vector<SortKey> keys(order_.size() + 1);
    for (int number : order_) {
        SortKey& key = keys[std::size_t(number)];
        const std::optional<double> value = values_->Number(sorted, number);
        key.missing = !value && !sorted.IsName();
        key.number = value.value_or(0);
        if (sorted.IsName())
            key.text = NameKey(values_->Text(sorted, number));
        else if (text && value) {
            if (sorted.source == ColumnSource::Club) {
                key.missing = *value == 0;
                key.text = NameKey(game.Teams[std::size_t(*value)].teamName);
            } else if (const auto word = sorted.Codes()->WordFor(int(*value)))
                key.text = NameKey(*word);
        }
    }
    const bool descending = order == Qt::DescendingOrder;
    emit layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
    const std::vector<int> before = shown_;
    std::stable_sort(order_.begin(), order_.end(), [&](int a, int b) {
        const SortKey& x = keys[std::size_t(a)];
        const SortKey& y = keys[std::size_t(b)];
        if (x.missing != y.missing)
            return y.missing;
        return descending ? Before(y, x, text) : Before(x, y, text);
    });
    // The rows shown are the same records in their new order.
    std::vector<int> rowOf(keys.size(), -1);
    {
        std::vector<bool> isShown(keys.size(), false);
        for (int number : before)
            isShown[std::size_t(number)] = true;
        shown_.clear();
        for (int number : order_) {
            if (isShown[std::size_t(number)]) {
                rowOf[std::size_t(number)] = int(shown_.size());
                shown_.push_back(number);
            }
        }
    }
    const QModelIndexList persistent = persistentIndexList();
    QModelIndexList moved;
    moved.reserve(persistent.size());
    for (const QModelIndex& at : persistent)
        moved.append(index(rowOf[std::size_t(before[std::size_t(at.row())])], at.column()));
    changePersistentIndexList(persistent, moved);
    emit layoutChanged({}, QAbstractItemModel::VerticalSortHint);
    emit rowsShownChanged();
}

void RecordTableModel::Type(const QModelIndex& index, const TypedValue& value)
{
    const TableColumn& column = ColumnAt(index.column());
    if (!index.isValid() || !column.Editable())
        return;
    const int number = RecordAt(index.row());
    if (column.kind == RecordKind::Player)
        document_.Type(number, *column.playerField, value, {ClubOf(number), number});
    else
        document_.Type(number, *column.teamField, value, {number, 0});
    document_.EndTyping();
}

int RecordTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(shown_.size());
}

int RecordTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(columns_.size());
}

QString RecordTableModel::DisplayText(const TableColumn& column, int number) const
{
    if (column.IsName())
        return FromGame(values_->Text(column, number));
    const std::optional<double> value = values_->Number(column, number);
    if (!value)
        return {};
    switch (column.source) {
    case ColumnSource::Club:
        return *value == 0 ? QString() : FromGame(document_.Records().Teams[std::size_t(*value)].teamName);
    case ColumnSource::SquadAverage:
        return QString::number(*value, 'f', 1);
    default:
        break;
    }
    if (const CodeList* codes = column.Codes()) {
        if (const auto word = codes->WordFor(int(*value)))
            return FromGame(*word);
    }
    return QString::number(int(*value));
}

QVariant RecordTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const TableColumn& column = ColumnAt(index.column());
    const int number = RecordAt(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return DisplayText(column, number);
    case Qt::TextAlignmentRole:
        if (SortsAsText(column))
            return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
        return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
    case Qt::BackgroundRole:
    case Qt::ToolTipRole: {
        // A skill outside the game's range is kept, tinted as its box in the
        // main window would be.
        // Only players' skills have a range.
        const Game& game = document_.Records();
        if (column.kind != RecordKind::Player || column.source != ColumnSource::Field ||
            !OutsideRange(column, game.Players[std::size_t(number)]))
            return {};
        if (role == Qt::BackgroundRole)
            return MarkTint(BoxMark::Unusual);
        const PlayerField& field = *column.playerField;
        const std::int16_t held = game.Players[std::size_t(number)].*field.number;
        return QString::fromStdString(
            JudgeNumberEntry(std::to_string(held), held, field.label, field.range).message);
    }
    default:
        return {};
    }
}

QVariant RecordTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= columnCount())
        return QAbstractTableModel::headerData(section, orientation, role);
    return QString::fromStdString(ColumnAt(section).name);
}

Qt::ItemFlags RecordTableModel::flags(const QModelIndex& index) const
{
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (index.isValid() && ColumnAt(index.column()).Editable())
        flags |= Qt::ItemIsEditable;
    return flags;
}
