#include "tables/choice_dialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include "forms/box_marks.h"

ChoiceDialog::ChoiceDialog(const QString& title, const QString& listCaption, const QStringList& entries, int chosen,
                           const QString& valueCaption, Apply apply, QWidget* parent)
    : QDialog(parent), apply_(std::move(apply))
{
    setWindowTitle(title);
    auto* layout = new QVBoxLayout(this);
    auto* caption = new QLabel(listCaption, this);
    layout->addWidget(caption);
    choices = new QListWidget(this);
    choices->setObjectName(QStringLiteral("choices"));
    choices->addItems(entries);
    choices->setCurrentRow(std::max(chosen, 0));
    // Wide enough for its longest entry beside a scroll bar.
    choices->setMinimumWidth(choices->sizeHintForColumn(0) + 2 * choices->frameWidth() +
                             choices->style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 8);
    caption->setBuddy(choices);
    layout->addWidget(choices);
    if (!valueCaption.isEmpty()) {
        auto* form = new QFormLayout;
        valueBox = new QLineEdit(this);
        valueBox->setObjectName(QStringLiteral("valueBox"));
        form->addRow(valueCaption, valueBox);
        layout->addLayout(form);
    }
    reason = new QLabel(this);
    reason->setWordWrap(true);
    QPalette red = reason->palette();
    red.setColor(QPalette::WindowText, Qt::darkRed);
    reason->setPalette(red);
    reason->hide();
    layout->addWidget(reason);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &ChoiceDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ChoiceDialog::reject);
    // Enter in the list reaches the default button; a double click applies too.
    connect(choices, &QListWidget::doubleClicked, this, &ChoiceDialog::accept);
    layout->addWidget(buttons);
    choices->setFocus();
}

void ChoiceDialog::accept()
{
    if (choices->currentRow() < 0)
        return;
    const QString why = apply_(choices->currentRow(), valueBox ? valueBox->text() : QString());
    if (why.isEmpty())
        return QDialog::accept();
    reason->setText(why);
    reason->show();
    if (valueBox) {
        MarkBox(*valueBox, BoxMark::Refused, why);
        valueBox->setFocus();
    }
}
