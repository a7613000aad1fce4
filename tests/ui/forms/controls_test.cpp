// The controls and dialogs the windows are built from: a pick in a list is
// told once for each key or click, the wheel passes over a drop-down that is
// not being worked, a box of the game's text turns away what the files could
// not carry, with the code page between the box and the game, and message
// boxes and forms are answered by the keys or by the tests; a bar too
// narrow for its items still shows its arrow.
#include "forms/beep.h"
#include "forms/choice_list.h"
#include "forms/drop_down.h"
#include "forms/editor_style.h"
#include "forms/game_text.h"
#include "forms/message_box.h"
#include "forms/modal.h"
#include "forms/text_box.h"

#include <QApplication>
#include <QClipboard>
#include <QMenuBar>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include "support/window_parts.h"

namespace {

// The wheel changes a drop-down only while it has the focus. In a list, keys
// and clicks each choose once, also on the row chosen already; what the
// program does itself chooses nothing.
TEST(Lists, TheWheelPassesOverADropDownAndKeysAndClicksChooseOnceEach)
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    QComboBox* guarded = NewDropDown(nullptr);
    auto* other = new TextBox;
    auto* list = new ChoiceList;
    layout->addWidget(guarded);
    layout->addWidget(other);
    layout->addWidget(list);
    guarded->addItems({"Opener", "Top order", "Middle order"});
    guarded->setCurrentIndex(0);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));

    other->setFocus();
    EXPECT_FALSE(WheelDown(*guarded));
    EXPECT_EQ(guarded->currentIndex(), 0);
    EXPECT_EQ(QApplication::focusWidget(), other);   // the wheel took no focus either
    guarded->setFocus();
    EXPECT_TRUE(WheelDown(*guarded));
    EXPECT_EQ(guarded->currentIndex(), 1);

    list->setFocus();
    const std::pair<const char*, int> rows[] = {{"Atherton", 7}, {"Gooch", 8}, {"Gower", 9}, {"Atherton", 7}};
    for (const auto& [name, number] : rows)
        list->AddRow(name, number);
    std::vector<int> picks;  // the chosen row as each rowChosen came
    QObject::connect(list, &ChoiceList::rowChosen, [list, &picks](int row) {
        EXPECT_EQ(row, list->ChosenRow());
        picks.push_back(row);
    });
    ClickRow(*list, 1);
    ClickRow(*list, 1);
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_A);  // typing jumps to the next row starting so
    EXPECT_EQ(list->NumberAt(2), 9);
    EXPECT_EQ(list->RowOf(7), 0);  // the first row that carries it
    list->setCurrentRow(0);
    list->clear();
    EXPECT_EQ(list->ChosenRow(), -1);
    EXPECT_EQ(picks, (std::vector<int>{1, 1, 2, 3}));
}

// The editor's style reads the bars' extension arrow when it is first drawn;
// it must then be the arrow the style underneath draws.
TEST(EditorStyle, ABarTooNarrowForItsMenusShowsTheUsualArrow)
{
    auto* style = dynamic_cast<EditorStyle*>(QApplication::style());
    ASSERT_NE(style, nullptr);
    QMenuBar bar;
    for (const char* title : {"&File", "&Edit", "&Tools", "&Help"})
        bar.addMenu(QString::fromLatin1(title));
    bar.resize(40, 30);
    bar.show();
    const auto* arrow = bar.findChild<QToolButton*>();
    ASSERT_NE(arrow, nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&bar));
    EXPECT_TRUE(arrow->isVisible());
    const QStyle::StandardPixmap which = QStyle::SP_ToolBarHorizontalExtensionButton;
    EXPECT_EQ(arrow->icon().pixmap(16).toImage(), style->baseStyle()->standardIcon(which).pixmap(16).toImage());
}

TEST(TextBox, TakesOnlyWhatItsRuleAndTheCodePageLetThrough)
{
    TextBox box;
    box.show();
    box.setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&box));
    const auto paste = [&box](const QString& text) {
        QApplication::clipboard()->setText(text);
        QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    };
    box.SetTextRule(
        [](const QString& text) { return text.contains(',') ? std::optional<QString>("no comma") : std::nullopt; });
    box.setText("Smith");
    const int before = BeepCount();

    QTest::keyClick(&box, Qt::Key_Home);
    QTest::keyClick(&box, Qt::Key_Right);
    QTest::keyClicks(&box, ",");
    EXPECT_EQ(box.text(), "Smith");
    EXPECT_EQ(box.cursorPosition(), 1);   // the caret stays where the user was typing
    QTest::keyClicks(&box, "x");
    EXPECT_EQ(box.text(), "Sxmith");

    paste("a,b");
    EXPECT_EQ(box.text(), "Sxmith");
    paste("ab");
    EXPECT_EQ(box.text(), "Sxabmith");
    EXPECT_EQ(BeepCount() - before, 2);

    // Selecting and typing over cannot dodge the rule.
    box.SetTextRule(
        [](const QString& text) { return text.size() == 1 ? std::optional<QString>("not one letter") : std::nullopt; });
    box.setText("abc");
    box.selectAll();
    QTest::keyClicks(&box, "z");
    EXPECT_EQ(box.text(), "abc");
    QTest::keyClick(&box, Qt::Key_End);
    QTest::keyClick(&box, Qt::Key_Backspace);
    QTest::keyClick(&box, Qt::Key_Backspace);
    EXPECT_EQ(box.text(), "ab");

    // A locked box takes no keys at all.
    box.setReadOnly(true);
    QTest::keyClicks(&box, "xy");
    paste("z");
    EXPECT_EQ(box.text(), "ab");

    // The code page between the box and the game.
    std::string all;
    for (int byte = 1; byte < 256; ++byte)
        all.push_back(static_cast<char>(byte));
    EXPECT_EQ(ToGame(FromGame(all)), all);
    EXPECT_EQ(FromGame("Zo\xEB\x80"), QString::fromUtf8("Zoë€"));
    EXPECT_EQ(ToGame(QString::fromUtf8("Łukasz")), "ukasz");

    // What the files cannot carry is refused in the core's tests; here, what
    // the code page cannot: "ŁQ" would be shortened to a storable "Q", but the
    // box must not let the user believe the whole name was kept.
    for (const char* name : {"Zoë", "Šimonek"})
        EXPECT_EQ(NameRefusalOf(QString::fromUtf8(name)), std::nullopt) << name;
    EXPECT_EQ(NameRefusalOf(QString::fromUtf8("ŁQ")).value_or(QString()), QString::fromUtf8("A name cannot hold the character Ł"));
    EXPECT_EQ(NameRefusalOf(QStringLiteral("O,Neil")).value_or(QString()), "A name cannot hold a comma");
}

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

TEST_F(Dialogs, MessagesAndFormsAreAnsweredByTheTestOrTheKeys)
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
    EXPECT_EQ(Look(ShownMessages()[0]), Look("Exit", QMessageBox::Warning, yesNoCancel));
    EXPECT_EQ(Look(ShownMessages()[3]), Look("Remove", QMessageBox::Critical, QMessageBox::Yes | QMessageBox::No));

    // The windows' tests drive every form through the driver; one it leaves
    // open is closed, even one that refuses to be rejected, as one that only
    // closes by its own button.
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

}  // namespace
