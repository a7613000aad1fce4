#include "forms/player_layout.h"

#include <stdexcept>

namespace {

constexpr int CaptionWidth = 1335;
constexpr int WideValue = 1755;
constexpr int Value = 1695;
constexpr int TallRow = 315;
constexpr int Row = 255;
constexpr int RowGap = 105;

// A name's two parts: the initials, then the surname.
constexpr int InitialsWidth = 435;
constexpr int SurnameLeft = 480;
// A date's three parts with a slash between each two, as it is written.
constexpr int PartWidth = 375;
constexpr int YearWidth = 555;
constexpr int SlashWidth = 135;
constexpr int FirstSlash = 420;
constexpr int MonthLeft = 600;
constexpr int SecondSlash = 1020;

// The fields of each row, in order.
std::vector<std::vector<const PlayerField*>> Rows()
{
    std::vector<std::vector<const PlayerField*>> rows;
    for (const PlayerField* field : ShownPlayerFields()) {
        if (rows.empty() || rows.back().front()->label != field->label)
            rows.emplace_back();
        rows.back().push_back(field);
    }
    return rows;
}

int HeightOf(const std::vector<const PlayerField*>& row)
{
    return row.front()->kind == FieldKind::Number ? Row : TallRow;
}

// Places the boxes of one row whose values start at `left`, `width` wide.
void PlaceRow(const std::vector<const PlayerField*>& row, int left, int top, int width, bool lowSlashes,
              PlayerColumnPlaces& places)
{
    const int height = HeightOf(row);
    const auto box = [&](int offset, int boxWidth) { places.boxes.emplace_back(left + offset, top, boxWidth, height); };
    const auto slash = [&](int offset) {
        places.slashes.push_back(lowSlashes ? QRect(left + offset, top + 60, SlashWidth, 195)
                                            : QRect(left + offset, top, SlashWidth, height));
    };
    switch (row.size()) {
    case 1:
        box(0, width);
        return;
    case 2:
        box(0, InitialsWidth);
        box(SurnameLeft, width - SurnameLeft);
        return;
    case 3:
        box(0, PartWidth);
        slash(FirstSlash);
        box(MonthLeft, PartWidth);
        slash(SecondSlash);
        box(width - YearWidth, YearWidth);
        return;
    default:
        throw std::logic_error("a row of the player's column holds one, two or three fields");
    }
}

}  // namespace

std::vector<const PlayerField*> ShownPlayerFields()
{
    std::vector<const PlayerField*> shown;
    for (const PlayerField& field : PlayerFields) {
        if (!field.label.empty())
            shown.push_back(&field);
    }
    return shown;
}

int PlayerRowOf(std::int16_t PlayerRecord::*field)
{
    const auto rows = Rows();
    for (std::size_t r = 0; r < rows.size(); ++r) {
        for (const PlayerField* shown : rows[r]) {
            if (shown->number == field)
                return int(r);
        }
    }
    throw std::logic_error("a field no row shows");
}

PlayerColumnPlaces PlacePlayerColumn(const PlayerColumnDesign& design)
{
    const auto rows = Rows();
    PlayerColumnPlaces places;
    for (std::size_t c = 0; c < design.columns.size(); ++c) {
        const PlayerColumnDesign::Column& column = design.columns[c];
        const int end = c + 1 < design.columns.size() ? design.columns[c + 1].firstRow : int(rows.size());
        int top = column.top;
        for (int r = column.firstRow; r < end; ++r) {
            const int height = HeightOf(rows[std::size_t(r)]);
            const int width = r < design.wideRows ? WideValue : Value;
            places.captions.emplace_back(column.captionLeft, top, CaptionWidth, height);
            PlaceRow(rows[std::size_t(r)], column.valueLeft, top, width, design.lowSlashes, places);
            top += height + RowGap;
            if (r == design.windowRowAfter) {
                places.windowCaption = QRect(column.captionLeft, top, CaptionWidth, Row);
                places.windowValue = QRect(column.valueLeft, top, Value, Row);
                top += Row + RowGap;
            }
        }
    }
    return places;
}
