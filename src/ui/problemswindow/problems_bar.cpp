#include "problemswindow/problems_bar.h"

#include <QLabel>
#include <QPushButton>

ProblemsBar::ProblemsBar(QWidget* parent) : NoticeBar("problemsBar", QStyle::SP_MessageBoxWarning, parent)
{
    showProblemsButton = new QPushButton(QStringLiteral("Show &Problems..."), this);
    addWidget(showProblemsButton);
    connect(showProblemsButton, &QPushButton::clicked, this, &ProblemsBar::showProblemsRequested);
}

void ProblemsBar::SetErrorCount(int errors)
{
    message->setText(errors == 1 ? QStringLiteral("This game has 1 error that the game or the editor would misread.")
                                 : QStringLiteral("This game has %1 errors that the game or the editor would misread.")
                                       .arg(errors));
    setVisible(errors > 0);
}
