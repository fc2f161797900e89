#include "controls/mdCaption.h"
#include "controls/mdTheme.h"
#include "controls/oCheckBox.h"
#include "controls/oCustomButton.h"
#include "controls/oLeftRightButton.h"

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QFocusEvent>
#include <QHBoxLayout>
#include <QImage>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace {

/// The colour in the middle of the left part of a widget's visible face, clear of its text.
QColor faceOf(QWidget &widget)
{
    return widget.grab().toImage().pixelColor(Theme::RingRoom + 6, widget.height() / 2);
}

/// A shown dialogue with a box that takes the focus and two buttons, Save being the default.
struct Dialogue : QDialog {
    Dialogue()
    {
        auto *column = new QVBoxLayout(this);
        column->addWidget(box = new QLineEdit(this));
        column->addWidget(save = new oCustomButton(this));
        column->addWidget(cancel = new oCustomButton(this));
        save->setCaption(QStringLiteral("&Save"));
        save->setLook(oCustomButton::Look::Default);
        cancel->setCaption(QStringLiteral("Ca&ncel"));
        show();
        activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(this));
    }
    QLineEdit *box;
    oCustomButton *save;
    oCustomButton *cancel;
};

} // namespace

TEST(Caption, ReadsWithoutTheMarksOfItsMnemonic)
{
    EXPECT_EQ(QStringLiteral("Save"), mdPlainCaption(QStringLiteral("&Save")));
    EXPECT_EQ(QStringLiteral("Costs & fees"), mdPlainCaption(QStringLiteral("Costs && fees")));
    EXPECT_EQ(QString(), mdPlainCaption(QStringLiteral("&")));
}

TEST(Caption, IsSpokenWithoutColonAndAsterisk)
{
    EXPECT_EQ(QStringLiteral("Name"), mdSpokenCaption(QStringLiteral("Name:*")));
    EXPECT_EQ(QStringLiteral("Level 4"), mdSpokenCaption(QStringLiteral("Level 4")));
    EXPECT_EQ(QStringLiteral("%"), mdSpokenCaption(QStringLiteral("%:")));
    EXPECT_EQ(QStringLiteral("Profit Costs (exc adv & enh)"),
        mdSpokenCaption(QStringLiteral("Profit Costs (exc adv & enh):")));
}

TEST(CustomButton, RaisesClickOnceOnTheReleaseInside)
{
    Dialogue dialogue;
    const QSignalSpy click(dialogue.cancel, &oCustomButton::Click);
    QTest::mousePress(dialogue.cancel, Qt::LeftButton);
    EXPECT_EQ(0, click.count());
    QTest::mouseRelease(dialogue.cancel, Qt::LeftButton);
    EXPECT_EQ(1, click.count());
}

TEST(CustomButton, RaisesNothingWhenTheReleaseIsOutside)
{
    Dialogue dialogue;
    const QSignalSpy click(dialogue.cancel, &oCustomButton::Click);
    QTest::mousePress(dialogue.cancel, Qt::LeftButton);
    QTest::mouseRelease(dialogue.cancel, Qt::LeftButton, {}, QPoint(-20, -20));
    EXPECT_EQ(0, click.count());
}

TEST(CustomButton, RaisesNothingWhileItIsDisabled)
{
    Dialogue dialogue;
    dialogue.cancel->setEnabled(false);
    const QSignalSpy click(dialogue.cancel, &oCustomButton::Click);
    QTest::mouseClick(dialogue.cancel, Qt::LeftButton);
    QTest::keyClick(dialogue.cancel, Qt::Key_Space);
    QTest::keyClick(dialogue.cancel, Qt::Key_Return);
    EXPECT_EQ(0, click.count());
}

TEST(CustomButton, PressesItselfWhenEnterReachesItAsTheDefault)
{
    Dialogue dialogue;
    dialogue.box->setFocus();
    const QSignalSpy save(dialogue.save, &oCustomButton::Click);
    QTest::keyClick(dialogue.box, Qt::Key_Return);
    EXPECT_EQ(1, save.count());
}

TEST(CustomButton, TakesEnterForItselfWhileItHasTheFocus)
{
    Dialogue dialogue;
    dialogue.cancel->setFocus();
    const QSignalSpy save(dialogue.save, &oCustomButton::Click);
    const QSignalSpy cancel(dialogue.cancel, &oCustomButton::Click);
    QTest::keyClick(dialogue.cancel, Qt::Key_Return);
    QTest::keyClick(dialogue.cancel, Qt::Key_Enter);
    QTest::keyClick(dialogue.cancel, Qt::Key_Space);
    EXPECT_EQ(0, save.count());
    EXPECT_EQ(3, cancel.count());
}

TEST(CustomButton, AKeyHeldDownPressesOnceAndPressesNoOther)
{
    Dialogue dialogue;
    for (oCustomButton *button : {dialogue.cancel, dialogue.save}) {
        button->setFocus();
        const QSignalSpy save(dialogue.save, &oCustomButton::Click);
        const QSignalSpy cancel(dialogue.cancel, &oCustomButton::Click);
        for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
            QTest::keyPress(button, key);
            for (int i = 0; i < 3; ++i) {
                QKeyEvent repeat(QEvent::KeyPress, key, Qt::NoModifier, QStringLiteral("\r"), true);
                QApplication::sendEvent(button, &repeat);
                EXPECT_TRUE(repeat.isAccepted());
            }
            QTest::keyRelease(button, key);
        }
        EXPECT_EQ(button == dialogue.save ? 2 : 0, save.count());
        EXPECT_EQ(button == dialogue.cancel ? 2 : 0, cancel.count());
    }
}

TEST(CustomButton, AnswersItsMnemonic)
{
    Dialogue dialogue;
    dialogue.box->setFocus();
    const QSignalSpy cancel(dialogue.cancel, &oCustomButton::Click);
    QTest::keyClick(dialogue.box, Qt::Key_N, Qt::AltModifier);
    // A mnemonic shows the button pressed for a moment.
    EXPECT_TRUE(QTest::qWaitFor([&] { return cancel.count() == 1; }));
    EXPECT_EQ(QStringLiteral("Cancel"), dialogue.cancel->Caption());
}

TEST(CustomButton, FollowsTheDesktopsFont)
{
    const QFont desktop = QApplication::font();
    const auto restore = qScopeGuard([&] { QApplication::setFont(desktop); });
    QWidget window;
    oCustomButton button(&window);
    button.setCaption(QStringLiteral("Start"));
    for (const auto look : {oCustomButton::Look::Small, oCustomButton::Look::Default, oCustomButton::Look::Secondary}) {
        button.setLook(look);
        const int usual = button.sizeHint().width();
        QFont large = desktop;
        large.setPointSizeF(2 * desktop.pointSizeF());
        QApplication::setFont(large);
        QCoreApplication::processEvents();
        const double expected = 2 * desktop.pointSizeF() - (look == oCustomButton::Look::Small ? 1 : 0);
        EXPECT_EQ(expected, button.font().pointSizeF()) << int(look);
        EXPECT_EQ(look == oCustomButton::Look::Default ? QFont::DemiBold : desktop.weight(), button.font().weight());
        EXPECT_GT(button.sizeHint().width(), usual) << int(look);
        QApplication::setFont(desktop);
        QCoreApplication::processEvents();
        EXPECT_EQ(usual, button.sizeHint().width()) << int(look);
    }
}

TEST(CustomButton, OnlyFilledOnesAreEverTheDefault)
{
    Dialogue dialogue;
    EXPECT_TRUE(dialogue.save->isDefault());
    EXPECT_FALSE(dialogue.cancel->autoDefault());
    EXPECT_EQ(Theme::Purple, faceOf(*dialogue.save));
    EXPECT_EQ(Theme::Paper, faceOf(*dialogue.cancel));
    dialogue.save->setLook(oCustomButton::Look::Danger);
    EXPECT_EQ(Theme::Red, faceOf(*dialogue.save));
    dialogue.save->setEnabled(false);
    EXPECT_EQ(Theme::Canvas, faceOf(*dialogue.save));
}

TEST(CustomButton, ShowsHoverAndHeldStates)
{
    Dialogue dialogue;
    dialogue.cancel->setAttribute(Qt::WA_UnderMouse);
    EXPECT_EQ(Theme::Hover, faceOf(*dialogue.cancel));
    dialogue.cancel->setDown(true);
    EXPECT_EQ(Theme::Selected, faceOf(*dialogue.cancel));
    dialogue.cancel->setDown(false);
    dialogue.cancel->setAttribute(Qt::WA_UnderMouse, false);
    EXPECT_EQ(Theme::Paper, faceOf(*dialogue.cancel));
}

TEST(CustomButton, ShowsARingOutsideItsEdgeWhileItHasTheFocus)
{
    Dialogue dialogue;
    const auto outermost
        = [&] { return dialogue.cancel->grab().toImage().pixelColor(0, dialogue.cancel->height() / 2); };
    dialogue.box->setFocus();
    EXPECT_NE(Theme::Purple, outermost());
    dialogue.cancel->setFocus();
    EXPECT_EQ(Theme::Purple, outermost());
}

TEST(CustomButton, LayoutsAlignItsVisibleEdgeAndNotItsRing)
{
    QWidget page;
    auto *column = new QVBoxLayout(&page);
    column->setContentsMargins(20, 20, 20, 20);
    auto *button = new oCustomButton(&page);
    auto *tick = new oCheckBox(&page);
    auto *box = new QLineEdit(&page);
    auto *pair = new oLeftRightButton(&page);
    for (QWidget *widget : {static_cast<QWidget *>(button), static_cast<QWidget *>(tick), static_cast<QWidget *>(box),
             static_cast<QWidget *>(pair)})
        column->addWidget(widget);
    page.show();
    EXPECT_EQ(20, box->x());
    EXPECT_EQ(20 - Theme::RingRoom, button->x());
    EXPECT_EQ(20 - Theme::RingRoom, tick->x());
    EXPECT_EQ(20 - Theme::RingRoom, pair->x());
}

TEST(CustomButton, KeepsItsMeasuresAtTenPoints)
{
    oCustomButton button;
    button.setCaption(QStringLiteral("No"));
    const QSize ring(2 * Theme::RingRoom, 2 * Theme::RingRoom);
    EXPECT_EQ(QSize(88, 32) + ring, button.sizeHint());
    button.setLook(oCustomButton::Look::Arrow);
    button.setCaption(QString());
    EXPECT_EQ(QSize(28, 32) + ring, button.sizeHint());
}

TEST(CustomButton, UnknownNamesOfLooksArePlain)
{
    EXPECT_EQ(oCustomButton::Look::Danger, oCustomButton::lookFromName(QStringLiteral("danger")));
    EXPECT_EQ(oCustomButton::Look::Secondary, oCustomButton::lookFromName(QStringLiteral("dangerous")));
}

TEST(CheckBox, RaisesClickWithTheNewStateOnEveryChange)
{
    oCheckBox tick;
    QSignalSpy click(&tick, &oCheckBox::Click);
    tick.show();
    QTest::mouseClick(&tick, Qt::LeftButton);
    ASSERT_EQ(1, click.count());
    EXPECT_TRUE(click.takeFirst()[0].toBool());
    EXPECT_TRUE(tick.Checked());
    tick.setChecked(false);
    ASSERT_EQ(1, click.count());
    EXPECT_FALSE(click.takeFirst()[0].toBool());
    tick.setChecked(false);
    EXPECT_EQ(0, click.count()) << "no change, no event";
    tick.setEnabled(false);
    QTest::mouseClick(&tick, Qt::LeftButton);
    EXPECT_EQ(0, click.count());
}

TEST(CheckBox, SpaceTicks)
{
    oCheckBox tick;
    tick.show();
    QTest::keyClick(&tick, Qt::Key_Space);
    EXPECT_TRUE(tick.Checked());
}

TEST(CheckBox, ItsSquareIsBlueWhileItHasTheFocus)
{
    QWidget page;
    auto *column = new QVBoxLayout(&page);
    auto *tick = new oCheckBox(&page);
    auto *box = new QLineEdit(&page);
    column->addWidget(tick);
    column->addWidget(box);
    page.show();
    page.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&page));
    const auto square = [&] { return tick->grab().toImage(); };
    tick->setFocus();
    EXPECT_EQ(Theme::Blue, square().pixelColor(2, 12));
    EXPECT_EQ(Theme::Blue, square().pixelColor(21, 12));
    EXPECT_EQ(Theme::Paper, square().pixelColor(12, 12)) << "the box inside stays white";
    box->setFocus();
    EXPECT_NE(Theme::Blue, square().pixelColor(2, 12));
}

TEST(CheckBox, HasANameButShowsNoText)
{
    oCheckBox tick;
    tick.setCaption(QStringLiteral("Use Hourly Rate:"));
    EXPECT_EQ(QString(), tick.text());
    EXPECT_EQ(QStringLiteral("Use Hourly Rate"), QAccessible::queryAccessibleInterface(&tick)->text(QAccessible::Name));
    EXPECT_EQ(QSize(24, 24), tick.sizeHint());
}

TEST(LeftRightButton, BeginsWithItsArrowsEnabled)
{
    const oLeftRightButton pair;
    EXPECT_EQ(QStringLiteral("<<"), pair.LeftCaption());
    EXPECT_EQ(QStringLiteral(">>"), pair.RightCaption());
    EXPECT_TRUE(pair.LeftEnabled());
    EXPECT_TRUE(pair.RightEnabled());
}

TEST(LeftRightButton, EachEnabledButtonRaisesItsOwnEvent)
{
    oLeftRightButton pair;
    pair.setLeftCaption(QStringLiteral("<< Prev"));
    pair.setRightCaption(QStringLiteral("Next >>"));
    EXPECT_EQ(QStringLiteral("<< Prev"), pair.LeftCaption());
    EXPECT_EQ(QStringLiteral("Next >>"), pair.RightCaption());
    pair.show();
    const QSignalSpy left(&pair, &oLeftRightButton::LeftClick);
    const QSignalSpy right(&pair, &oLeftRightButton::RightClick);
    QTest::mouseClick(pair.findChild<QWidget *>(QStringLiteral("btnLeft")), Qt::LeftButton);
    EXPECT_EQ(1, left.count());
    EXPECT_EQ(0, right.count());
    QTest::mouseClick(pair.findChild<QWidget *>(QStringLiteral("btnRight")), Qt::LeftButton);
    EXPECT_EQ(1, left.count());
    EXPECT_EQ(1, right.count());
    pair.setLeftEnabled(false);
    pair.setRightEnabled(false);
    EXPECT_FALSE(pair.LeftEnabled());
    QTest::mouseClick(pair.findChild<QWidget *>(QStringLiteral("btnLeft")), Qt::LeftButton);
    QTest::mouseClick(pair.findChild<QWidget *>(QStringLiteral("btnRight")), Qt::LeftButton);
    EXPECT_EQ(1, left.count());
    EXPECT_EQ(1, right.count());
}
