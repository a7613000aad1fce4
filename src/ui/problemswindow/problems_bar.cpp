#include "problemswindow/problems_bar.h"

#include <QAction>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

ProblemsBar::ProblemsBar(QWidget* parent) : QToolBar(parent)
{
    setObjectName(QStringLiteral("problemsBar"));
    setMovable(false);
    setFloatable(false);
    toggleViewAction()->setVisible(false);

    auto* icon = new QLabel(this);
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize);
    icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(side, side));
    message = new QLabel(this);
    showProblemsButton = new QPushButton(QStringLiteral("Show &Problems..."), this);
    addWidget(icon);
    addWidget(message);
    addWidget(showProblemsButton);
    connect(showProblemsButton, &QPushButton::clicked, this, &ProblemsBar::showProblemsRequested);
    hide();
}

void ProblemsBar::SetErrorCount(int errors)
{
    message->setText(errors == 1 ? QStringLiteral("This game has 1 error that the game or the editor would misread.")
                                 : QStringLiteral("This game has %1 errors that the game or the editor would misread.")
                                       .arg(errors));
    setVisible(errors > 0);
}
