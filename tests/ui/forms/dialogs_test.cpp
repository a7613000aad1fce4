#include "forms/message_box.h"
#include "forms/modal.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

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
    SetMessageAnswerer([](const ShownMessage& message) { return message.flags & MbYesNoCancel ? IdNo : IdOk; });
    EXPECT_EQ(MsgBox("Save changes?", MbYesNoCancel | MbExclamation, "Exit"), IdNo);
    EXPECT_EQ(MsgBox("Squad full", MbInformation, "Add"), IdOk);
    SetMessageAnswerer({});
    PressOnNextBox(Qt::Key_Return);
    EXPECT_EQ(MsgBox("Really?", MbYesNoCancel | MbExclamation, "Exit"), IdYes);   // Yes is the default
    PressOnNextBox(Qt::Key_Escape);
    EXPECT_EQ(MsgBox("Remove him?", MbYesNo | MbCritical, "Remove"), IdNo);

    ASSERT_EQ(ShownMessages().size(), 4u);   // shown boxes are recorded too
    EXPECT_EQ(ShownMessages()[0].text, "Save changes?");
    EXPECT_EQ(ShownMessages()[0].flags, 51);
    EXPECT_EQ(ShownMessages()[0].title, "Exit");
    EXPECT_EQ(ShownMessages()[3].flags, 20);
}

TEST_F(Dialogs, DriverWorksNestedFormsAndClosesWhatItLeavesOpen)
{
    QWidget owner;
    owner.show();
    SetMessageAnswerer([](const ShownMessage&) { return IdYes; });
    std::vector<QString> driven;
    SetModalDriver([&](QDialog& form) {
        driven.push_back(form.objectName());
        EXPECT_TRUE(form.isModal() && form.isVisible());
        if (form.objectName() == "outer") {
            EXPECT_EQ(form.parentWidget(), &owner);
            static_cast<OuterForm&>(form).open->click();
            form.accept();
        } else {
            form.done(MsgBox("Replace him?", MbYesNo, "Replace"));   // a question from inside a form
        }
    });
    OuterForm outer;
    EXPECT_EQ(ShowModal(outer, &owner), QDialog::Accepted);
    EXPECT_EQ(outer.innerResult, IdYes);
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
