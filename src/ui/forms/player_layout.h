#pragma once

#include <QRect>
#include <vector>

#include "data/fields.h"

// How a window sets out a player's fields. The rows come from the field
// table: one to each caption, in the table's order, fields that share a
// caption sharing a row; a row of names or codes stands 315 high, a row of
// numbers 255, with 105 between rows. The window says where its columns of
// rows begin, in the measure of its design.
struct PlayerColumnDesign {
    struct Column {
        int captionLeft;
        int valueLeft;
        int top;
        int firstRow;   // the column holds the rows from here to the next column's first
    };
    std::vector<Column> columns;
    int wideRows = 0;              // the first rows' values stand 1755 wide, the others 1695
    bool lowSlashes = false;       // the slashes of the date stand 60 lower and 195 high
    int windowRowAfter = -1;       // a row the window fills itself stands under this row

    // How the parts look.
    bool boldCaptions = false;
    Qt::Alignment slashAlignment = Qt::AlignLeft | Qt::AlignVCenter;
    bool slashesMustFit = true;    // a slash widens the whole window until it fits
};

// Where the parts of a player's column stand, in the measure of the design.
struct PlayerColumnPlaces {
    std::vector<QRect> captions;   // one to each row
    std::vector<QRect> boxes;      // one to each captioned field, in the table's order
    std::vector<QRect> slashes;    // between the parts of a date
    QRect windowCaption;           // the window's own row, if it has one
    QRect windowValue;
};

// The fields that have a caption, which a window shows, in the table's order.
std::vector<const PlayerField*> ShownPlayerFields();
// The row, from 0, that shows `field`.
int PlayerRowOf(std::int16_t PlayerRecord::*field);
PlayerColumnPlaces PlacePlayerColumn(const PlayerColumnDesign& design);
