#include "mainwindow/team_column.h"

#include <QLabel>

#include "forms/drop_down.h"
#include "forms/fitted_layout.h"
#include "forms/game_text.h"

namespace {

// The rows as designed: the number's, then one to each field of the table.
constexpr int NumberTop = 960;
constexpr std::array<int, TeamFields.size()> FieldTops{1320, 1680, 2040, 2460, 2820, 3180};
constexpr int CaptionLeft = 120;
constexpr int CaptionWidth = 1215;
constexpr int ValueLeft = 1440;
constexpr int ValueWidth = 1515;

QLabel* BoldLabel(FittedLayout& at, QWidget* column, const QString& caption, QRect designed)
{
    auto* label = at.Put(new QLabel(caption, column), designed, true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    return label;
}

}  // namespace

TeamColumn::TeamColumn(FittedLayout& at, QWidget* parent)
    : QWidget(parent)
{
    at.Put(this, QRect(CaptionLeft, NumberTop, ValueLeft + ValueWidth - CaptionLeft, FieldTops.back() + 285 - NumberTop));
    BoldLabel(at, this, FromGame(TeamLayout.keyLabel), QRect(CaptionLeft, NumberTop, CaptionWidth, 255));
    number_ = BoldLabel(at, this, QStringLiteral("123"), QRect(ValueLeft, NumberTop, ValueWidth, 255));
    number_->setObjectName(QStringLiteral("teamNumber"));
    number_->setAlignment(Qt::AlignCenter);

    for (std::size_t i = 0; i < TeamFields.size(); ++i) {
        const TeamField& field = TeamFields[i];
        const bool code = field.kind == FieldKind::Code;
        BoldLabel(at, this, FromGame(field.label), QRect(CaptionLeft, FieldTops[i], CaptionWidth, code ? 315 : 255));
        const QRect value(ValueLeft, FieldTops[i], ValueWidth, code ? 315 : 285);
        if (code) {
            boxes_[i] = at.Put(NewWordList(this, field.codes->words), value, true);
        } else {
            auto* box = at.Put(new TextBox(this), value);
            // The files cannot carry a comma in a name or a name that opens
            // with a double quote, so the name boxes refuse both as they are
            // typed or pasted.
            if (field.kind == FieldKind::Name) {
                box->SetTextRule(NameRefusalOf);
                connect(box, &TextBox::refused, this, &TeamColumn::nameRefused);
            }
            boxes_[i] = box;
        }
        boxes_[i]->setObjectName(QStringLiteral("team.") + FromGame(field.name));
        fields_.Add(boxes_[i], field);
    }
    fields_.Connect(this, [this](const TeamField& field, const TypedValue& value) { emit edited(field, value); });
}

void TeamColumn::Show(const TeamRecord& team)
{
    setEnabled(true);
    number_->setText(QString::number(team.teamNumber));
    fields_.Show(team);
}

void TeamColumn::Refresh(const TeamRecord& team)
{
    fields_.Refresh(team);
}

QString TeamColumn::MarkNumberBoxes(const TeamRecord& team)
{
    return fields_.MarkNumberBoxes(team);
}

void TeamColumn::ShowNothing()
{
    number_->clear();
    fields_.ShowNothing();
    setEnabled(false);
}
