#pragma once

#include <QWidget>
#include <array>

#include "data/fields.h"
#include "forms/record_boxes.h"

class FittedLayout;
class QLabel;

// The team shown in the main window: its number, then a caption and a box to
// each field of the team table, in the table's order, down the left column.
class TeamColumn : public QWidget {
    Q_OBJECT
public:
    // Builds the captions and boxes; `at` places them and the column itself.
    TeamColumn(FittedLayout& at, QWidget* parent);

    // Fills the number and the boxes from the record, telling no one.
    void Show(const TeamRecord& team);
    // The team changed: the boxes of the fields that changed show it again,
    // but the one being typed in.
    void Refresh(const TeamRecord& team);
    QString MarkNumberBoxes(const TeamRecord& team);
    QString TakeBackInexact(const TeamRecord& team) { return fields_.TakeBackInexact(team); }
    // No team: the number and the boxes empty, and nothing takes input.
    void ShowNothing();

    // The box of the table's field `index`, for the window's focus order.
    QWidget* Box(std::size_t index) const { return boxes_[index]; }

signals:
    // The user changed `field` in its box to `value`.
    void edited(const TeamField& field, const TypedValue& value);
    // A name box turned a key or a paste away, and why.
    void nameRefused(const QString& why);

private:
    QLabel* number_ = nullptr;
    std::array<QWidget*, TeamFields.size()> boxes_{};
    RecordBoxes<TeamRecord> fields_;
};
