#include "forms/message_box.h"
#include "forms/modal.h"

#include <QApplication>
#include <QMessageBox>
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

// The windows' tests drive every form through the driver; one it leaves
// open is closed, even one that refuses to be rejected, as one that only
// closes by its own button.
TEST_F(Dialogs, TheDriverClosesAFormItLeavesOpen)
{
    QWidget owner;
    QDialog* shown = nullptr;
    SetModalDriver([&](QDialog& form) {
        shown = &form;
        EXPECT_TRUE(form.isModal() && form.isVisible());
    });
    struct Stubborn : QDialog {
        void reject() override {}
    } stubborn;
    EXPECT_EQ(ShowModal(stubborn, &owner), QDialog::Rejected);
    EXPECT_EQ(shown, &stubborn);
    EXPECT_EQ(stubborn.parentWidget(), &owner);
    EXPECT_FALSE(stubborn.isVisible());
}
