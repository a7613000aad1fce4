// The guards around what a person types: the wheel passes over a control
// that is not being worked, and a box shows what its field made of its text.
#include "forms/box_marks.h"
#include "forms/drop_down.h"
#include "forms/text_box.h"

#include <QApplication>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace {

// One notch of the wheel, down, over the middle of `control`; whether the
// control took it.
bool WheelDown(QWidget& control)
{
    const QPointF middle = QRectF(control.rect()).center();
    QWheelEvent wheel(middle, control.mapToGlobal(middle), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&control, &wheel);
    return wheel.isAccepted();
}

TEST(WheelGuard, TheWheelChangesAComboOnlyWhileItHasTheFocus)
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    QComboBox* guarded = NewDropDown(nullptr);
    auto* other = new TextBox;
    layout->addWidget(guarded);
    layout->addWidget(other);
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
}

TEST(BoxMarks, ANumberBoxIsMarkedByWhatItsFieldMadeOfItsText)
{
    const auto& wealth = *FieldOf<TeamRecord>(TeamFields, &TeamRecord::wealth);
    const auto& potential = *FieldOf<PlayerRecord>(PlayerFields, &PlayerRecord::potential);
    TeamRecord team;
    team.wealth = 12345;
    PlayerRecord player;
    TextBox box;
    const struct {
        QString text;
        bool isTeam;
        BoxMark mark;
        QString said;
    } cases[] = {
        {"1234567", true, BoxMark::Refused, "Wealth takes a whole number from -32768 to 32767: the record holds 12345."},
        {"-250", true, BoxMark::Plain, ""},
        {"21", false, BoxMark::Unusual, "Potential runs from 0 to 20 in the game: 21 is stored all the same."},
        {"20", false, BoxMark::Plain, ""},
    };
    for (const auto& c : cases) {
        box.setText(c.text);
        player.potential = std::int16_t(c.text.toInt());
        const QString said = c.isTeam ? MarkNumberBox(box, wealth, team) : MarkNumberBox(box, potential, player);
        EXPECT_EQ(said, c.said);
        EXPECT_EQ(MarkOf(box), c.mark) << c.text.toStdString();
        EXPECT_EQ(box.toolTip(), c.said);
    }
}

}  // namespace
