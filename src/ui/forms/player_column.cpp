#include "forms/player_column.h"

#include <QComboBox>
#include <QLabel>
#include <stdexcept>

#include "forms/drop_down.h"
#include "forms/fitted_layout.h"
#include "forms/game_text.h"
#include "forms/text_box.h"

namespace {

QRect Bounds(const PlayerColumnPlaces& places)
{
    QRect bounds;
    for (const auto* rects : {&places.captions, &places.boxes, &places.slashes}) {
        for (const QRect& r : *rects)
            bounds = bounds.united(r);
    }
    return bounds;
}

}  // namespace

PlayerColumn::PlayerColumn(FittedLayout& at, const PlayerColumnDesign& design, QWidget* parent)
    : QWidget(parent), fields_(ShownPlayerFields())
{
    const PlayerColumnPlaces places = PlacePlayerColumn(design);
    at.Put(this, Bounds(places));
    const auto caption = [&](std::string_view words, QRect rect, bool mustFit) {
        return at.Put(new QLabel(FromGame(words), this), rect, mustFit);
    };
    std::size_t row = 0;
    std::size_t slashes = 0;
    for (std::size_t index = 0; index < fields_.size(); ++index) {
        const PlayerField& field = *fields_[index];
        if (index == 0 || fields_[index - 1]->label != field.label) {
            QLabel* label = caption(field.label, places.captions.at(row++), true);
            if (design.boldCaptions) {
                QFont bold = label->font();
                bold.setBold(true);
                label->setFont(bold);
            }
        } else if (field.kind == FieldKind::Number) {
            // The parts of a date stand apart, as they are written.
            caption("/", places.slashes.at(slashes++), design.slashesMustFit)->setAlignment(design.slashAlignment);
        }
        QWidget* value = nullptr;
        if (field.kind == FieldKind::Code) {
            value = at.Put(NewWordList(this, field.codes->words), places.boxes.at(index), true);
        } else {
            auto* text = at.Put(new TextBox(this), places.boxes.at(index));
            // The files cannot carry a comma in a name or a name that opens
            // with a double quote, so the name boxes refuse both as they are
            // typed or pasted.
            if (field.kind == FieldKind::Name) {
                text->SetTextRule(NameRefusalOf);
                connect(text, &TextBox::refused, this, &PlayerColumn::nameRefused);
            }
            value = text;
        }
        value->setObjectName(FromGame(field.name));
        boxes_.push_back(value);
        records_.Add(value, field);
    }
    records_.Connect(this, [this](const PlayerField& field, const TypedValue& value) { emit edited(field, value); });
}

QWidget* PlayerColumn::Box(std::string PlayerRecord::*field) const
{
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        if (fields_[i]->text == field)
            return boxes_[i];
    }
    throw std::logic_error("a name the column has no box for");
}

QWidget* PlayerColumn::Box(std::int16_t PlayerRecord::*field) const
{
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        if (fields_[i]->number == field)
            return boxes_[i];
    }
    throw std::logic_error("a number the column has no box for");
}

void PlayerColumn::SetReadOnly(bool readOnly)
{
    readOnly_ = readOnly;
    if (readOnly) {
        for (QWidget* box : boxes_)
            MakeReadOnly(*box);
    }
}

void PlayerColumn::Show(const PlayerRecord& player)
{
    records_.Show(player, readOnly_);
}

void PlayerColumn::Refresh(const PlayerRecord& player)
{
    records_.Refresh(player);
}

void PlayerColumn::ShowNothing()
{
    records_.ShowNothing();
}

QString PlayerColumn::MarkNumberBoxes(const PlayerRecord& player)
{
    return records_.MarkNumberBoxes(player);
}

NewPlayerEntries PlayerColumn::Entries() const
{
    const auto text = [this](auto field) { return ToGame(static_cast<const TextBox*>(Box(field))->text()); };
    NewPlayerEntries entries;
    entries.initials = text(&PlayerRecord::initials);
    entries.surname = text(&PlayerRecord::surname);
    for (const NumberBox& number : NumberBoxes)
        entries.*number.box = text(number.field);
    for (const CodeBox& code : CodeBoxes)
        entries.*code.row = static_cast<const QComboBox*>(Box(code.field))->currentIndex();
    return entries;
}

QString PlayerColumn::ShownName() const
{
    const auto text = [this](std::string PlayerRecord::*field) { return static_cast<const TextBox*>(Box(field))->text(); };
    return text(&PlayerRecord::initials) + QLatin1Char(' ') + text(&PlayerRecord::surname);
}

void PlayerColumn::ChooseFirstEntries()
{
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        if (fields_[i]->kind == FieldKind::Code)
            static_cast<QComboBox*>(boxes_[i])->setCurrentIndex(0);
    }
}

void PlayerColumn::LimitLength(std::int16_t PlayerRecord::*field, int length)
{
    static_cast<TextBox*>(Box(field))->setMaxLength(length);
}

void PlayerColumn::SetNumberKeyFilter(const std::function<bool(const QKeyEvent& key)>& passes)
{
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        if (fields_[i]->kind == FieldKind::Number)
            static_cast<TextBox*>(boxes_[i])->SetKeyFilter(passes);
    }
}
