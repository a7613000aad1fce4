#include "forms/message_box.h"
#include "forms/modal.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include "support/window_parts.h"

namespace {

class Dialogs : public ::testing::Test {
protected:
    Dialogs() { ClearShownMessages(); }
    ~Dialogs() override
    {
        SetMessageAnswerer({});
        SetModalDriver({});
    }
};

// Presses a key on the message box that is open when the event loop next runs.
void PressOnNextBox(int key)
{
    QTimer::singleShot(0, [key] {
        for (QWidget* top : QApplication::topLevelWidgets()) {
            if (auto* box = qobject_cast<QMessageBox*>(top); box && box->isVisible())
                QTest::keyClick(box, static_cast<Qt::Key>(key));
        }
    });
}

// A form with a button that opens an inner form, as the main window opens
// the search window.
struct OuterForm : QDialog {
    QDialog inner;
    int innerResult = -1;
    QPushButton* open = new QPushButton("Open", this);
    OuterForm()
    {
        setObjectName("outer");
        inner.setObjectName("inner");
        connect(open, &QPushButton::clicked, this, [this] { innerResult = ShowModal(inner, this); });
    }
};

}  // namespace

TEST_F(Dialogs, MessagesAreRecordedAndAnsweredByTheTestOrTheKeys)
{
    const QMessageBox::StandardButtons yesNoCancel = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    SetMessageAnswerer([](const ShownMessage& message) {
        return message.buttons.testFlag(QMessageBox::Cancel) ? QMessageBox::No : QMessageBox::Ok;
    });
    EXPECT_EQ(ShowMessage(QMessageBox::Warning, "Exit", "Save changes?", yesNoCancel), QMessageBox::No);
    EXPECT_EQ(ShowMessage(QMessageBox::Information, "Add", "Squad full"), QMessageBox::Ok);
    SetMessageAnswerer({});
    PressOnNextBox(Qt::Key_Return);
    EXPECT_EQ(ShowMessage(QMessageBox::Warning, "Exit", "Really?", yesNoCancel),
              QMessageBox::Yes);  // Yes is the default
    PressOnNextBox(Qt::Key_Escape);
    EXPECT_EQ(ShowMessage(QMessageBox::Critical, "Remove", "Remove him?", QMessageBox::Yes | QMessageBox::No),
              QMessageBox::No);

    ASSERT_EQ(ShownMessages().size(), 4u);   // shown boxes are recorded too
    EXPECT_EQ(ShownMessages()[0].text, "Save changes?");
    EXPECT_EQ(Look(ShownMessages()[0]), Look(QMessageBox::Warning, yesNoCancel));
    EXPECT_EQ(ShownMessages()[0].title, "Exit");
    EXPECT_EQ(Look(ShownMessages()[3]), Look(QMessageBox::Critical, QMessageBox::Yes | QMessageBox::No));
}

TEST_F(Dialogs, DriverWorksNestedFormsAndClosesWhatItLeavesOpen)
{
    QWidget owner;
    owner.show();
    SetMessageAnswerer([](const ShownMessage&) { return QMessageBox::Yes; });
    std::vector<QString> driven;
    SetModalDriver([&](QDialog& form) {
        driven.push_back(form.objectName());
        EXPECT_TRUE(form.isModal() && form.isVisible());
        if (form.objectName() == "outer") {
            EXPECT_EQ(form.parentWidget(), &owner);
            static_cast<OuterForm&>(form).open->click();
            form.accept();
        } else {
            form.done(ShowMessage(QMessageBox::Question, "Replace", "Replace him?",
                                  QMessageBox::Yes | QMessageBox::No));  // a question from inside a form
        }
    });
    OuterForm outer;
    EXPECT_EQ(ShowModal(outer, &owner), QDialog::Accepted);
    EXPECT_EQ(outer.innerResult, QMessageBox::Yes);
    EXPECT_EQ(driven, (std::vector<QString>{"outer", "inner"}));
    EXPECT_EQ(outer.inner.parentWidget(), &outer);

    // A form the driver leaves open is closed, even one that refuses to be
    // rejected, as one that only closes by its own button.
    SetModalDriver([](QDialog&) {});
    struct Stubborn : QDialog {
        void reject() override {}
    } stubborn;
    EXPECT_EQ(ShowModal(stubborn, nullptr), QDialog::Rejected);
    EXPECT_FALSE(stubborn.isVisible());
}
