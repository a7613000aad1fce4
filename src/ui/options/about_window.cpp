#include "options/about_window.h"

#include <QFrame>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>

#include "forms/fitted_layout.h"
#include "options/artwork.h"

namespace {

constexpr int AreaWidth = 5460;
constexpr int AreaHeight = 2370;

QLabel* MakeLabel(FittedLayout& at, QWidget* form, const QString& text, QRect rect)
{
    auto* label = at.Put(new QLabel(text, form), rect, true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    return label;
}

}  // namespace

AboutWindow::AboutWindow(QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("aboutWindow"));
    setWindowTitle(QStringLiteral("About"));
    FittedLayout at(this, {AreaWidth, AreaHeight});

    auto* icon = at.Put(new QLabel(this), QRect(120, 240, 765, 705));
    icon->setPixmap(kolta::artwork::Picture(kolta::artwork::Icon));
    icon->setObjectName(QStringLiteral("icon"));
    icon->setScaledContents(true);

    auto* title = new QLabel(QStringLiteral("KOLTA Team Editor  "), this);
    QFont titleFont = title->font();
    titleFont.setBold(true);
    titleFont.setPointSizeF(titleFont.pointSizeF() * 1.75);
    title->setFont(titleFont);
    at.Put(title, QRect(1140, 180, 4125, 720), true);
    MakeLabel(at, this, QStringLiteral("Version  1.0.0"), QRect(1260, 840, 3585, 225));

    // An engraved rule between the title and the credits.
    auto* rule = at.Put(new QFrame(this), QRect(120, 1140, 5220, 30));
    rule->setFrameShape(QFrame::HLine);
    rule->setFrameShadow(QFrame::Sunken);

    // One line each; the first stops short of the OK button beside it.
    MakeLabel(at, this, QStringLiteral("Credits :"), QRect(120, 1260, 3495, 255));
    MakeLabel(at, this, QStringLiteral("Thanks to every KOLTA manager who sent in a squad,"),
                          QRect(120, 1620, 3660, 315));
    MakeLabel(at, this, QStringLiteral("and to the testers, who found the bugs before you did."),
                          QRect(120, 2040, 5175, 315));

    auto* ok = at.Put(new QPushButton(QStringLiteral("OK"), this), QRect(3900, 1500, 1380, 375), true);
    ok->setObjectName(QStringLiteral("okButton"));
    ok->setDefault(true);
    at.Apply();
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
}
