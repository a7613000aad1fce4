// The window as the user meets it: where the Tab key goes, whether every
// caption can be read, and that the window keeps its size.

#include <QPushButton>

#include "editor_fixture.h"
#include "forms/picture_box.h"

namespace {

using MainLayout = EditorTest;

TEST_F(MainLayout, TabClimbsThePlayerColumnFirstAndComesBackRound)
{
    Open();
    MainForm& m = *main;
    const std::vector<QWidget*> expected{
        m.Combo4[FieldsAtCombo], m.Text1[PotentialBox], m.Combo4[BowlsCombo], m.Combo4[BowlTypeCombo],
        m.Combo4[BatsCombo], m.Combo4[BatPositionCombo], m.Text1[FieldAbilityBox],
        m.Text1[BowlEconomyBox], m.Text1[BowlSkillBox], m.Text1[BatAggressionBox], m.Text1[BatSkillBox],
        m.Text1[DayBox], m.Text1[SurnameBox], m.Text1[TeamNameBox], m.Text1[AbbreviationBox],
        m.Combo4[TeamCountryCombo], m.Text1[ReputationBox], m.Text1[WealthBox], m.Text1[SupportBox],
        m.Command1, m.Command2, m.Command3, m.Command4, m.Combo2, m.Combo1,
        m.Text1[MonthBox], m.Text1[YearBox], m.Text1[InitialsBox], m.Combo3, m.List1,
    };
    ASSERT_EQ(QApplication::focusWidget(), m.List1);
    for (std::size_t step = 0; step < expected.size(); ++step) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), expected[step]) << "after " << step + 1 << " Tabs";
    }
}

TEST_F(MainLayout, EveryCaptionFitsNoControlsOverlapAndTheSizeIsFixed)
{
    Open();
    std::vector<QWidget*> placed;
    for (QObject* child : main->centralWidget()->children()) {
        auto* control = qobject_cast<QWidget*>(child);
        if (!control || !control->isVisible())
            continue;
        placed.push_back(control);
        // Pictures are stretched to their place; team names vary.
        const bool fixedWords = (qobject_cast<QLabel*>(control) && !qobject_cast<PictureBox*>(control)) ||
                                qobject_cast<QPushButton*>(control) ||
                                (qobject_cast<ComboBox*>(control) && control != main->Combo2);
        if (fixedWords) {
            EXPECT_LE(control->sizeHint().width(), control->width())
                << control->metaObject()->className() << " " << control->property("text").toString().toStdString();
        }
        EXPECT_TRUE(main->centralWidget()->rect().contains(control->geometry()));
    }
    EXPECT_EQ(placed.size(), 58u);
    for (std::size_t a = 0; a < placed.size(); ++a) {
        for (std::size_t b = a + 1; b < placed.size(); ++b)
            EXPECT_FALSE(placed[a]->geometry().intersects(placed[b]->geometry()))
                << placed[a]->metaObject()->className() << " " << placed[a]->geometry().x() << ","
                << placed[a]->geometry().y() << " and " << placed[b]->metaObject()->className() << " "
                << placed[b]->geometry().x() << "," << placed[b]->geometry().y();
    }

    // The window keeps its size, so nothing can be pushed out of place.
    EXPECT_FALSE(main->windowFlags() & Qt::WindowMaximizeButtonHint);
    const QSize size = main->size();
    main->resize(size * 2);
    QTest::qWait(20);
    EXPECT_EQ(main->size(), size);
}

}  // namespace
