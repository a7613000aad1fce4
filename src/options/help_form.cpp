#include "options/help_form.h"

#include <QLabel>
#include <QPushButton>

#include "forms/twips.h"

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
    setFixedSize(TwipSize(AreaWidth, AreaHeight));

    Label1 = new QLabel(QStringLiteral("The ranges for the different player statistics are as follows:"), this);
    Label1->setGeometry(TwipRect(120, 120, 1875, 855));
    Label1->setWordWrap(true);
    Label1->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    for (std::size_t row = 0; row < Rows.size(); ++row) {
        const int top = FirstRowTop + static_cast<int>(row) * RowStep;
        Label2[row] = new QLabel(QString::fromLatin1(Rows[row].skill), this);
        Label2[row]->setGeometry(TwipRect(120, top, 1275, RowHeight));
        Label3[row] = new QLabel(QString::fromLatin1(Rows[row].range), this);
        Label3[row]->setGeometry(TwipRect(1440, top, 615, RowHeight));
    }

    Command1 = new QPushButton(QStringLiteral("OK"), this);
    Command1->setGeometry(TwipRect(420, 3300, 1275, 375));
    Command1->setDefault(true);
    connect(Command1, &QPushButton::clicked, this, &HelpForm::Command1_Click);
}

void HelpForm::Command1_Click()
{
    accept();
}
