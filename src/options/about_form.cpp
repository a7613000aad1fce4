#include "options/about_form.h"

#include <QFrame>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>

#include "forms/twips.h"
#include "options/artwork.h"

namespace {

constexpr int AreaWidth = 5460;
constexpr int AreaHeight = 2370;

QLabel* MakeLabel(QWidget* parent, const QString& text, QRect rect)
{
    auto* label = new QLabel(text, parent);
    label->setGeometry(rect);
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    return label;
}

}  // namespace

AboutForm::AboutForm(QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("abt1"));
    setWindowTitle(QStringLiteral("About"));
    setFixedSize(TwipSize(AreaWidth, AreaHeight));

    Image1 = new QLabel(this);
    Image1->setGeometry(TwipRect(120, 240, 765, 705));
    Image1->setPixmap(QPixmap(QString::fromLatin1(kolta::artwork::Icon)));
    Image1->setScaledContents(true);

    lblTitle = MakeLabel(this, QStringLiteral("KOLTA Team Editor  "), TwipRect(1140, 180, 4125, 720));
    QFont titleFont = lblTitle->font();
    titleFont.setBold(true);
    titleFont.setPointSizeF(titleFont.pointSizeF() * 1.75);
    lblTitle->setFont(titleFont);
    lblVersion = MakeLabel(this, QStringLiteral("Version  1.0.0"), TwipRect(1260, 840, 3585, 225));

    // An engraved rule between the title and the credits.
    auto* rule = new QFrame(this);
    rule->setFrameShape(QFrame::HLine);
    rule->setFrameShadow(QFrame::Sunken);
    rule->setGeometry(TwipRect(120, 1140, 5220, 30));

    Label2 = MakeLabel(this, QStringLiteral("Credits :"), TwipRect(120, 1260, 3495, 255));
    Label1[0] = MakeLabel(this, QStringLiteral("Thanks to every KOLTA manager who\nsent in ideas and squads."),
                          TwipRect(120, 1620, 3660, 435));
    Label1[1] = MakeLabel(this, QStringLiteral("And thanks to the testers, who found the bugs\nbefore you could."),
                          TwipRect(120, 2040, 5175, 435));

    cmdOK = new QPushButton(QStringLiteral("OK"), this);
    cmdOK->setGeometry(TwipRect(3900, 1500, 1380, 375));
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &AboutForm::cmdOK_Click);
}

void AboutForm::cmdOK_Click()
{
    accept();
}
