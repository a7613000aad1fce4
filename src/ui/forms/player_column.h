#pragma once

#include <QWidget>
#include <functional>
#include <string>
#include <vector>

#include "data/fields.h"
#include "forms/player_layout.h"
#include "forms/record_boxes.h"
#include "newplayer/new_player_check.h"

class FittedLayout;
class QKeyEvent;

// One player's values, each in the box its field's kind calls for: a text box
// for a name or a number, a list for a code. The column shows a record and,
// unless it is read-only, tells each change the user makes by `edited`.
class PlayerColumn : public QWidget {
    Q_OBJECT
public:
    // Builds the captions and boxes where `design` sets them out; `at`
    // places them and the column itself.
    PlayerColumn(FittedLayout& at, const PlayerColumnDesign& design, QWidget* parent);

    // Read-only: nothing takes input or focus, the values still read plainly,
    // and a code with no entry leaves the list on what it showed before, as
    // nothing shown can reach the record.
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

    // A number box left with a text its field cannot hold shows the record's
    // value again; gives what the status bar should say of it.
    QString TakeBackInexact(const PlayerRecord& player) { return records_.TakeBackInexact(player); }

    // Tints each number box by what its field in `player` made of its text,
    // and gives what the box with the keyboard focus says (empty if none).
    QString MarkNumberBoxes(const PlayerRecord& player);

    // What the boxes hold as typed, for a new player's checks.
    NewPlayerEntries Entries() const;

    // The name as the column shows it: initials, a space, surname.
    QString ShownName() const;

    // Every list on its first entry.
    void ChooseFirstEntries();

    // The box of a field, for the window that lays out its focus order.
    QWidget* Box(std::string PlayerRecord::*field) const;
    QWidget* Box(std::int16_t PlayerRecord::*field) const;

    // A number box that takes at most `length` characters, and a key filter
    // for the number boxes: `passes` sees each key and may refuse it.
    void LimitLength(std::int16_t PlayerRecord::*field, int length);
    void SetNumberKeyFilter(const std::function<bool(const QKeyEvent& key)>& passes);

signals:
    // The user changed `field` in its box to `value`.
    void edited(const PlayerField& field, const TypedValue& value);
    // A name box turned a key or a paste away, and why.
    void nameRefused(const QString& why);

private:
    std::vector<const PlayerField*> fields_;   // the shown ones, in the table's order
    std::vector<QWidget*> boxes_;              // one to each of them
    RecordBoxes<PlayerRecord> records_;
    bool readOnly_ = false;
};
