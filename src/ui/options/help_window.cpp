#include "options/help_window.h"

#include <QLabel>
#include <QPushButton>

#include "data/fields.h"
#include "forms/fitted_layout.h"
#include "forms/game_text.h"

namespace {

constexpr int AreaWidth = 2115;
constexpr int AreaHeight = 3780;

constexpr int FirstRowTop = 1080;
constexpr int RowStep = 360;
constexpr int RowHeight = 255;

}  // namespace

HelpWindow::HelpWindow(QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("helpWindow"));
    setWindowTitle(QStringLiteral("Help"));
    FittedLayout at(this, {AreaWidth, AreaHeight});

    auto* heading = at.Put(new QLabel(QStringLiteral("The ranges for the different player statistics are as follows:"), this),
                           QRect(120, 120, 1875, 855));
    heading->setWordWrap(true);
    heading->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    // A row to each field the game gives a range, in the table's order.
    int row = 0;
    for (const PlayerField& field : PlayerFields) {
        if (!field.range)
            continue;
        const int top = FirstRowTop + row * RowStep;
        at.Put(new QLabel(FromGame(field.rangeLabel), this), QRect(120, top, 1275, RowHeight), true)
            ->setObjectName(QStringLiteral("skill%1").arg(row));
        at.Put(new QLabel(QString::fromStdString(RangeText(*field.range)), this), QRect(1440, top, 615, RowHeight),
               true)
            ->setObjectName(QStringLiteral("range%1").arg(row));
        ++row;
    }

    auto* ok = at.Put(new QPushButton(QStringLiteral("OK"), this), QRect(420, 3300, 1275, 375), true);
    ok->setDefault(true);
    at.Apply();
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
}
