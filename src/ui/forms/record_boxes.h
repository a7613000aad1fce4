#pragma once

#include <QObject>
#include <QWidget>
#include <functional>
#include <optional>
#include <vector>

#include "forms/box_marks.h"
#include "forms/value_boxes.h"

// The boxes that show the fields of one record and carry what the user does
// in them back, as typed values, the moment it is done.
template <class Record>
class RecordBoxes {
public:
    using Edited = std::function<void(const Field<Record>& field, const TypedValue& value)>;

    // `box` shows `field`: a TextBox for a name or a number, a list of the
    // field's words for a code.
    void Add(QWidget* box, const Field<Record>& field)
    {
        boxes_.push_back({box, &field});
    }

    // `edited` hears each change the user makes in a box, and any setText or
    // setCurrentIndex that is not the program showing a record.
    void Connect(QObject* context, Edited edited)
    {
        for (std::size_t i = 0; i < boxes_.size(); ++i) {
            const auto tell = [this, i, edited] {
                editing_ = boxes_[i].widget;
                edited(*boxes_[i].field, TypedValueOf(*boxes_[i].widget, *boxes_[i].field));
                editing_ = nullptr;
            };
            if (boxes_[i].field->kind == FieldKind::Code)
                QObject::connect(static_cast<QComboBox*>(boxes_[i].widget), &QComboBox::currentIndexChanged, context,
                                 tell);
            else
                QObject::connect(static_cast<TextBox*>(boxes_[i].widget), &TextBox::edited, context, tell);
        }
    }

    // Every box as the record holds it. `keepUnlistedCodes`: a code with no
    // entry leaves its list on what it showed before, where nothing that is
    // shown can be written back.
    void Show(const Record& record, bool keepUnlistedCodes = false)
    {
        for (const Box& box : boxes_) {
            const bool code = box.field->kind == FieldKind::Code;
            const int before = code ? static_cast<QComboBox*>(box.widget)->currentIndex() : -1;
            ShowField(*box.widget, *box.field, record);
            if (code && keepUnlistedCodes && static_cast<QComboBox*>(box.widget)->currentIndex() < 0)
                ShowEntry(*static_cast<QComboBox*>(box.widget), before);
        }
        shown_ = record;
    }

    // The record changed: the boxes of the fields that changed since it was
    // shown show it again, all but the one being typed in, whose text the
    // change came from. The others keep what the user left in them.
    void Refresh(const Record& record)
    {
        for (const Box& box : boxes_) {
            if (box.widget != editing_ && (!shown_ || !SameValue(*box.field, *shown_, record)))
                ShowField(*box.widget, *box.field, record);
        }
        shown_ = record;
    }

    // Every box empty and every list on no entry.
    void ShowNothing()
    {
        for (const Box& box : boxes_) {
            if (box.field->kind == FieldKind::Code) {
                ShowEntry(*static_cast<QComboBox*>(box.widget), -1);
            } else {
                static_cast<TextBox*>(box.widget)->ShowText(QString());
                MarkBox(*static_cast<TextBox*>(box.widget), BoxMark::Plain, QString());
            }
        }
        shown_.reset();
    }

    // The number boxes whose text their field cannot hold exactly show what
    // the record holds again, all but the one being typed in. Gives what that
    // says ("Wealth stays 88: 12.5 is not a whole number from -32768 to
    // 32767"), empty when no box did.
    QString TakeBackInexact(const Record& record)
    {
        QString said;
        for (const Box& box : boxes_) {
            if (box.field->kind != FieldKind::Number || box.widget == editing_)
                continue;
            auto* text = static_cast<TextBox*>(box.widget);
            if (ExactNumber(text->text().toStdString()))
                continue;
            said = QStringLiteral("%1 stays %2: %3")
                       .arg(FromGame(box.field->label), QString::number(record.*box.field->number),
                            QString::fromStdString(NotExactReason(text->text().toStdString())));
            ShowField(*box.widget, *box.field, record);
        }
        return said;
    }

    // Tints each number box by what its field in `record` made of its text,
    // and gives what the box with the keyboard focus says (empty if none).
    QString MarkNumberBoxes(const Record& record)
    {
        QString focused;
        for (const Box& box : boxes_) {
            if (box.field->kind != FieldKind::Number)
                continue;
            auto* text = static_cast<TextBox*>(box.widget);
            const QString said = MarkNumberBox(*text, *box.field, record);
            if (text->hasFocus())
                focused = said;
        }
        return focused;
    }

private:
    struct Box {
        QWidget* widget;
        const Field<Record>* field;
    };

    static bool SameValue(const Field<Record>& field, const Record& a, const Record& b)
    {
        return field.kind == FieldKind::Name ? a.*field.text == b.*field.text : a.*field.number == b.*field.number;
    }

    std::vector<Box> boxes_;
    std::optional<Record> shown_;
    const QWidget* editing_ = nullptr;
};
