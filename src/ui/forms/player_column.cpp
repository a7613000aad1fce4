#include "forms/player_column.h"

#include <QLabel>
#include <stdexcept>
#include <string_view>

#include "data/fields.h"
#include "forms/drop_down.h"
#include "forms/fitted_layout.h"
#include "forms/game_text.h"
#include "forms/text_box.h"

namespace {

// The fields a window shows, in the order of the table: those with a caption.
constexpr std::array<const PlayerField*, PlayerBoxCount> ShownFields = [] {
    std::array<const PlayerField*, PlayerBoxCount> shown{};
    std::size_t count = 0;
    for (const PlayerField& field : PlayerFields) {
        if (!field.label.empty())
            shown.at(count++) = &field;
    }
    if (count != shown.size())
        throw "every captioned field has a box";
    return shown;
}();

// PlayerBox names the boxes in the table's order.
constexpr bool BoxesFollowTheTable()
{
    constexpr std::array<std::string_view, PlayerBoxCount> names{
        "initials", "surname", "birthDay", "birthMonth", "birthYear", "homeCountry", "batPosition", "bats",
        "batSkill", "batAggression", "bowlType", "bowls", "bowlSkill", "bowlEconomy", "fieldAbility", "fieldsAt",
        "potential",
    };
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (ShownFields[i]->name != names[i])
            return false;
    }
    return true;
}
static_assert(BoxesFollowTheTable());

const PlayerField& FieldOf(PlayerBox box)
{
    return *ShownFields[std::size_t(box)];
}

// Fields that share a caption share a row.
bool StartsRow(int index)
{
    return index == 0 || ShownFields[std::size_t(index - 1)]->label != ShownFields[std::size_t(index)]->label;
}

QRect Bounds(const PlayerColumnPlaces& places)
{
    QRect bounds;
    for (const QRect& r : places.captions)
        bounds = bounds.united(r);
    for (const QRect& r : places.boxes)
        bounds = bounds.united(r);
    for (const QRect& r : places.dateSlashes)
        bounds = bounds.united(r);
    return bounds;
}

}  // namespace

PlayerColumn::PlayerColumn(FittedLayout& at, const PlayerColumnPlaces& places, QWidget* parent)
    : QWidget(parent)
{
    at.Put(this, Bounds(places));
    const auto caption = [&](std::string_view words, QRect rect, bool mustFit) {
        return at.Put(new QLabel(FromGame(words), this), rect, mustFit);
    };
    std::size_t row = 0;
    std::size_t slashes = 0;
    for (int index = 0; index < PlayerBoxCount; ++index) {
        const PlayerField& field = FieldOf(PlayerBox(index));
        if (StartsRow(index)) {
            QLabel* label = caption(field.label, places.captions.at(row++), true);
            if (places.boldCaptions) {
                QFont bold = label->font();
                bold.setBold(true);
                label->setFont(bold);
            }
        } else if (field.kind == FieldKind::Number) {
            // The parts of a date stand apart, as they are written.
            caption("/", places.dateSlashes.at(slashes++), places.slashesMustFit)->setAlignment(places.slashAlignment);
        }
        QWidget* value = nullptr;
        if (field.kind == FieldKind::Code) {
            value = at.Put(NewWordList(this, field.codes->words), places.boxes[std::size_t(index)], true);
        } else {
            auto* text = at.Put(new TextBox(this), places.boxes[std::size_t(index)]);
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
        boxes_[std::size_t(index)] = value;
        fields_.Add(value, field);
    }
    fields_.Connect(this, [this](const PlayerField& field, const TypedValue& value) { emit edited(field, value); });
}

TextBox* PlayerColumn::Text(PlayerBox box) const
{
    return static_cast<TextBox*>(Box(box));
}

QComboBox* PlayerColumn::Codes(PlayerBox box) const
{
    return static_cast<QComboBox*>(Box(box));
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
    fields_.Show(player, readOnly_);
}

void PlayerColumn::Refresh(const PlayerRecord& player)
{
    fields_.Refresh(player);
}

void PlayerColumn::ShowNothing()
{
    fields_.ShowNothing();
}

QString PlayerColumn::MarkNumberBoxes(const PlayerRecord& player)
{
    return fields_.MarkNumberBoxes(player);
}

NewPlayerEntries PlayerColumn::Entries() const
{
    const auto boxOf = [this](std::int16_t PlayerRecord::*member) {
        for (int index = 0; index < PlayerBoxCount; ++index) {
            if (FieldOf(PlayerBox(index)).number == member)
                return PlayerBox(index);
        }
        throw std::logic_error("a new player's entry without a box");
    };
    NewPlayerEntries entries;
    entries.initials = ToGame(Text(PlayerBox::Initials)->text());
    entries.surname = ToGame(Text(PlayerBox::Surname)->text());
    for (const NumberBox& number : NumberBoxes)
        entries.*number.box = ToGame(Text(boxOf(number.field))->text());
    for (const CodeBox& code : CodeBoxes)
        entries.*code.row = Codes(boxOf(code.field))->currentIndex();
    return entries;
}

QString PlayerColumn::ShownName() const
{
    return Text(PlayerBox::Initials)->text() + QLatin1Char(' ') + Text(PlayerBox::Surname)->text();
}

void PlayerColumn::ChooseFirstEntries()
{
    for (int index = 0; index < PlayerBoxCount; ++index) {
        if (FieldOf(PlayerBox(index)).kind == FieldKind::Code)
            Codes(PlayerBox(index))->setCurrentIndex(0);
    }
}

void PlayerColumn::LimitLength(PlayerBox box, int length)
{
    Text(box)->setMaxLength(length);
}

void PlayerColumn::SetNumberKeyFilter(const std::function<bool(const QKeyEvent& key)>& filter)
{
    for (int index = 0; index < PlayerBoxCount; ++index) {
        if (FieldOf(PlayerBox(index)).kind == FieldKind::Number)
            Text(PlayerBox(index))->SetKeyFilter(filter);
    }
}
