#pragma once

#include <QRect>
#include <QWidget>
#include <array>
#include <functional>

#include "data/fields.h"
#include "forms/record_boxes.h"
#include "newplayer/new_player_check.h"

class QComboBox;
class FittedLayout;
class QKeyEvent;
class QLabel;
class TextBox;

// The boxes of a player's column: the fields of the game's field table that
// carry a caption, in the table's order.
enum class PlayerBox {
    Initials, Surname, BirthDay, BirthMonth, BirthYear, HomeCountry, BatPosition, Bats, BatSkill,
    BatAggression, BowlType, Bowls, BowlSkill, BowlEconomy, FieldAbility, FieldsAt, Potential,
};
inline constexpr int PlayerBoxCount = 17;

// The captions, one to a row: fields that share a caption share a row.
enum class PlayerRow {
    Name, DateOfBirth, HomeCountry, BatPosition, Bats, BatSkill, BatAggression, BowlType, Bowls,
    BowlSkill, BowlEconomy, FieldAbility, FieldsAt, Potential,
};
inline constexpr int PlayerRowCount = 14;

// Where a window puts the parts of its column, as its design measures them.
struct PlayerColumnPlaces {
    std::array<QRect, PlayerRowCount> captions;
    std::array<QRect, PlayerBoxCount> boxes;
    std::array<QRect, 2> dateSlashes;
    Qt::Alignment slashAlignment = Qt::AlignLeft | Qt::AlignVCenter;
    bool slashesMustFit = true;
    bool boldCaptions = false;
};

// One player's values, each in the box its field's kind calls for: a text box
// for a name or a number, a list for a code. The column shows a record and,
// unless it is read-only, tells each change the user makes by `edited`.
class PlayerColumn : public QWidget {
    Q_OBJECT
public:
    // Builds the captions and boxes; `at` places them and the column itself.
    PlayerColumn(FittedLayout& at, const PlayerColumnPlaces& places, QWidget* parent);

    // Read-only: nothing takes input or focus, the values still read plainly,
    // and a code with no entry in its list leaves the list on what it showed
    // before, as no write-back can harm the record.
    void SetReadOnly(bool readOnly);

    // Fills the boxes from the record, telling no one. A code is shown by its
    // place in the list, so the second "Namibia" stays the second; a code
    // with no entry leaves its list with nothing chosen.
    void Show(const PlayerRecord& player);
    // The shown player changed: the boxes of the fields that changed show him
    // again, but the one being typed in.
    void Refresh(const PlayerRecord& player);
    // Every box empty and every list on no entry: no player is shown.
    void ShowNothing();

    // Tints each number box by what its field in `player` made of its text,
    // and gives what the box with the keyboard focus says (empty if none).
    QString MarkNumberBoxes(const PlayerRecord& player);

    // What the boxes hold as typed, for a new player's checks.
    NewPlayerEntries Entries() const;

    // The name as the column shows it: initials, a space, surname.
    QString ShownName() const;

    // Every list on its first entry.
    void ChooseFirstEntries();

    // For the window that lays out its focus order.
    QWidget* Box(PlayerBox box) const { return boxes_[std::size_t(box)]; }

    // Number boxes that take at most `length` characters, and a key filter for
    // the number boxes: `filter` sees each key and may refuse it.
    void LimitLength(PlayerBox box, int length);
    void SetNumberKeyFilter(const std::function<bool(const QKeyEvent& key)>& filter);

signals:
    // The user changed `field` in its box to `value`.
    void edited(const PlayerField& field, const TypedValue& value);
    // A name box turned a key or a paste away, and why.
    void nameRefused(const QString& why);

private:
    TextBox* Text(PlayerBox box) const;
    QComboBox* Codes(PlayerBox box) const;

    std::array<QWidget*, PlayerBoxCount> boxes_{};
    RecordBoxes<PlayerRecord> fields_;
    bool readOnly_ = false;
};
