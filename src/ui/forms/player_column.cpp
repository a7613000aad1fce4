#include "forms/player_column.h"

#include <QLabel>
#include <span>
#include <string_view>

#include "data/code_lists.h"
#include "forms/combo_box.h"
#include "forms/fitted_layout.h"
#include "forms/game_text.h"
#include "forms/text_box.h"
#include "forms/value_boxes.h"

namespace {

// What each box holds: a name, a number, or a code with its list. Most codes
// count from 1; the two hands count from 0.
struct Field {
    const char* name;
    std::string PlayerRecord::*text = nullptr;
    std::int16_t PlayerRecord::*number = nullptr;
    std::span<const std::string_view> codes{};
    int firstCode = 1;
};

const std::array<Field, PlayerBoxCount> Fields{{
    {"initials", &PlayerRecord::initials},
    {"surname", &PlayerRecord::surname},
    {"birthDay", nullptr, &PlayerRecord::birthDay},
    {"birthMonth", nullptr, &PlayerRecord::birthMonth},
    {"birthYear", nullptr, &PlayerRecord::birthYear},
    {"homeCountry", nullptr, &PlayerRecord::homeCountry, CountryList},
    {"batPosition", nullptr, &PlayerRecord::batPosition, BatPositionList},
    {"bats", nullptr, &PlayerRecord::bats, HandList, 0},
    {"batSkill", nullptr, &PlayerRecord::batSkill},
    {"batAggression", nullptr, &PlayerRecord::batAggression},
    {"bowlType", nullptr, &PlayerRecord::bowlType, BowlTypeList},
    {"bowls", nullptr, &PlayerRecord::bowls, HandList, 0},
    {"bowlSkill", nullptr, &PlayerRecord::bowlSkill},
    {"bowlEconomy", nullptr, &PlayerRecord::bowlEconomy},
    {"fieldAbility", nullptr, &PlayerRecord::fieldAbility},
    {"fieldsAt", nullptr, &PlayerRecord::fieldsAt, FieldPositionList},
    {"potential", nullptr, &PlayerRecord::potential},
}};

constexpr std::array<const char*, PlayerRowCount> Captions{
    "Player Name", "Date of birth", "Home Country", "Bat position", "Bats", "Bat skill", "Bat aggr.",
    "Bowl Type", "Bowls", "Bowl Skill", "Bowl Economy", "Field ability", "Fields at", "Potential",
};

// The boxes in the order they are shown: the codes, the date of birth, the
// skills, then the name.
constexpr std::array<PlayerBox, PlayerBoxCount> ShowOrder{
    PlayerBox::HomeCountry, PlayerBox::BatPosition, PlayerBox::Bats, PlayerBox::BowlType, PlayerBox::Bowls,
    PlayerBox::FieldsAt, PlayerBox::BirthDay, PlayerBox::BirthMonth, PlayerBox::BirthYear, PlayerBox::BatSkill,
    PlayerBox::BatAggression, PlayerBox::BowlSkill, PlayerBox::BowlEconomy, PlayerBox::FieldAbility,
    PlayerBox::Potential, PlayerBox::Initials, PlayerBox::Surname,
};

const Field& FieldOf(PlayerBox box)
{
    return Fields[std::size_t(box)];
}

bool IsCode(PlayerBox box)
{
    return !FieldOf(box).codes.empty();
}

// The boxes each caption's row holds, from the first.
PlayerRow RowOf(PlayerBox box)
{
    switch (box) {
    case PlayerBox::Initials:
    case PlayerBox::Surname:
        return PlayerRow::Name;
    case PlayerBox::BirthDay:
    case PlayerBox::BirthMonth:
    case PlayerBox::BirthYear:
        return PlayerRow::DateOfBirth;
    default:
        return PlayerRow(int(box) - int(PlayerBox::HomeCountry) + int(PlayerRow::HomeCountry));
    }
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
    const auto caption = [&](const QString& words, QRect rect, bool mustFit) {
        return at.Put(new QLabel(words, this), rect, mustFit);
    };
    int slashes = 0;
    for (int index = 0; index < PlayerBoxCount; ++index) {
        const auto box = PlayerBox(index);
        const PlayerRow row = RowOf(box);
        if (index == 0 || RowOf(PlayerBox(index - 1)) != row) {
            QLabel* label = caption(QString::fromLatin1(Captions[std::size_t(row)]), places.captions[std::size_t(row)], true);
            if (places.boldCaptions) {
                QFont bold = label->font();
                bold.setBold(true);
                label->setFont(bold);
            }
        } else if (row == PlayerRow::DateOfBirth) {
            QLabel* slash = caption(QStringLiteral("/"), places.dateSlashes[std::size_t(slashes++)], places.slashesMustFit);
            slash->setAlignment(places.slashAlignment);
        }
        const Field& field = FieldOf(box);
        QWidget* value = nullptr;
        if (IsCode(box)) {
            auto* list = at.Put(new ComboBox(this), places.boxes[std::size_t(index)], true);
            for (std::string_view word : field.codes)
                list->AddItem(FromGame(word));
            value = list;
        } else {
            auto* text = at.Put(new TextBox(this), places.boxes[std::size_t(index)]);
            // The files cannot carry a comma in a name or a name that opens
            // with a double quote, so the name boxes refuse both as they are
            // typed or pasted.
            if (field.text)
                text->SetTextRule(IsStorableName);
            value = text;
        }
        value->setObjectName(QString::fromLatin1(field.name));
        boxes_[std::size_t(index)] = value;
    }
}

TextBox* PlayerColumn::Text(PlayerBox box) const
{
    return static_cast<TextBox*>(Box(box));
}

ComboBox* PlayerColumn::Codes(PlayerBox box) const
{
    return static_cast<ComboBox*>(Box(box));
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
    for (PlayerBox box : ShowOrder) {
        const Field& field = FieldOf(box);
        if (field.text) {
            ShowText(*Text(box), FromGame(player.*field.text));
        } else if (!IsCode(box)) {
            ShowText(*Text(box), QString::number(player.*field.number));
        } else {
            ComboBox& list = *Codes(box);
            const int before = list.ListIndex();
            ShowCodeEntry(list, player.*field.number - field.firstCode);
            if (readOnly_ && list.ListIndex() < 0)
                ShowCodeEntry(list, before);
        }
    }
}

bool PlayerColumn::WriteBack(PlayerRecord& player) const
{
    bool nameChanged = false;
    for (PlayerBox box : ShowOrder) {
        const Field& field = FieldOf(box);
        if (field.text) {
            std::string typed = ToGame(Text(box)->Text());
            if (typed != player.*field.text) {
                player.*field.text = std::move(typed);
                nameChanged = true;
            }
        } else if (IsCode(box)) {
            StoreCode(*Codes(box), player.*field.number, field.firstCode);
        } else {
            StoreNumber(*Text(box), player.*field.number);
        }
    }
    return nameChanged;
}

NewPlayerEntries PlayerColumn::Entries() const
{
    const auto text = [this](PlayerBox box) { return ToGame(Text(box)->Text()); };
    const auto entry = [this](PlayerBox box) { return Codes(box)->ListIndex(); };
    NewPlayerEntries entries;
    entries.initials = text(PlayerBox::Initials);
    entries.surname = text(PlayerBox::Surname);
    entries.birthDay = text(PlayerBox::BirthDay);
    entries.birthMonth = text(PlayerBox::BirthMonth);
    entries.birthYear = text(PlayerBox::BirthYear);
    entries.batSkill = text(PlayerBox::BatSkill);
    entries.batAggression = text(PlayerBox::BatAggression);
    entries.bowlSkill = text(PlayerBox::BowlSkill);
    entries.bowlEconomy = text(PlayerBox::BowlEconomy);
    entries.fieldAbility = text(PlayerBox::FieldAbility);
    entries.potential = text(PlayerBox::Potential);
    entries.homeCountry = entry(PlayerBox::HomeCountry);
    entries.batPosition = entry(PlayerBox::BatPosition);
    entries.bats = entry(PlayerBox::Bats);
    entries.bowlType = entry(PlayerBox::BowlType);
    entries.bowls = entry(PlayerBox::Bowls);
    entries.fieldsAt = entry(PlayerBox::FieldsAt);
    return entries;
}

QString PlayerColumn::ShownName() const
{
    return Text(PlayerBox::Initials)->Text() + QLatin1Char(' ') + Text(PlayerBox::Surname)->Text();
}

void PlayerColumn::ChooseFirstEntries()
{
    for (int index = 0; index < PlayerBoxCount; ++index) {
        if (IsCode(PlayerBox(index)))
            Codes(PlayerBox(index))->setCurrentIndex(0);
    }
}

void PlayerColumn::LimitLength(PlayerBox box, int length)
{
    Text(box)->setMaxLength(length);
}

void PlayerColumn::SetNumberKeyFilter(const std::function<void(int& keyAscii)>& filter)
{
    for (int index = 0; index < PlayerBoxCount; ++index) {
        const auto box = PlayerBox(index);
        if (!IsCode(box) && !FieldOf(box).text)
            Text(box)->SetKeyFilter(filter);
    }
}
