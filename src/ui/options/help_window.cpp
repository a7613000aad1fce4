#include "options/help_window.h"

#include <QLabel>
#include <QPushButton>

#include "forms/fitted_layout.h"

namespace {

constexpr int AreaWidth = 2115;
constexpr int AreaHeight = 3780;

constexpr int FirstRowTop = 1080;
constexpr int RowStep = 360;
constexpr int RowHeight = 255;

struct RangeRow {
    const char* skill;
    const char* range;
};

// The same ranges as the new player's checks; the tests hold the two together.
constexpr std::array<RangeRow, 6> Rows{{
    {"Bat Skill", "0 - 60"},
    {"Bat Aggression", "0 - 20"},
    {"Bowl Skill", "0 - 60"},
    {"Bowl Econ.", "0 - 20"},
    {"Field Skill", "10 - 40"},
    {"Potential", "0 - 20"},
}};

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

    for (std::size_t row = 0; row < Rows.size(); ++row) {
        const int top = FirstRowTop + static_cast<int>(row) * RowStep;
        at.Put(new QLabel(QString::fromLatin1(Rows[row].skill), this), QRect(120, top, 1275, RowHeight), true)
            ->setObjectName(QStringLiteral("skill%1").arg(row));
        at.Put(new QLabel(QString::fromLatin1(Rows[row].range), this), QRect(1440, top, 615, RowHeight), true)
            ->setObjectName(QStringLiteral("range%1").arg(row));
    }

    auto* ok = at.Put(new QPushButton(QStringLiteral("OK"), this), QRect(420, 3300, 1275, 375), true);
    ok->setDefault(true);
    at.Apply();
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
}
