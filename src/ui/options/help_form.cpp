#include "options/help_form.h"

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

HelpForm::HelpForm(QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("Help1"));
    setWindowTitle(QStringLiteral("Help"));
    FittedLayout at(this, {AreaWidth, AreaHeight});

    Label1 = at.Put(new QLabel(QStringLiteral("The ranges for the different player statistics are as follows:"), this),
                    QRect(120, 120, 1875, 855));
    Label1->setWordWrap(true);
    Label1->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    for (std::size_t row = 0; row < Rows.size(); ++row) {
        const int top = FirstRowTop + static_cast<int>(row) * RowStep;
        Label2[row] = at.Put(new QLabel(QString::fromLatin1(Rows[row].skill), this),
                             QRect(120, top, 1275, RowHeight), true);
        Label3[row] = at.Put(new QLabel(QString::fromLatin1(Rows[row].range), this),
                             QRect(1440, top, 615, RowHeight), true);
    }

    Command1 = at.Put(new QPushButton(QStringLiteral("OK"), this), QRect(420, 3300, 1275, 375), true);
    Command1->setDefault(true);
    at.Apply();
    connect(Command1, &QPushButton::clicked, this, &HelpForm::Command1_Click);
}

void HelpForm::Command1_Click()
{
    accept();
}
